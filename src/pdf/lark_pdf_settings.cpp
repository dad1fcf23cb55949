#include <algorithm>
#include <cmath>

#include "pdf/lark_pdf.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::string_view kName = "LarkPDF 1.0";

constexpr PageFormat kFormats[] = {
    {595.28, 841.89, 'p'}, {841.89, 1190.55, 'p'}, {420.94, 595.28, 'p'}, {612, 792, 'p'}, {612, 1008, 'p'}};

struct Unit {
  std::string_view name;
  double scale;  // points
};
constexpr Unit kUnits[] = {{"pt", 1}, {"mm", 72 / 25.4}, {"cm", 72 / 2.54}};
constexpr int kCentimetres = 2;

constexpr int kLastLayout = 3;
constexpr std::string_view kAlignments[][2] = {
    {"L", "Left"}, {"R", "Right"}, {"C", "Center"}, {"FJ", "Justified"}};

// What a setting is not, and what is taken in its place.
std::string fault(std::string_view what, const std::string& value, std::string_view instead) {
  return std::string(what) + value + "." + std::string(kCrLf) + std::string(instead);
}

bool isOneOf(int value, std::size_t count) {
  return value >= 0 && static_cast<std::size_t>(value) < count;
}

// A format as it lies: landscape has its width and height exchanged.
PageFormat laid(PageFormat format, char orientation) {
  if (orientation == 'l') std::swap(format.width, format.height);
  format.orientation = orientation;
  return format;
}

}  // namespace

LarkPDF::LarkPDF(PdfHost host) : host_(std::move(host)) {
  x_.set(leftMargin_);
  lineStyle_ = *dashOperator(0);
  paintOperator_ = *paintOperator("D");
}

void LarkPDF::PDFInit() {
  PDFLoadAfm(metricsFolder_.empty() ? host_.programFolder : metricsFolder_);
}

bool LarkPDF::PDFLoadAfm(const std::string& folder) {
  x_.set(x_.get());  // by the metrics that are about to go
  const bool found = fonts_.load(folder);
  style_.number = style_.font.empty() ? 1 : fonts_.number(style_.font);
  style_.metrics = nullptr;
  return found;
}

void LarkPDF::tell(std::string_view heading, const std::string& text) const {
  if (host_.message) host_.message(std::string(kName) + std::string(heading), text);
}

void LarkPDF::PDFSetUnit(int unit) {
  if (!isOneOf(unit, std::size(kUnits))) {
    tell("Error in measurement unit - ",
         fault("Incorrect Unit of Measure : ", std::to_string(unit), "Using centimeter "));
    unit = kCentimetres;
  }
  scale_ = kUnits[unit].scale;
}

std::string LarkPDF::PDFGetUnit() const {
  const auto* unit = std::ranges::find(kUnits, scale_, &Unit::scale);
  return std::string(unit->name);
}

// The page that settings of the format speak of.
PageFormat& LarkPDF::format() {
  if (next_) return *next_;
  return pages_.empty() ? firstFormat_ : pages_.back().format;
}
const PageFormat& LarkPDF::format() const {
  return const_cast<LarkPDF*>(this)->format();
}

void LarkPDF::PDFFormatPage(int number) {
  if (!isOneOf(number, std::size(kFormats))) {
    tell("Format Page - ",
         fault("Format page set incorrectly : ", std::to_string(number), "Format page set to A4."));
    number = 0;
  }
  format() = laid(kFormats[number], format().orientation);
}

// In points, as the page lies.
void LarkPDF::setSize(double width, double height) {
  const auto isLength = [](double side) { return std::isfinite(side) && side > 0; };
  if (isLength(width) && isLength(height)) {
    format().width = width;
    format().height = height;
    return;
  }
  tell("Format Page - ", fault("Format page set incorrectly : ",
                               shortestText(width) + " " + shortestText(height), "Format page set to A4."));
  PDFFormatPage(0);
}

void LarkPDF::PDFFormatPage(const std::array<double, 2>& size) {
  const bool landscape = format().orientation == 'l';
  setSize(size[landscape ? 1 : 0], size[landscape ? 0 : 1]);
}

void LarkPDF::PDFPageWidth(double width) {
  setSize(width * scale_, format().height);
}
void LarkPDF::PDFPageHeight(double height) {
  setSize(format().width, height * scale_);
}

void LarkPDF::PDFOrientation(int orientation) {
  if (!isOneOf(orientation, 2)) {
    tell("Error in orientation - ",
         fault("Orientation set incorrectly: ", std::to_string(orientation), "Orientation set to portrait."));
    orientation = 1;
  }
  PageFormat& page = format();
  const char letter = orientation == 0 ? 'l' : 'p';
  if (page.orientation != letter) std::swap(page.width, page.height);
  page = {std::nearbyint(page.width), std::nearbyint(page.height), letter};
}

void LarkPDF::PDFSetZoomMode(double mode) {
  if (!std::isfinite(mode) || mode < 0) {
    tell("Zoom Mode - ",
         fault("Incorrect Zoom Mode : ", shortestText(mode), "Focus will be set to full-page zoom"));
    mode = 0;
  }
  catalog_.zoom = mode;
}

void LarkPDF::PDFSetLayoutMode(int mode) {
  if (!isOneOf(mode, kLastLayout + 1)) {
    tell("Layout Mode - ",
         fault("Layout incorrect : ", std::to_string(mode), "Layout will be set to simple single page."));
    mode = 0;
  }
  catalog_.layout = mode;
}

void LarkPDF::PDFSetViewerPreferences(std::string_view digits) {
  catalog_.preferences.clear();
  for (const char digit : digits)
    if (digit >= '1' && digit <= '6') catalog_.preferences += digit;
}

void LarkPDF::PDFSetMargins(double left, double top, double right) {
  leftMargin_ = left;
  topMargin_ = top;
  rightMargin_ = right;
}

void LarkPDF::PDFSetAlignement(std::string_view code) {
  const auto known = [&](const auto& row) { return row[0] == code; };
  alignment_ = std::ranges::any_of(kAlignments, known) ? code : "L";
}

std::string LarkPDF::PDFGetAlignement() const {
  for (const auto& row : kAlignments)
    if (row[0] == alignment_) return std::string(row[1]);
  return {};
}

void LarkPDF::PDFSetTextColor(const PdfColour& colour) {
  if (!colour.valid()) tell("Text Color ", fault("Invalid HTMl color set", {}, "Set color to  black."));
  style_.colour = colour.operation("rg");
  style_.coloured = true;
}
void LarkPDF::PDFSetLineColor(const PdfColour& colour) {
  if (!colour.valid())
    tell("Line Color - ", fault("Invalid line color set ", {}, "Setting line color to black."));
  drawColour_ = colour.operation("RG");
}
void LarkPDF::PDFSetDrawColor(const PdfColour& colour) {
  if (!colour.valid()) tell("Draw Color - ", fault("Invalid Draw Color set ", {}, "Using black."));
  fillColour_ = colour.operation("rg");
}

void LarkPDF::PDFSetLineStyle(int style) {
  const auto operation = dashOperator(style);
  if (!operation)
    tell("Line Style - ",
         fault("Line style set incorrectly : ", std::to_string(style), "Line style set to solid."));
  lineStyle_ = operation.value_or(*dashOperator(0));
}

void LarkPDF::PDFSetDrawMode(std::string_view mode) {
  const auto operation = paintOperator(mode);
  if (!operation)
    tell("Object Rectangle - ",
         fault("Draw Mode set incorrectly : ", std::string(mode), "Draw mode set to normal"));
  paintOperator_ = operation.value_or(*paintOperator("D"));
}

}  // namespace zephon
