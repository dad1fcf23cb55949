#pragma once

#include <cstdint>
#include <string_view>

namespace zephon {

// Why a file is no picture that can be shown.
enum class JpegFault { None, Empty, Markers, Density, NoFrame };

// What a JPEG file says of itself before its picture begins.
struct JpegHeader {
  JpegFault fault = JpegFault::None;
  int width = 0;  // in picture points
  int height = 0;
  int bitsPerComponent = 0;
  std::string_view colourSpace;  // "DeviceGray", "DeviceRGB", "DeviceCMYK"
  std::string_view densityUnit;  // "Dots", "Dots/inch (DPI)", "Dots/cm"; empty where the file gives none
  int densityX = 0;
  int densityY = 0;
  explicit operator bool() const { return fault == JpegFault::None; }
};

// Reads any bytes: FF D8, segments of a marker and a length of two bytes (the high one first, itself
// counted), FF D9 at the end. Of the segments JFIF (FFE0) and the frame are looked at. A frame without extent
// is none.
JpegHeader readJpegHeader(std::string_view file);

}  // namespace zephon
