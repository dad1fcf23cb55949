#pragma once

#include <string>
#include <string_view>

namespace zephon {

// What a model line is called.
inline std::string modelName(int modelLine) {
  return modelLine == 1 ? "Tessara" : "Orvantis";
}
inline std::string productName(int modelLine) {
  return modelName(modelLine) + " PCS";
}

// The ID of the second line's devices, which store none.
inline constexpr std::string_view kSecondLineID = "TessaraPCS";

}  // namespace zephon
