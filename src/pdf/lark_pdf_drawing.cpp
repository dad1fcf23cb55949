#include "pdf/lark_pdf.h"

namespace zephon {
namespace {

// A figure's lines of remark around what draws it.
class Marked {
 public:
  Marked(Content& to, std::string_view name) : to_(to), name_(name) {
    to_ << "%DEBUT_" << name_ << "/%" << kCrLf;
  }
  Marked(const Marked&) = delete;
  Marked& operator=(const Marked&) = delete;
  ~Marked() { to_ << "%FIN_" << name_ << "/%" << kCrLf; }

 private:
  Content& to_;
  std::string_view name_;
};

}  // namespace

// Every figure sets all that it is drawn with.
Content& LarkPDF::pen() {
  style_.coloured = true;
  return content_ << drawColour_ << ' ' << fillColour_ << ' ' << lineStyle_;
}

void LarkPDF::setPen() {
  pen() << kCrLf;
}

void LarkPDF::paint() {
  content_ << lineWidth_ << " w " << paintOperator_ << kCrLf;
}

void LarkPDF::PDFDrawLine(double x1, double y1, double x2, double y2) {
  if (!isOpen()) return;
  const Marked marked(content_, "LN");
  setPen();
  addLine(content_, place(x1, y1), place(x2, y2));
  content_ << lineWidth_ << " w S" << kCrLf;
}

void LarkPDF::drawRule(std::string_view name, Point from, Point end, const PdfColour& colour) {
  if (!isOpen()) return;
  if (!colour.valid())
    tell("Line Color - ", "Invalid line color set ." + std::string(kCrLf) + "Setting line color to black.");
  const Marked marked(content_, name);
  style_.coloured = true;
  content_ << colour.operation("RG") << ' ' << colour.operation("rg") << ' ' << lineStyle_ << kCrLf;
  addLine(content_, place(from.x, from.y), place(end.x, end.y));
  content_ << lineWidth_ << " w S" << kCrLf;
}

void LarkPDF::PDFDrawLineHor(double x, double y, double length, const PdfColour& colour) {
  drawRule("LNH", {x, y}, {x + length, y}, colour);
}

void LarkPDF::PDFDrawLineVer(double x, double y, double length, const PdfColour& colour) {
  drawRule("LNV", {x, y}, {x, y + length}, colour);
}

void LarkPDF::PDFDrawRectangle(double x, double y, double width, double height, const PdfLink& link) {
  if (!isOpen()) return;
  {
    const Marked marked(content_, "RECT");
    const Point corner = place(x, y);
    setPen();
    addBox(content_, {corner.x, corner.y, width * scale_, -height * scale_});
    paint();
  }
  figure_ = {0, 0, width * scale_, height * scale_};
  linkFigure(link, LinkKind::Rectangle, x, y);
}

void LarkPDF::PDFDrawEllipse(double x, double y, double across, double down, const PdfLink& link) {
  if (!isOpen()) return;
  setPen();
  addEllipse(content_, place(x, y), across * scale_, down * scale_);
  paint();
  figure_ = {0, 0, 2 * across * scale_, 2 * down * scale_};
  linkFigure(link, LinkKind::Ellipse, x, y);
}

void LarkPDF::PDFDrawPolygon(std::span<const Point> points) {
  if (!isOpen() || points.size() < 2) return;
  const Marked marked(content_, "POLY");
  std::vector<Point> placed;
  for (const Point& point : points) placed.push_back(place(point.x, point.y));
  setPen();
  addPolygon(content_, placed);
  paint();
}

}  // namespace zephon
