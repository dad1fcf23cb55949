#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace zephon {

// A colour as callers give it: three numbers 0 to 255 (others count as the nearest of these), or six
// hexadecimal digits with or without "#" before them. None, or an empty text, is black.
class PdfColour {
 public:
  PdfColour() = default;
  PdfColour(int red, int green, int blue);
  PdfColour(const std::array<int, 3>& rgb) : PdfColour(rgb[0], rgb[1], rgb[2]) {}
  PdfColour(std::string_view hex);
  PdfColour(const char* hex) : PdfColour(std::string_view(hex)) {}

  // False for a text that is no colour, which then stands as black.
  bool valid() const { return valid_; }
  // The operator that sets it: three numbers such as "1.000 0.753 0.796", a blank, and "rg" or "RG".
  std::string operation(std::string_view name) const;

 private:
  std::array<int, 3> rgb_{};
  bool valid_ = true;
};

}  // namespace zephon
