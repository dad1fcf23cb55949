#include <algorithm>

#include "pdf/lark_pdf.h"

namespace zephon {
namespace {

constexpr std::size_t kMostLinks = 1000;  // a page
constexpr std::string_view kLinkColour = "0000FF";
constexpr double kBaseline = 0.3;       // of the font's size, below the middle of a figure
constexpr double kBelowBaseline = 0.2;  // of the font's size, where a text's area begins

struct LinkWords {
  std::string_view heading;
  std::string_view fault;
  std::string_view consequence;
};
constexpr LinkWords kText = {"Url Link - ", "Invalid URL link : ", "Unable to include link."};
constexpr LinkWords kImage = {"Url Link Image - ",
                              "Invalid URL image object: ", "Unable to include URL image."};
constexpr LinkWords kRectangle = {"Url Link Rectangle - ",
                                  "Invalid URL rectangle: ", "Unable to include URL rectangle."};
constexpr LinkWords kEllipse = {"Url Link Ellipse - ",
                                "Invalid URL Ellipse : ", "Unable ot include URL Ellipse."};

// An address is visible ASCII, without blanks.
bool isAddress(std::string_view url) {
  return !url.empty() && std::ranges::all_of(url, [](char c) { return c > ' ' && c < 0x7F; });
}

}  // namespace

void LarkPDF::PDFLink(std::string_view text, std::string_view url, double x, double y,
                      std::string_view kind) {
  if (!isOpen()) return;
  if (x == 0) x = x_.get();
  if (y == 0) y = y_;
  const LinkKind place = kind == "RECTANGLE" ? LinkKind::Rectangle
                         : kind == "ELLIPSE" ? LinkKind::Ellipse
                         : kind == "CELL"    ? LinkKind::Cell
                                             : LinkKind::Text;
  addLink({text, url}, place, x, y);
}

void LarkPDF::linkFigure(const PdfLink& link, LinkKind kind, double x, double y) {
  if (!link.text.empty() || !link.url.empty()) addLink(link, kind, x, y);
}

void LarkPDF::addLink(const PdfLink& link, LinkKind kind, double x, double y) {
  const std::string bytes = toWindows1252(link.text);
  const Point at = linkTextPlace(bytes, kind, x, y);
  content_ << "%DEBUT_LINK/%" << kCrLf;
  const std::string before = style_.colour;
  PDFSetTextColor(kLinkColour);
  addText(content_, bytes, at);
  style_.colour = before;
  content_ << "%FIN_LINK/%" << kCrLf;
  moveOn(bytes, x, y);
  addLinkArea(linkArea(bytes, kind, place(x, y), at), link.url, kind);
}

Point LarkPDF::linkTextPlace(std::string_view bytes, LinkKind kind, double x, double y) {
  const Point corner = place(x, y);
  const double below = kBaseline * writtenSize();
  switch (kind) {
    case LinkKind::Rectangle:
      return {corner.x + (figure_.width - widthOf(bytes, writtenSize())) / 2,
              corner.y - figure_.height / 2 - below};
    case LinkKind::Ellipse:
      return {corner.x - widthOf(bytes, writtenSize()) / 2, corner.y - below};
    case LinkKind::Cell:
      return {corner.x + figure_.width + cellMargin_, corner.y - figure_.height / 2 - below};
    default:
      return place(leftMargin_ + x, y);
  }
}

// The whole figure, or the text where it stands by itself.
Box LarkPDF::linkArea(std::string_view bytes, LinkKind kind, Point corner, Point text) {
  if (kind == LinkKind::Rectangle)
    return {corner.x, corner.y - figure_.height, figure_.width, figure_.height};
  if (kind == LinkKind::Ellipse)
    return {corner.x - figure_.width / 2, corner.y - figure_.height / 2, figure_.width, figure_.height};
  const double size = writtenSize();
  return {text.x, text.y - kBelowBaseline * size, widthOf(bytes, writtenSize()), size};
}

void LarkPDF::addLinkArea(const Box& area, std::string_view url, LinkKind kind) {
  auto& links = pages_.back().links;
  if (isAddress(url) && links.size() < kMostLinks) {
    links.push_back({area.x, area.y, area.width, area.height, std::string(url)});
    return;
  }
  const LinkWords& words = kind == LinkKind::Image       ? kImage
                           : kind == LinkKind::Rectangle ? kRectangle
                           : kind == LinkKind::Ellipse   ? kEllipse
                                                         : kText;
  tell(words.heading,
       std::string(words.fault) + std::string(url) + std::string(kCrLf) + std::string(words.consequence));
}

}  // namespace zephon
