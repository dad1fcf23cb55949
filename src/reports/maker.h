#pragma once

#include <string_view>

namespace zephon {

// The maker's own values, which reports and help show.
inline constexpr std::string_view kMakerWeb = "https://www.zephon.example";
inline constexpr std::string_view kMakerTelephone = "+1 800 555 0142";
inline constexpr std::string_view kMakerCopyright = "\u00A9 2026 Zephon Power Conditioning";

}  // namespace zephon
