#include "pdf/colour.h"

#include <algorithm>
#include <charconv>

#include "pdf/content.h"

namespace zephon {
namespace {

constexpr int kMost = 255;
constexpr std::size_t kDigits = 6;

std::optional<std::array<int, 3>> fromHex(std::string_view hex) {
  if (hex.starts_with('#')) hex.remove_prefix(1);
  unsigned value = 0;
  const auto [end, error] = std::from_chars(hex.data(), hex.data() + hex.size(), value, 16);
  if (hex.size() != kDigits || error != std::errc{} || end != hex.data() + hex.size()) return {};
  return std::array{static_cast<int>(value >> 16), static_cast<int>(value >> 8 & 0xFF),
                    static_cast<int>(value & 0xFF)};
}

}  // namespace

PdfColour::PdfColour(int red, int green, int blue)
    : rgb_{std::clamp(red, 0, kMost), std::clamp(green, 0, kMost), std::clamp(blue, 0, kMost)} {}

PdfColour::PdfColour(std::string_view hex) {
  if (hex.empty()) return;
  const auto rgb = fromHex(hex);
  valid_ = rgb.has_value();
  if (rgb) rgb_ = *rgb;
}

std::string PdfColour::operation(std::string_view name) const {
  Content text;
  for (const int channel : rgb_) text.fixed(static_cast<double>(channel) / kMost, 3) << ' ';
  text << name;
  return text.string();
}

}  // namespace zephon
