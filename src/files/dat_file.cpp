#include "files/dat_file.h"

#include <algorithm>

#include "files/csv_write.h"
#include "logs/event_log.h"
#include "logs/history_log.h"
#include "text/number.h"
#include "text/picture.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr std::size_t kMostHeader = 9000 - kEventFrameBytes - 2;

std::string_view kindText(FileKind kind) {
  constexpr std::array<std::string_view, 5> kTexts = {"Scope", "", "Time Stamp", "History",
                                                      "Internal Chart Data"};
  return kTexts[static_cast<std::size_t>(kind)];
}

void addLine(std::string& file, std::string_view label, std::string_view value) {
  file += fileLine(std::string(label) + std::string(value));
}

void addScopeLines(std::string& file, const ScopeCapture& capture) {
  addLine(file, "Mode: ", std::to_string(capture.mode));
  addLine(file, "X Scale: ", shortestText(capture.xScale));
  addLine(file, "CH1 Scale: ", shortestText(capture.ch1Scale));
  addLine(file, "CH2 Scale: ", shortestText(capture.ch2Scale));
  addLine(file, "CH3 Scale: ", shortestText(capture.ch3Scale));
}

// A value of the header: where its label is, how far from the label's start it begins, and how long it can
// be.
struct Search {
  std::string_view label;
  std::size_t distance;
  std::size_t length;
};
constexpr Search kID = {"ID:", 4, 10};
constexpr Search kChip = {"Chip ID:", 9, 8};
constexpr Search kFirmware = {"Firmware Version:", 18, 5};
constexpr Search kRating = {"Voltage Rating:", 16, 3};

// Nothing without the label. A value ends with its line at the latest.
std::optional<std::string> search(std::string_view header, const Search& what) {
  const std::size_t hit = header.find(what.label);
  if (hit == std::string_view::npos) return {};
  const std::string_view line = header.substr(hit, header.find_first_of("\r\n", hit) - hit);
  return fromWindows1252(line.substr(std::min(what.distance, line.size()), what.length));
}

FileFault fault(std::size_t offset, const Word& expected, std::string_view filling = {}) {
  return {{}, offset, expected, std::string(filling)};
}

std::optional<FileFault> takeIdentity(std::string_view header, FileIdentity& identity) {
  const struct {
    const Search& what;
    std::string& value;
  } texts[] = {{kID, identity.userID}, {kChip, identity.chipID}, {kFirmware, identity.firmwareVersion}};
  for (const auto& [what, value] : texts) {
    const auto found = search(header, what);
    if (!found) return fault(0, words::kTextThere, what.label);
    value = *found;
  }
  const std::optional<int> volts = wholeNumber(search(header, kRating).value_or(""));
  if (volts.value_or(0) <= 0) return fault(0, words::kNumberBehind, kRating.label);
  identity.nominalVolts = *volts;
  return {};
}

// The line of the header that names a kind other than the one wanted.
std::optional<std::size_t> otherKind(std::string_view header, FileKind kind) {
  for (const FileKind other :
       {FileKind::Scope, FileKind::Events, FileKind::History, FileKind::InternalChart}) {
    const std::size_t hit = header.find('\n' + std::string(kindText(other)) + '\r');
    if (other != kind && hit != std::string_view::npos) return hit + 1;
  }
  return {};
}

// Splits a file into header and raw bytes, and reads the header.
std::optional<FileFault> takeApart(std::string_view file, FileKind kind, std::size_t rawBytes,
                                   FileIdentity& identity, std::string_view& raw) {
  const std::size_t tail = rawBytes + kLineEnd.size();
  if (file.size() < tail) return fault(file.size(), words::kLeastBytes, std::to_string(tail));
  const std::size_t start = file.size() - tail;
  if (start > kMostHeader) return fault(kMostHeader + tail, words::kFileEnd);
  if (!file.ends_with(kLineEnd)) return fault(file.size() - kLineEnd.size(), words::kRawLineEnd);
  const std::string_view header = file.substr(0, start);
  if (const auto other = otherKind(header, kind)) return fault(*other, words::kTextThere, kindText(kind));
  raw = file.substr(start, rawBytes);
  return takeIdentity(header, identity);
}

template <class Table, class Decode>
DatReading<Table> readDat(std::string_view file, FileKind kind, std::size_t rawBytes, Decode decode) {
  DatReading<Table> reading;
  reading.fault = takeApart(file, kind, rawBytes, reading.identity, reading.raw);
  if (reading.fault) return {{{}, {}, reading.fault}, {}};
  reading.table = decode(reading.raw, reading.identity.nominalVolts).value_or(Table());
  return reading;
}

}  // namespace

std::string datFile(const FileStamp& stamp, FileKind kind, std::string_view raw,
                    const ScopeCapture* capture) {
  std::string file;
  file.reserve(raw.size() + 512);
  addLine(file, "", stampDate(stamp.now));
  addLine(file, "ID: ", stamp.userID);
  addLine(file, "Firmware Version: ", stamp.firmwareVersion);
  addLine(file, "Software Version: ", kSoftwareVersion);
  addLine(file, "Chip ID: ", stamp.chipID);
  addLine(file, "Voltage Rating: ", std::to_string(stamp.nominalVolts));
  addLine(file, "", kindText(kind));
  if (capture != nullptr) addScopeLines(file, *capture);
  file += kLineEnd;
  file += raw;
  file += kLineEnd;
  return file;
}

DatReading<LogTable<8>> readEventDat(std::string_view file, UtcOffset offset) {
  return readDat<LogTable<8>>(file, FileKind::Events, kEventFrameBytes, [&](std::string_view raw, int volts) {
    return decodeEventFrame(raw, volts, offset);
  });
}

DatReading<LogTable<12>> readHistoryDat(std::string_view file, UtcOffset offset) {
  return readDat<LogTable<12>>(
      file, FileKind::History, kHistoryFrameBytes,
      [&](std::string_view raw, int volts) { return decodeHistoryFrame(raw, volts, offset); });
}

}  // namespace zephon
