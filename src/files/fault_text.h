#pragma once

#include <span>
#include <string>

#include "files/file_reading.h"
#include "platform/read_file.h"
#include "platform/save_file.h"

namespace zephon {

// Why a file could not be read or saved, in the language of a dictionary; empty where it could.

// "line 12: expected a date such as 05/31/13"
std::string faultText(const FileFault& fault, std::span<const std::string> dict);
// "No such file or directory", "expected a plain file"
std::string readFaultText(const FileContent& content, std::span<const std::string> dict);
// "writing: No space left on device"
std::string saveFaultText(const SaveResult& result, std::span<const std::string> dict);

}  // namespace zephon
