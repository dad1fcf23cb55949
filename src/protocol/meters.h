#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "form/main.h"
#include "protocol/commands.h"

namespace zephon {

// The seven meters of the measurement page, as data, and the rules for what they show. A reading is single
// precision and already rounded to the meter's decimals.

enum class MeterId { Vln, I, P, Vng, F, PF, CF };

// How a reading becomes text. At exactly `split` the label is left as it stood.
struct LabelRule {
  std::string_view below;
  std::string_view above;
  float split;
};

struct Meter {
  MeterId id;
  std::string_view unit;      // what a label shows of a meter that is off
  const DeviceCommand* read;  // first line: a fraction of full scale
  float fullScale;            // crest factor: of the peak volts
  int decimals;
  LabelRule label;
  float pointerStep;  // the pointer moves for a greater change only
  float Readings::*latest;
  Slider MeasurementElements::*slider;
  Label MeasurementElements::*text;
};

// In the order of the polling pass.
extern const std::array<Meter, 7> kMeters;
const Meter& meterOf(MeterId id);

// The text of a reading with its unit, " V" and so on; nothing where the label is left as it stood.
std::optional<std::string> readingText(const Meter& meter, float reading);

// A colour by where a reading lies: green within the inner bounds, yellow within the outer ones, else red.
// Bounds belong to their ranges.
struct Bands {
  float greenFrom;
  float greenTo;
  float yellowFrom;
  float yellowTo;
  bool operator==(const Bands&) const = default;
};
Colour colourIn(const Bands& bands, float reading);

// The bounds of a meter on a device of these limits and this rating; for the frequency, around the nominal
// that the reading is near. Nothing where the pointer keeps its colour.
std::optional<Bands> bandsOf(MeterId id, float reading, const Limits& limits, int nominalVolts);

// 50 or 60.
int nominalHertz(float hertz);
// The axis that a meter takes with this reading; nothing where it never changes.
std::optional<Slider::Axis> axisOf(MeterId id, float reading);

}  // namespace zephon
