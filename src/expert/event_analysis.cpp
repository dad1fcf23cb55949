#include "expert/event_analysis.h"

#include <cmath>

#include "expert/trend_statistics.h"
#include "protocol/event_codes.h"

namespace zephon {
namespace {

constexpr std::size_t kCode = 6;
constexpr std::size_t kFewest = 3;  // events that tell more than that there were some

// Event codes that are looked at together; the same one twice for one.
struct Codes {
  int one, other;
};

// What a family of events raises.
struct Family {
  Slots seen = {};       // there is any of them
  Slots regular = {};    // they come at steady intervals
  Slots irregular = {};  // they don't
  Slots lasting = {};    // there are three or more, not regular, and they don't become fewer
  Slots fading = {};     // the same, and they do
};

// The rows of a family, the last row of the log among them.
Seen eventsOf(const Pass& pass, Codes codes) {
  Seen seen;
  for (std::size_t row = 0; row < pass.log.rows(); ++row) {
    const double code = pass.log.at(kCode, row);
    if (!std::isfinite(code)) return {.failed = true};
    if (code == codes.one || code == codes.other) seen.rows.push_back(row);
  }
  seen.holds = !seen.rows.empty();
  return seen;
}

bool areRegular(const Pass& pass, Codes codes) {
  return isRegular(pass.logs, pass.kind, codes.one, codes.other, pass.device.modelLine);
}

bool areFading(const Pass& pass, Codes codes) {
  const Series series = movingMean(pass.logs, pass.kind, codes.one, codes.other);
  return getSlope(pass.kind, series, pass.device.modelLine) < 0;
}

// Holds for so many events, when they meet a condition too.
template <class Condition>
Question events(Codes codes, std::size_t fewest, Condition condition) {
  return [codes, fewest, condition](const Pass& pass) {
    Seen seen = eventsOf(pass, codes);
    seen.holds = seen.rows.size() >= fewest && condition(pass, codes);
    return seen;
  };
}

Rule family(Codes codes, const Family& raises) {
  const auto always = [](const Pass&, Codes) { return true; };
  const auto irregular = [](const Pass& pass, Codes c) { return !areRegular(pass, c); };
  const auto lasting = [](const Pass& pass, Codes c) { return !areRegular(pass, c) && !areFading(pass, c); };
  const auto fading = [](const Pass& pass, Codes c) { return !areRegular(pass, c) && areFading(pass, c); };
  return {{events(codes, 1, always), raises.seen},
          {events(codes, kFewest, areRegular), raises.regular},
          {events(codes, 1, irregular), raises.irregular},
          {events(codes, kFewest, lasting), raises.lasting},
          {events(codes, kFewest, fading), raises.fading}};
}

Seen overloadsCounted(const Pass& pass) {
  return {.holds = pass.device.overloads > 0};
}

constexpr Codes only(int code) {
  return {code, code};
}

constexpr Codes kOverload = only(event::kCurrentOverload);
constexpr Codes kSurge = only(event::kSurge);
constexpr Codes kOverVoltage = {event::kOverVoltageRecord, event::kOverVoltageShutdown};
constexpr Codes kUnderVoltage = {event::kUnderVoltageShutdown, event::kUnderVoltageRecord};
constexpr Codes kOutage = only(event::kPowerOutage);
constexpr Codes kEndOfUnderVoltageRecord = only(event::endOf(event::kUnderVoltageRecord));
constexpr Codes kEndOfUnderVoltageShutdown = only(event::endOf(event::kUnderVoltageShutdown));
constexpr Codes kEndOfSurge = only(event::endOf(event::kSurge));

}  // namespace

const std::vector<Rule>& eventRules() {
  static const std::vector<Rule> rules = {
      family(kOverload, {.regular = {0, 1, 2}, .irregular = {3}, .lasting = {4}, .fading = {5, 0}}),
      family(kSurge, {.regular = {0, 6}, .lasting = {7, 8}, .fading = {5, 9, 10}}),
      family(kOverVoltage, {.seen = {12, 13}, .regular = {11}, .lasting = {12, 13}, .fading = {14}}),
      {{overloadsCounted, {12, 13}}},
      family(kUnderVoltage, {.regular = {15}, .lasting = {16, 17, 13}, .fading = {14, 18}}),
      family(kOutage, {.regular = {19}, .lasting = {20, 21, 22}, .fading = {14}}),
      family(kEndOfUnderVoltageRecord, {.seen = {23}}),
      family(kEndOfUnderVoltageShutdown, {.seen = {3, 24}}),
      family(kEndOfSurge, {.regular = {25}, .lasting = {26}, .fading = {14, 27}}),
  };
  return rules;
}

Analysis expertTS(const Logs& logs, const LoggedDevice& device) {
  return askRules(eventRules(), {logs, LogView(logs.tsData), kTimestamp, device});
}

}  // namespace zephon
