#pragma once

#include <locale>
#include <string>
#include <string_view>

#include "form/main.h"

namespace zephon {

// The first line's energy total and its cost.

// kWh of the four bytes of the device's register, 8.24 fixed point; a unit of it is 232 kWh.
float energyOf(std::string_view fourBytes);

std::string energyText(float kWh);             // "232.0000"
std::string costText(float kWh, double rate);  // "23.20", two to four decimals
double rateOf(std::string_view text);          // the number that a text starts with; 0 without one

// The currency's sign as it stands before a cost: an amount of 2 in the currency's format (UTF-8), without
// points, commas and zeros, so the digit 2 stays in it. The character set is that of the sign: 0 with a
// dollar, pound or euro, 238 with a z, else 1. They are told by their decimal codes in the joined codes of
// all characters, so a code that happens to hold one of theirs counts as well.
struct CurrencySign {
  std::string text;
  int characterSet = 1;
  bool operator==(const CurrencySign&) const = default;
};
CurrencySign currencySign(std::string_view formattedTwo);

// An amount of 2 in a locale's currency format, as UTF-8.
std::string formattedTwo(const std::locale& locale);

// The sign of the computer's currency, empty but for the digit where it has none or its locale is broken.
// Sets the character set of EnCostLbl.
std::string currencySymbol(Main& main);

// Reads the total; while the measurement page polls, shows it with its date and its cost at the rate typed.
bool getEU(Main& main);

// Clears the total; false when the device does not confirm.
bool setClrEU(Main& main);

}  // namespace zephon
