#include <algorithm>
#include <cmath>

#include "pdf/lark_pdf.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr int kFamilies = 5;
constexpr std::string_view kFallbackFont = "TimesRoman";
constexpr double kPi = 3.1416;

constexpr char kItalic = '1';
constexpr char kBold = '2';
constexpr char kUnderline = '3';

}  // namespace

// The text itself where it is the same in both; otherwise good until the next call.
std::string_view LarkPDF::oneByte(std::string_view utf8) {
  if (isAscii(utf8)) return utf8;
  return oneByte_ = toWindows1252(utf8);
}

void LarkPDF::PDFSetFont(int family, int size, int style) {
  const std::string digits = std::to_string(style);
  const auto has = [&](char digit) { return digits.find(digit) != std::string::npos; };
  if (family >= 0 && family < kFamilies) {
    style_.font = fontName(static_cast<FontFamily>(family), has(kItalic), has(kBold));
  } else {
    tell("Font name - ", "Font name set incorrectly : " + std::to_string(family) + "." + std::string(kCrLf) +
                             "Font set to Times New Roman.");
    style_.font = kFallbackFont;
  }
  style_.number = fonts_.number(style_.font);
  style_.metrics = nullptr;
  style_.size = static_cast<std::int16_t>(std::clamp(size, 0, INT16_MAX));
  style_.underline = has(kUnderline);
}

const FontMetrics* LarkPDF::metricsOf(const std::string& font) {
  const FontMetrics* metrics = fonts_.metrics(font);
  if (!metrics && std::ranges::find(unmeasured_, font) == unmeasured_.end()) {
    unmeasured_.push_back(font);
    tell("Font metrics - ", "Cannot read " + fonts_.file(font) + "." + std::string(kCrLf) +
                                "Text in this font is taken as having no width.");
  }
  return metrics;
}

const FontMetrics* LarkPDF::currentMetrics() {
  if (style_.metrics) return style_.metrics;
  if (!style_.font.empty())
    style_.metrics = metricsOf(style_.font);
  else if (fonts_.size() > 0)
    style_.metrics = metricsOf(fonts_.name(1));
  return style_.metrics;
}

double LarkPDF::widthOf(std::string_view bytes, double size) {
  const FontMetrics* metrics = currentMetrics();
  return metrics ? stringWidth(*metrics, bytes, size) : 0;
}

double LarkPDF::PDFGetStringWidth(std::string_view text, std::string_view font, double size) {
  const FontMetrics* metrics = font.empty() ? currentMetrics() : metricsOf(std::string(font));
  return metrics ? stringWidth(*metrics, oneByte(text), size) : 0;
}

void LarkPDF::PDFTextOut(std::string_view text, double x, double y) {
  if (!isOpen()) return;
  if (x == 0) x = x_.get();
  if (y == 0) y = y_;
  const std::string_view bytes = oneByte(text);
  addText(content_, bytes, place(leftMargin_ + x, y));
  moveOn(bytes, x, y);
}

// The size is points, and is added to user units all the same.
void LarkPDF::moveOn(std::string_view bytes, double x, double y) {
  x_.setEnd(x, bytes, currentMetrics(), style_.size);
  y_ = y + style_.size;
}

void LarkPDF::addText(Content& to, std::string_view bytes, Point at) {
  if (style_.coloured) to << "q " << style_.colour << ' ';
  to << "%DEBUT_TEXT/%\r\nBT ";
  if (style_.rotation != 0) {
    const double angle = style_.rotation * kPi / 180;
    const double across = std::cos(angle);
    const double up = std::sin(angle);
    to << across << ' ' << up << ' ' << -up << ' ' << across << ' ' << at.x << ' ' << at.y << " Tm ";
  } else {
    to << at.x << ' ' << at.y << " Td ";
  }
  to << "/F" << style_.number << ' ' << writtenSize() << " Tf ";
  to.quoted(bytes) << " Tj ET\r\n";
  if (style_.underline) addUnderline(to, bytes, at);
  if (style_.coloured) to << "Q\r\n";
  to << "%FIN_TEXT/%\r\n";
  style_.rotation = 0;
  style_.underline = false;
}

void LarkPDF::addUnderline(Content& to, std::string_view bytes, Point at) {
  const FontMetrics* metrics = currentMetrics();
  if (!metrics) return;
  const double thousandth = writtenSize() / 1000.0;
  to << at.x << ' ' << at.y + metrics->underlinePosition * thousandth << ' '
     << stringWidth(*metrics, bytes, writtenSize()) << ' ' << -metrics->underlineThickness * thousandth
     << " re f\r\n";
}

}  // namespace zephon
