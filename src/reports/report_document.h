#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "pdf/lark_pdf.h"

namespace zephon {

// What stands above each page of a report. Texts are UTF-8.
struct ReportHead {
  std::string title;       // without the line's name: "Expert Analysis"
  std::string dateRange;   // "05/01/2013 To 05/31/2013", empty for none
  int modelLine = 0;       // 1 is the second line
  int nominalVolts = 120;  // 120 or 240
  std::string userID;
  std::string firmwareVersion;
  std::string chipID;
};

// A report as it is drawn: A4 upright, measured in points from the top left corner, each page in the frame of
// head and foot. Whatever goes wrong is told to the host.
class ReportDocument {
 public:
  // Where what a page has to say begins, and how far its lines are apart.
  static constexpr double kFirstLine = 195;
  static constexpr double kLinePitch = 10;
  static constexpr double kLeft = 15;

  ReportDocument(const PdfHost& host, const ReportHead& head, std::span<const std::string> dict,
                 std::size_t pages);

  // False when the file can't be made, which has been told.
  bool begin(const std::string& path);
  // Opens the frame of the next page.
  void nextPage();
  // True when the whole report is in its place.
  bool end();

  // A text on a line of the page that is open, counted from 0, in the size of the text body.
  void write(std::size_t line, double x, std::string_view text, bool bold = false);
  // The same, ending at `x`.
  void writeUpTo(std::size_t line, double x, std::string_view text, bool bold = false);
  // A thin rule under a line, across the page.
  void rule(std::size_t line);
  // The size of the body from here on: 8 points, or as few as 6 where a text needs it to stay on the page.
  void fitBody(std::span<const std::string> lines);

  double right() const { return pdf_.PDFGetPageWidth() - 30; }

 private:
  void drawHead();
  void drawFacts();
  void drawFact(double y, double valueX, const std::string& label, const std::string& value,
                std::size_t longLabel = std::string::npos);
  void drawFoot();
  double widthOf(std::string_view text, int size, bool bold);

  LarkPDF pdf_;
  ReportHead head_;
  std::span<const std::string> dict_;
  std::string fonts_;
  std::size_t pages_;
  std::size_t page_ = 0;
  int bodySize_ = 8;
};

}  // namespace zephon
