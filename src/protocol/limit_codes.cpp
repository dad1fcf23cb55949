#include "protocol/limit_codes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zephon {
namespace {

// One entry of a list: the bit, 0 for none, and its volts on a 240 V and on a 120 V device.
struct LimitCode {
  int bit;
  std::int16_t at240;
  std::int16_t at120;
};
// In the order of the tests, which decides where more than one bit is set; the entry without a bit is last.
using LimitCodes = std::array<LimitCode, 5>;

constexpr LimitCodes OVreCodes = {
    {{8, 300, 160}, {4, 290, 150}, {2, 280, 145}, {1, 270, 140}, {0, 260, 135}}};
constexpr LimitCodes UVreCodes = {{{8, 140, 80}, {4, 150, 85}, {2, 160, 90}, {1, 170, 95}, {0, 180, 100}}};
constexpr LimitCodes OVcoCodes = {
    {{1, 270, 135}, {2, 280, 140}, {4, 290, 145}, {8, 300, 160}, {0, 260, 150}}};
constexpr LimitCodes UVcoCodes = {{{1, 0, 0}, {2, 150, 85}, {4, 160, 90}, {8, 170, 95}, {0, 140, 80}}};

std::int16_t voltsOf(const LimitCode& code, std::int16_t nominalVolts) {
  return nominalVolts == 240 ? code.at240 : code.at120;
}

std::int16_t overVoltageRestore(int shutdownBit, std::int16_t nominalVolts) {
  if (nominalVolts == 240) return shutdownBit == 0 ? 250 : 260;
  return shutdownBit == 1 ? 130 : shutdownBit == 2 ? 135 : 140;
}

constexpr int kWireBase = 30;  // in decimal digits, which stand for hexadecimal ones: 0x30

// Two decimal digits taken as hexadecimal.
char packed(int number) {
  return static_cast<char>(number / 10 * 16 + number % 10);
}

// The entry that a digit, 0 to 15, picks.
const LimitCode& codeOfDigit(const LimitCodes& codes, int digit) {
  const auto set = std::find_if(codes.begin(), codes.end(),
                                [digit](const LimitCode& code) { return (code.bit & digit) != 0; });
  return set == codes.end() ? codes.back() : *set;
}

// The digit of a voltage of either rating.
std::optional<int> digitOfVolts(const LimitCodes& codes, double volts) {
  for (const LimitCode& code : codes) {
    if (volts == code.at240 || volts == code.at120) return code.bit;
  }
  return std::nullopt;
}

// The sum in decimal gives the right hexadecimal digits as long as the left digit is 0, 1, 2 or 4.
std::optional<char> limitWireByte(std::optional<int> left, std::optional<int> right) {
  if (left == 8) return static_cast<char>(right ? 0xB0 + *right : 0x0B);
  if (!left && !right) return std::nullopt;
  const int pair = left && right ? *left * 10 + *right : left.value_or(right.value_or(0));
  return packed(pair + kWireBase);
}

}  // namespace

double nearestListed(std::size_t which, std::int16_t nominalVolts, double volts) {
  const LimitCodes* codes = which == editor::OVco   ? &OVcoCodes
                            : which == editor::OVre ? &OVreCodes
                            : which == editor::UVre ? &UVreCodes
                            : which == editor::UVco ? &UVcoCodes
                                                    : nullptr;
  if (codes == nullptr) return volts;
  double nearest = voltsOf(codes->front(), nominalVolts);
  for (const LimitCode& code : *codes) {
    const double listed = voltsOf(code, nominalVolts);
    if (std::fabs(listed - volts) < std::fabs(nearest - volts)) nearest = listed;
  }
  return nearest;
}

Limits limitsOfBytes(std::uint8_t byte254, std::uint8_t byte255, std::int16_t nominalVolts) {
  const LimitCode& OVco = codeOfDigit(OVcoCodes, byte255 >> 4);
  Limits limits;
  limits.UVco = voltsOf(codeOfDigit(UVcoCodes, byte255 & 15), nominalVolts);
  limits.UVre = voltsOf(codeOfDigit(UVreCodes, byte254 & 15), nominalVolts);
  limits.UVrs = nominalVolts == 240 ? 190 : 105;
  limits.OVrs = overVoltageRestore(OVco.bit, nominalVolts);
  limits.OVre = voltsOf(codeOfDigit(OVreCodes, byte254 >> 4), nominalVolts);
  limits.OVco = voltsOf(OVco, nominalVolts);
  return limits;
}

std::optional<LimitWireBytes> limitWireBytes(const LimitValues& volts) {
  const auto cutoffs = limitWireByte(digitOfVolts(OVcoCodes, volts[editor::OVco]),
                                     digitOfVolts(UVcoCodes, volts[editor::UVco]));
  const auto records = limitWireByte(digitOfVolts(OVreCodes, volts[editor::OVre]),
                                     digitOfVolts(UVreCodes, volts[editor::UVre]));
  if (!cutoffs || !records) return std::nullopt;
  return LimitWireBytes{*cutoffs, *records};
}

}  // namespace zephon
