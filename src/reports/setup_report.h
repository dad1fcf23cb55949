#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "files/file_kind.h"
#include "form/limits.h"

namespace zephon {

// The settings of a device. What a device does not have, or has not told, is left out.
struct DeviceSettings {
  std::optional<Limits> limits;
  std::optional<int> overloadAmps;  // from which an overload is recorded
  std::optional<bool> autoTransmit;
  std::optional<bool> internalChart;
  std::optional<bool> groundDetection;
  std::optional<bool> overloadShutdown;
  std::optional<bool> powerFailHold;
  std::optional<bool> centerTap;  // how the supply is wired: 120/240 with a center tap, or 120/208 in a wye
};

// The settings as a text file in Windows-1252 with CR LF line ends: title, identity, then a line a setting.
std::string setupReport(const FileStamp& stamp, const DeviceSettings& settings,
                        std::span<const std::string> dict);

}  // namespace zephon
