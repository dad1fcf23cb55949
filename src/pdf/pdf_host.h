#pragma once

#include <functional>
#include <string>

#include "platform/save_file.h"
#include "text/calendar.h"

namespace zephon {

// What a document asks of the program that writes it. A function that is empty is not called; without `now`
// the document is dated with zeros.
struct PdfHost {
  std::string programFolder;  // metrics and files without a folder lie here; no separator at its end
  std::function<CalendarTime()> now;
  std::function<void(const std::string& title, const std::string& text)> message;
  std::function<void(const std::string& file)> openViewer;
  // That the file could not be made or written, in place of a message.
  std::function<void(const SaveResult& why)> notSaved;
};

}  // namespace zephon
