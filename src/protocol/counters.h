#pragma once

#include <array>
#include <optional>

#include "form/main.h"

namespace zephon {

// The disturbance counters: reading, showing and clearing them.

// A class of disturbance with its text box and its legend.
struct CountClass {
  std::int32_t Counters::*count;
  TextBox MeasurementElements::*box;
  Label MeasurementElements::*legend;
  bool inImage;  // the second line counts it too
};
// In the order of recSlide's pointers, from the first.
extern const std::array<CountClass, 7> kCountClasses;
// Whether the device counts it: overloads from firmware 1.GB0 on, and four classes on the second line.
bool isCounted(const Link& link, const CountClass& one);

// The values of recSlide's stacked pointers 1 to 7: overloads, outages, under voltage shutdown and record,
// over voltage record and shutdown, surges. Each class's share is a whole percentage by itself, so the top
// may come out as 99 or 101. The second line (modelLine 1) counts outages, the two records and surges only;
// its other pointers stay where they are: nothing.
using StackedShares = std::array<std::optional<double>, 7>;
StackedShares stackedShares(const Counters& counters, std::int16_t modelLine);

// The sum of what the second line counts; nothing when it does not fit 16 bits.
std::optional<std::int16_t> imageTotal(const Counters& counters);

// Puts what the model line counts into the bar and the text boxes.
void showCounts(Main& main);

// The text boxes are now of before a failure.
void markCountsStale(Main& main);

// First line: reads and shows the counters. A failed one is set to 0 and ends it with false; those before it
// stay as read. Firmware before 1.GB0 counts no overloads: olCount keeps what it held.
bool getPDevents(Main& main);

// Clear the counters, or the time-stamped log. False when the device does not confirm; the second line does
// both at once and confirms nothing.
bool setClrPDCounts(Main& main);
bool setClrTSdata(Main& main);

}  // namespace zephon
