#pragma once

#include <span>
#include <string>

#include "form/logs.h"
#include "reports/report_document.h"

namespace zephon {

// Writes the log of events as a PDF: how often each event stands in it, then every row in the log's order
// under a head that each page repeats. False when the file could not be written; the host has been told why.
bool writeEventReport(const std::string& path, const PdfHost& host, const ReportHead& head,
                      const LogTable<8>& events, std::span<const std::string> dict);

}  // namespace zephon
