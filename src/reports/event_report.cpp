#include "reports/event_report.h"

#include <algorithm>

#include "form/dictionary.h"
#include "reports/event_rows.h"
#include "reports/finding_lines.h"

namespace zephon {
namespace {

constexpr int kKeySummary = 53;
constexpr int kKeyDate = 55;
constexpr int kKeyTime = 56;
constexpr int kKeyEvent = 57;
constexpr int kKeyMagnitude = 58;
constexpr int kKeyNumber = 66;
constexpr int kKeyPercent = 67;

// Columns: texts begin, numbers end here.
constexpr double kDate = ReportDocument::kLeft;
constexpr double kTime = 95;
constexpr double kEvent = 165;
constexpr double kMagnitude = 440;
constexpr double kPercent = 500;
constexpr std::size_t kTableHead = 1;

// A blank line parts the body from the frame's advice.
constexpr std::size_t kSummary = 1;

void drawSummary(ReportDocument& report, const std::vector<EventShare>& shares,
                 std::span<const std::string> dict) {
  report.write(kSummary, kDate, dictText(dict, kKeySummary), true);
  report.writeUpTo(kSummary, kMagnitude, dictText(dict, kKeyNumber), true);
  report.writeUpTo(kSummary, kPercent, dictText(dict, kKeyPercent), true);
  report.rule(kSummary);
  for (std::size_t i = 0; i < shares.size(); ++i) {
    const std::size_t line = kSummary + 1 + i;
    report.write(line, kDate, shares[i].event);
    report.writeUpTo(line, kMagnitude, shares[i].count);
    report.writeUpTo(line, kPercent, shares[i].percent);
  }
}

void drawTableHead(ReportDocument& report, std::size_t line, std::span<const std::string> dict) {
  report.write(line, kDate, dictText(dict, kKeyDate), true);
  report.write(line, kTime, dictText(dict, kKeyTime), true);
  report.write(line, kEvent, dictText(dict, kKeyEvent), true);
  report.writeUpTo(line, kMagnitude, dictText(dict, kKeyMagnitude), true);
  report.writeUpTo(line, kPercent, dictText(dict, kKeyPercent), true);
  report.rule(line);
}

void drawRow(ReportDocument& report, std::size_t line, const EventRow& row) {
  report.write(line, kDate, row.date);
  report.write(line, kTime, row.time);
  report.write(line, kEvent, row.event);
  report.writeUpTo(line, kMagnitude, row.magnitude);
  report.writeUpTo(line, kPercent, row.percent);
}

// The lines of the first page above its table: a blank one, and the summary with a blank line behind it.
std::size_t summaryLines(const std::vector<EventShare>& shares) {
  return kSummary + (shares.empty() ? 0 : shares.size() + 2);
}

std::size_t pagesFor(std::size_t rows, std::size_t summary) {
  const std::size_t first = kLinesAPage - summary - kTableHead;
  const std::size_t each = kLinesAPage - kSummary - kTableHead;
  return rows <= first ? 1 : 1 + (rows - first + each - 1) / each;
}

}  // namespace

bool writeEventReport(const std::string& path, const PdfHost& host, const ReportHead& head,
                      const LogTable<8>& events, std::span<const std::string> dict) {
  const auto rows = eventRows(events, head.nominalVolts, dict);
  const auto shares = eventShares(events, dict);
  const std::size_t summary = summaryLines(shares);
  const std::size_t pages = pagesFor(rows.size(), summary);
  ReportDocument report(host, head, dict, pages);
  if (!report.begin(path)) return false;
  std::size_t next = 0;
  for (std::size_t page = 0; page < pages; ++page) {
    report.nextPage();
    std::size_t line = page == 0 ? summary : kSummary;
    if (line > kSummary) drawSummary(report, shares, dict);
    drawTableHead(report, line++, dict);
    for (; line < kLinesAPage && next < rows.size(); ++line) drawRow(report, line, rows[next++]);
  }
  return report.end();
}

}  // namespace zephon
