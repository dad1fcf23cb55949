#pragma once

namespace zephon::simulator {

// The converter of a second-line device. It counts whole numbers and is far from linear; these are its
// characteristics, from true volts to the mean count, fraction kept.

// The line-to-ground input ("v").
//   120 V device: 6 counts for every 5 volts, through 125 counts at 120 V, and steeper by 4 volts below 26 V.
//   240 V device: the divider gives 1 count for 1.485 volts, through 126 counts at 208 V. Its rectifier adds
//     1 to 4 volts from 228 V up and 1 to 6 volts below 160 V, and below 94 V it stops falling as the line
//     does: at 40 V it still sees 54. Wired centre-tapped it is fed 10 V less.
// Counts below zero are possible at the low end.
double lineGroundCount(double volts, int rating, bool centreTapped);

// The neutral-to-ground input ("p"): a count a volt, one less from 4 V up.
double neutralGroundCount(double volts);

}  // namespace zephon::simulator
