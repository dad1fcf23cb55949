#include "expert/line_voltage.h"

#include <array>
#include <cmath>

#include "expert/questions.h"
#include "text/number.h"

namespace zephon {
namespace {

constexpr std::int16_t kLowRating = 120;
constexpr double kLeastVolts = 100;
constexpr double kTooManyVolts = 261;

struct Supply {
  double from;
  std::int16_t volts;
};
constexpr std::array<Supply, 3> kSupplies = {{{235, 240}, {220, 230}, {190, 208}}};

}  // namespace

std::optional<std::int16_t> guessedVolts(const LogView& log, std::size_t column, std::int16_t nominalVolts) {
  if (nominalVolts == kLowRating) return kLowRating;
  const auto mean = columnMean(log, column);
  if (!mean) return {};
  for (const Supply& supply : kSupplies) {
    if (*mean >= supply.from) return supply.volts;
  }
  return nominalVolts;
}

std::string voltageQuestion(std::int16_t guessed) {
  return "The Expert Analysis will use a nominal line voltage of " + std::to_string(guessed) +
         "V. If this is incorrect, enter a new value.";
}

std::int16_t answeredVolts(const std::optional<std::string>& answer, std::int16_t guessed,
                           std::int16_t nominalVolts) {
  const double volts = std::trunc(leadingNumber(answer.value_or("")).value_or(guessed));
  if (volts < kLeastVolts || volts >= kTooManyVolts) return nominalVolts;
  return static_cast<std::int16_t>(volts);
}

}  // namespace zephon
