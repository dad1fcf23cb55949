#pragma once

#include <span>
#include <string>

#include "reports/report_document.h"

namespace zephon {

// Writes the findings, in their order and numbered, as a PDF. Without findings it says that there are none.
// False when the file could not be written; the host has been told why.
bool writeExpertReport(const std::string& path, const PdfHost& host, const ReportHead& head,
                       std::span<const std::string> findings, std::span<const std::string> dict);

}  // namespace zephon
