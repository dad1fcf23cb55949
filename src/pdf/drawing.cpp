#include "pdf/drawing.h"

#include <utility>

namespace zephon {
namespace {

constexpr std::pair<std::string_view, std::string_view> kModes[] = {{"D", "S"}, {"DB", "B"}, {"", "s"},
                                                                    {"B", "B"}, {"f", "f"},  {"h f", "h f"}};

constexpr std::array<std::string_view, 5> kStyles = {"[] 0 d", "[6 3 ] 0 d", "[1 2 ] 0 d", "[6 3 1 3 ] 0 d",
                                                     "[6 3 1 3 1 3 ] 0 d"};

// How far the control points of a quarter circle lie from its ends, in radii.
constexpr double kQuarter = 0.5522847498;

Content& operator<<(Content& to, Point at) {
  return to << at.x << ' ' << at.y;
}

}  // namespace

std::optional<std::string_view> paintOperator(std::string_view mode) {
  for (const auto& [name, operation] : kModes)
    if (name == mode) return operation;
  return {};
}

std::optional<std::string_view> dashOperator(int style) {
  if (style < 0 || style >= static_cast<int>(kStyles.size())) return {};
  return kStyles[static_cast<std::size_t>(style)];
}

void addEllipse(Content& to, Point centre, double across, double up) {
  constexpr Point kTurns[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}, {1, 0}};
  const auto at = [&](double x, double y) { return Point{centre.x + x * across, centre.y + y * up}; };
  to << at(1, 0) << " m" << kCrLf;
  for (std::size_t i = 0; i + 1 < std::size(kTurns); ++i) {
    const Point a = kTurns[i];
    const Point b = kTurns[i + 1];
    to << at(a.x + kQuarter * b.x, a.y + kQuarter * b.y) << ' '
       << at(b.x + kQuarter * a.x, b.y + kQuarter * a.y) << ' ' << at(b.x, b.y) << " c" << kCrLf;
  }
}

void addPolygon(Content& to, std::span<const Point> points) {
  if (points.size() < 2) return;
  to << points.front() << " m" << kCrLf;
  for (const Point& point : points.subspan(1)) to << point << " l" << kCrLf;
  to << points.front() << " l" << kCrLf;
}

void addLine(Content& to, Point from, Point end) {
  to << from << " m" << kCrLf << end << " l" << kCrLf;
}

void addBox(Content& to, const Box& box) {
  to << box.x << ' ' << box.y << ' ' << box.width << ' ' << box.height << " re " << kCrLf;
}

}  // namespace zephon
