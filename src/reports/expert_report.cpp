#include "reports/expert_report.h"

#include "reports/finding_lines.h"

namespace zephon {

bool writeExpertReport(const std::string& path, const PdfHost& host, const ReportHead& head,
                       std::span<const std::string> findings, std::span<const std::string> dict) {
  const auto pages = findingPages(findings);
  ReportDocument report(host, head, dict, pages.size());
  if (!report.begin(path)) return false;
  for (const auto& lines : pages) report.fitBody(lines);
  for (const auto& lines : pages) {
    report.nextPage();
    for (std::size_t i = 0; i < lines.size(); ++i) report.write(i, ReportDocument::kLeft, lines[i]);
  }
  return report.end();
}

}  // namespace zephon
