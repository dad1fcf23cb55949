#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "expert/log_view.h"

namespace zephon {

// The line voltage that an analysis assumes.

// Of a device rated for 120 V that; of any other what the mean of a column of line voltages below U tells:
// 240 V from 235 on, 230 V from 220 on, 208 V from 190 on, below that what it is rated for. Nothing when
// there is no such mean.
std::optional<std::int16_t> guessedVolts(const LogView& log, std::size_t column, std::int16_t nominalVolts);

// The question to the user, who is shown the guess as the answer.
inline constexpr char kVoltageTitle[] = "Nominal Voltage";
std::string voltageQuestion(std::int16_t guessed);

// The voltage after the question. The answer counts by the number at its start, cut to a whole one; without a
// number, or without an answer, the guess stands. Below 100 and from 261 on the device's rating comes back.
std::int16_t answeredVolts(const std::optional<std::string>& answer, std::int16_t guessed,
                           std::int16_t nominalVolts);

}  // namespace zephon
