#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "pdf/content.h"

namespace zephon {

// Operators of figures. All lengths are points, from the lower left corner of the page.

struct Point {
  double x = 0;
  double y = 0;
};

struct Box {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

// A draw mode's operator: "D" and none draw the outline (none closes it first), "DB" and "B" outline and
// inside, "f" and "h f" the inside. Nothing for an unknown mode.
std::optional<std::string_view> paintOperator(std::string_view mode);

// 0 solid, 1 dashes, 2 dots, 3 dash and dot, 4 dash and two dots. Nothing for an unknown style.
std::optional<std::string_view> dashOperator(int style);

// From the point at the right of the centre, in four arcs against the clock, with a line end behind each.
void addEllipse(Content& to, Point centre, double across, double up);
// From point to point and back to the first; nothing for fewer than two.
void addPolygon(Content& to, std::span<const Point> points);
void addLine(Content& to, Point from, Point end);
void addBox(Content& to, const Box& box);

}  // namespace zephon
