#pragma once

#include "form/logs.h"
#include "protocol/day_serial.h"
#include "protocol/device_date.h"
#include "protocol/encodings.h"
#include "text/number.h"
#include "text/picture.h"
#include "text/strings.h"

// Values of the logs decoded the long way, through texts at every step: what the quick decoders are held
// against.
namespace zephon::testing_support {

using Text = std::string;

inline double numberOf(const Text& text) {
  return numberAtStart(text);
}

inline double throughPicture(double value, const char* picture) {
  return numberOf(formatPicture(value, picture));
}

// A half hour's columns 6 to 11. The averages are corrected by the ratio of a half hour to the row's length.
inline std::array<double, 6> slowHalfHour(const Text& record, int volts, double ratio) {
  const auto word = [&](std::size_t at) { return Text{record[at + 1], record[at]}; };
  const auto fraction = [&](std::size_t at) { return unscaledFraction(record.substr(at, 1), false); };
  const double powerSum = decodeDecimal(word(14)) * 4294967296.0;
  const double voltageSum = decodeDecimal(word(10)) * 65536.0;
  const auto peak = static_cast<std::int16_t>(decodeDecimal(word(12)));
  const double watts = throughPicture(powerSum / 36000 / 16777216 * 1024, "###0.00");
  const double average = throughPicture(voltageSum / 36000 / 65536 * 512, "#00.00");
  return {throughPicture(ratio * watts, "###0.00"),
          peak / 65536.0 * 262144,
          throughPicture(ratio * average, "#00.00"),
          throughPicture(fraction(9) * 256 * volts / 120, "#00.00"),
          throughPicture(fraction(8) * 256 * volts / 120, "#00.00"),
          throughPicture(unscaledFraction(word(6), false) * 256, "#0.000")};
}

// A sample's columns 1 to 8.
inline std::array<double, 8> slowSample(const Text& block) {
  const auto field = [&](std::size_t at, std::size_t bytes, bool isSigned) {
    return unscaledFraction(block.substr(at, bytes), isSigned);
  };
  const double crest = bcdByte(static_cast<std::uint8_t>(block[14])) + roundDecimals(field(15, 1, true), 3);
  const float energy = static_cast<float>(field(16, 4, false)) * 232.0f;
  return {throughPicture(roundDecimals(field(0, 2, false) * 512, 2), "##0.00"),
          throughPicture(roundDecimals(field(2, 2, false) * 256, 3), "##0.0000"),
          throughPicture(roundDecimals(field(4, 2, true) * 262144, 2), "0.0"),
          throughPicture(roundDecimals(field(6, 3, false) * 65536, 3), "##0.000"),
          throughPicture(roundDecimals(field(9, 3, false) * 8000, 2), "00.00"),
          throughPicture(roundDecimals(field(12, 1, true) * 2, 3), "0.000"),
          throughPicture(crest, "0.000"),
          numberOf(formatPicture(energy, "###0.0000"))};
}

}  // namespace zephon::testing_support
