#include "protocol/battery.h"

#include "protocol/dict_text.h"
#include "protocol/encodings.h"
#include "protocol/exchange.h"
#include "text/number.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyBattery = 91;
constexpr double kFullVolts = 3.0;

}  // namespace

std::string batteryText(std::uint8_t reading, std::string_view name) {
  const char byte = static_cast<char>(reading);
  const double volts = roundDecimals(unscaledFraction(std::string_view(&byte, 1), false) * kFullVolts, 2);
  const int percent = toInt32(volts / kFullVolts * 100.0).value_or(0);
  return std::string(name) + ": " + std::to_string(percent) + "%, " + shortestText(volts) + "V";
}

bool getBattery(Main& main) {
  const auto reply = countedQuery(main, orvantis::kBattery);
  if (!reply) return false;
  main.frame.EUlbl.setCaption(
      batteryText(static_cast<std::uint8_t>(reply->front()), dictText(main, kKeyBattery)));
  return true;
}

}  // namespace zephon
