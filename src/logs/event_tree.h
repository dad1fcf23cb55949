#pragma once

#include "form/logs.h"
#include "logs/dated_tree.h"

namespace zephon {

// The colours that the legend of the disturbance bar gives to power outages, under voltage shutdown and record,
// over voltage record and shutdown.
using LegendColours = std::array<Colour, 5>;

// The tree of the event log: years, months, days, and an event a leaf, such as
// "14:02:07 Over Voltage (Magnitude = 133)".
class EventTree : public DatedTree {
 public:
  // The table has to outlive the tree, and to stay as it is.
  EventTree(const LogTable<8>& events, const LegendColours& legend, std::span<const std::string> dict);

 protected:
  std::string rowText(std::size_t row) const override;
  std::string leafText(std::size_t row, std::size_t leaf) const override;
  Colour rowColour(std::size_t row) const override;

 private:
  const LogTable<8>& events_;
  LegendColours legend_;
};

// True when a code comes with a magnitude that is worth telling: not an outage, a surge or the end of any
// event.
bool hasMagnitude(double code);

}  // namespace zephon
