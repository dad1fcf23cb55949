#include "files/scope_csv.h"

#include <algorithm>
#include <array>

#include "files/csv_write.h"

namespace zephon {

std::string scopeCsv(const FileStamp& stamp, const ScopeCapture& capture, std::span<const std::string> dict) {
  const std::array<std::span<const double>, 3> channels = {capture.volts, capture.amperes, capture.watts};
  std::size_t samples = 0;
  for (const auto& channel : channels) samples = std::max(samples, channel.size());
  const std::string header = csvHeader(stamp, FileKind::Scope, dictTexts(dict, {56, 139, 140, 141}), dict);
  TextBuffer buffer(header.size() + kRowRoom + samples * 48);
  buffer.add(header);
  for (std::size_t i = 0; i < samples; ++i) {
    char* to = putShortest(buffer.room(kRowRoom), static_cast<double>(i) * capture.samplePeriod);
    for (const auto& channel : channels) {
      *to++ = ',';
      if (i < channel.size()) to = putShortest(to, channel[i]);
    }
    buffer.wrote(putText(to, kLineEnd));
  }
  return buffer.take();
}

}  // namespace zephon
