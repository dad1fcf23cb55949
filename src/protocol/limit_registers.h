#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "protocol/limit_editors.h"

namespace zephon {

// The first line has a register of one byte for each limit, always on the 120 V basis; the overload record
// point is amps and never scaled.

// A register's volts at the line's real scale, ties to even. Nothing outside 16 bits.
std::optional<std::int16_t> limitOfRegister(std::int32_t raw, std::int16_t nominalVolts);

// What is written for the editors' values: scaled, ties to even, the restore points then held inside what the
// device takes. Nothing when a value does not fit its byte.
std::optional<PerEditor<std::uint8_t>> limitRegisters(const LimitValues& values, std::int16_t nominalVolts,
                                                      std::string_view firmware);

}  // namespace zephon
