#include "protocol/limit_registers.h"

#include <algorithm>

#include "protocol/firmware_gates.h"
#include "text/number.h"

namespace zephon {
namespace {

constexpr double kBasisVolts = 120;
constexpr std::int16_t kHighRestoreFloor = 130;
constexpr std::int16_t kLowRestoreFloor = 110;
constexpr std::int16_t kRestoreCeiling = 110;

}  // namespace

std::optional<std::int16_t> limitOfRegister(std::int32_t raw, std::int16_t nominalVolts) {
  return toInt16(raw * (nominalVolts / kBasisVolts));
}

std::optional<PerEditor<std::uint8_t>> limitRegisters(const LimitValues& values, std::int16_t nominalVolts,
                                                      std::string_view firmware) {
  if (nominalVolts <= 0) return std::nullopt;
  const double scale = kBasisVolts / nominalVolts;
  PerEditor<std::uint8_t> bytes{};
  for (std::size_t i = 0; i < values.size(); ++i) {
    auto value = toInt16(i == editor::OLre ? values[i] : values[i] * scale);
    if (!value) return std::nullopt;
    if (i == editor::OVrs) {
      value = std::max(*value, hasHighOverVoltageFloor(firmware) ? kHighRestoreFloor : kLowRestoreFloor);
    }
    if (i == editor::UVrs) value = std::min(*value, kRestoreCeiling);
    if (*value < 0 || *value > 255) return std::nullopt;
    bytes[i] = static_cast<std::uint8_t>(*value);
  }
  return bytes;
}

}  // namespace zephon
