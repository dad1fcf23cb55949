#include "pdf/jpeg_header.h"

#include <algorithm>
#include <array>
#include <optional>

namespace zephon {
namespace {

constexpr int kStart = 0xFFD8;
constexpr int kEnd = 0xFFD9;
constexpr int kFill = 0xFFFF;  // ends the walk
constexpr int kScan = 0xFFDA;  // no segments behind it, only the picture
constexpr int kJfif = 0xFFE0;
constexpr std::array<int, 7> kFrames = {0xFFC0, 0xFFC1, 0xFFC2, 0xFFC3, 0xFFC5, 0xFFC6, 0xFFC7};

constexpr std::array<std::string_view, 3> kDensityUnits = {"Dots", "Dots/inch (DPI)", "Dots/cm"};

int byteAt(std::string_view bytes, std::size_t i) {
  return static_cast<unsigned char>(bytes[i]);
}

int wordAt(std::string_view bytes, std::size_t i) {
  return byteAt(bytes, i) << 8 | byteAt(bytes, i + 1);
}

// A segment's marker and what stands behind its length.
struct Segment {
  int marker = 0;
  std::string_view body;
};

// The next segment; nothing where the walk ends, by a marker or by what is no segment.
std::optional<Segment> nextSegment(std::string_view& rest) {
  if (rest.size() < 4) return {};
  const int marker = wordAt(rest, 0);
  const auto length = static_cast<std::size_t>(wordAt(rest, 2));
  if (marker < 0xFF00 || marker == kFill || marker == kScan) return {};
  if (length < 2 || rest.size() - 2 < length) return {};
  const Segment segment{marker, rest.substr(4, length - 2)};
  rest.remove_prefix(2 + length);
  return segment;
}

// "JFIF", zero, version (2), unit (1), density across (2) and down (2). False for a unit that there isn't.
bool readDensity(JpegHeader& header, std::string_view body) {
  if (body.size() < 12 || !body.starts_with("JFIF")) return true;
  const auto unit = static_cast<std::size_t>(byteAt(body, 7));
  if (unit >= kDensityUnits.size()) return false;
  header.densityUnit = kDensityUnits[unit];
  header.densityX = wordAt(body, 8);
  header.densityY = wordAt(body, 10);
  return true;
}

// Bits (1), height (2), width (2), components (1).
void readFrame(JpegHeader& header, std::string_view body) {
  if (body.size() < 6) return;
  header.bitsPerComponent = byteAt(body, 0);
  header.height = wordAt(body, 1);
  header.width = wordAt(body, 3);
  const int components = byteAt(body, 5);
  header.colourSpace = components == 1 ? "DeviceGray" : components == 4 ? "DeviceCMYK" : "DeviceRGB";
}

JpegHeader faulty(JpegFault fault) {
  JpegHeader header;
  header.fault = fault;
  return header;
}

}  // namespace

JpegHeader readJpegHeader(std::string_view file) {
  if (file.empty()) return faulty(JpegFault::Empty);
  if (file.size() < 4 || wordAt(file, 0) != kStart || wordAt(file, file.size() - 2) != kEnd)
    return faulty(JpegFault::Markers);
  JpegHeader header;
  for (std::string_view rest = file.substr(2, file.size() - 4); const auto segment = nextSegment(rest);) {
    if (segment->marker == kJfif && !readDensity(header, segment->body)) return faulty(JpegFault::Density);
    if (std::ranges::find(kFrames, segment->marker) != kFrames.end()) readFrame(header, segment->body);
  }
  return header.width > 0 && header.height > 0 ? header : faulty(JpegFault::NoFrame);
}

}  // namespace zephon
