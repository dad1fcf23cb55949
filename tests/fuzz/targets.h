#pragma once

#include <cstdio>
#include <cstdlib>

#include "files/chart_csv.h"
#include "files/dat_file.h"
#include "files/dictionary_file.h"
#include "files/event_csv.h"
#include "files/fault_text.h"
#include "files/history_csv.h"
#include "logs/chart_memory.h"
#include "logs/event_log.h"
#include "logs/event_tree.h"
#include "logs/history_log.h"
#include "logs/history_tree.h"
#include "pdf/font_metrics.h"
#include "pdf/jpeg_header.h"
#include "protocol/event_codes.h"
#include "protocol/limit_codes.h"
#include "protocol/pd_rotation.h"
#include "protocol/pic_image.h"
#include "protocol/scope_samples.h"
#include "support/log_bytes.h"

// What must hold for any bytes from outside: no crash, rows in their ranges, and a table that its .csv file
// gives back. Each function takes one input, whatever it is, and ends the program when something does not
// hold.
namespace zephon::fuzzing {

using namespace testing_support;

inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

// Entry N reads "kN", but for an event's text that needs quotes in a file.
inline const std::vector<std::string>& dictionary() {
  static const std::vector<std::string> texts = [] {
    std::vector<std::string> dict;
    for (int key = 0; key <= 270; ++key) dict.push_back("k" + std::to_string(key));
    dict[63] = "Unterspannung, \xC3\x84nderung \"A\"";
    return dict;
  }();
  return texts;
}

inline const FileStamp kStamp = {{2013, 5, 31, 14, 2, 7}, "ABCDEFGHIJ", "1.KD1", "01.A2.FF", 120, 0};
constexpr UtcOffset kWest{5 / 24.0};

template <std::size_t N>
void requireDates(const LogTable<N>& table, std::size_t rows) {
  constexpr std::array<std::array<double, 2>, 6> kRanges = {
      {{0, 99}, {1, 31}, {1, 12}, {0, 23}, {0, 59}, {0, 59}}};
  for (std::size_t r = 0; r < rows; ++r) {
    for (std::size_t c = 0; c < kRanges.size(); ++c)
      require(table[r][c] >= kRanges[c][0] && table[r][c] <= kRanges[c][1], "a date within its ranges");
  }
}

inline void walkTree(const TreeSource& tree, TreeNode node = kTreeRoot) {
  for (std::size_t i = 0; i < tree.childCount(node); ++i) {
    const TreeNode child = tree.child(node, i);
    require(tree.parent(child) == node && tree.indexInParent(child) == i, "a node found from its parent");
    require(!tree.text(child).empty() || tree.childCount(child) > 0, "a leaf with text");
    walkTree(tree, child);
  }
}

inline void requireEvents(const LogTable<8>& events) {
  const auto& dict = dictionary();
  requireDates(events, events.size());
  walkTree(EventTree(events, {}, dict));
  const EventCsvReading back = readEventCsv(eventCsv(kStamp, events, dict), dict);
  require(back && back.unknownEvents == 0 && back.table.size() == events.size(), "events that read back");
  for (std::size_t r = 0; r < events.size(); ++r) {
    auto row = events[r];
    if (!hasMagnitude(row[6])) row[7] = 0;
    if (findEventCode(row[6]) == nullptr) row[6] = 0;
    require(back.table[r] == row, "an event that reads back");
  }
}

inline void requireHistory(const LogTable<12>& history) {
  const auto& dict = dictionary();
  const std::size_t rows = historyRecords(history);
  requireDates(history, rows);
  if (rows > 0) walkTree(HistoryTree({history.begin(), history.begin() + 2}, dict));
  const auto back = readHistoryCsv(historyCsv(kStamp, history, dict), dict);
  require(back && historyRecords(back.table) == rows, "a history that reads back");
  require(
      std::equal(history.begin(), history.begin() + static_cast<std::ptrdiff_t>(rows), back.table.begin()),
      "rows that read back");
}

inline void requireChart(const LogTable<9>& chart) {
  const auto& dict = dictionary();
  const auto back = readChartCsv(chartCsv(kStamp, chart, FileKind::InternalChart, dict), dict);
  require(back && back.table.size() == chart.size(), "a chart that reads back");
  for (std::size_t r = 0; r < chart.size(); ++r) {
    require(std::equal(chart[r].begin() + 1, chart[r].end(), back.table[r].begin() + 1),
            "values that read back");
    require(nearestSeconds(chart[r][0]) == nearestSeconds(back.table[r][0]), "a time that reads back");
  }
}

inline void eventFrameTarget(std::string_view bytes) {
  const auto rows = decodeEventFrame(filled(std::string(bytes), kEventFrameBytes), 120, kWest);
  require(rows && rows->size() <= 512, "an event log of at most 512 rows");
  requireEvents(*rows);
  require(decodeEventFrame(bytes, 240, kWest).has_value() == (bytes.size() == kEventFrameBytes),
          "a whole frame");
}

inline void historyFrameTarget(std::string_view bytes) {
  const auto rows = decodeHistoryFrame(filled(std::string(bytes), kHistoryFrameBytes), 240, kWest);
  require(rows && rows->size() <= 6912 && rows->size() != 1, "a history of at most 6911 rows");
  requireHistory(*rows);
}

inline void chartStreamTarget(std::string_view bytes) {
  const LogTable<9> log = decodeChartMemory(bytes, kWest);
  require(log.size() <= bytes.size() / 4, "no more rows than blocks");
  requireChart(log);
}

// The second line's memory, whatever it holds, and the log that is made of it.
inline void imageTarget(std::string_view bytes) {
  const auto image = decodeImage(bytes);
  const auto since = decodeEventSpan(bytes.substr(0, 8));
  if (!image) return;
  const ImageCounts counts = imageCounts(*image);
  const auto count = static_cast<std::size_t>(std::clamp<std::int64_t>(counts.total(), 0, kImageRecords));
  PdEvents events;
  for (std::size_t i = 0; i < kImageRecords; ++i) events[i] = imageEvent(*image, i, dictionary());
  rotatePDevents(events, counts.total(), (*image)[253]);
  const Counters counters{.poCount = counts.poCount,
                          .uvreCount = counts.uvreCount,
                          .ovreCount = counts.ovreCount,
                          .sgCount = counts.sgCount};
  if (!dateEvents(events, count, since.value_or(EventSpan{}), {2024, 3, 5, 9, 30, 0})) return;
  const auto log = eventsOfTable(events, counters, limitsOfBytes(1, 2, 120), dictionary());
  require(!log || log->size() <= kImageRecords, "at most 60 events");
  if (log) requireEvents(*log);
}

inline void scopeTarget(std::string_view bytes) {
  for (int mode = 1; mode <= 3; ++mode) {
    const ScopeSamples samples = decodeCapture(bytes, mode, 256);
    require(samples.volts.size() <= 256 && samples.amperes.size() <= 256, "no more samples than wanted");
    for (const double watts : samples.watts)
      require(std::abs(watts) <= 512 * 256, "a power within its range");
  }
}

inline void dictionaryTarget(std::string_view bytes) {
  for (const std::string& file : {std::string(bytes), std::string(280, '\n') + std::string(bytes)}) {
    const DictionaryFile read = parseDictionary(file);
    require(!read || read.entries.size() >= kLeastEntries, "a dictionary, or why it is none");
  }
}

// The file as it is, and the same bytes as rows behind a head that is right.
template <class Read>
void bothWays(std::string_view bytes, const std::string& head, Read read) {
  read(bytes);
  read(head + std::string(bytes));
}

template <class Reading>
bool wholeOrNothing(const Reading& reading) {
  require(reading || reading.table.empty(), "no half table");
  require(reading || !faultText(*reading.fault, dictionary()).empty(), "a fault that says what it is");
  return static_cast<bool>(reading);
}

inline void eventCsvTarget(std::string_view bytes) {
  const auto& dict = dictionary();
  bothWays(bytes, eventCsv(kStamp, {}, dict), [&](std::string_view file) {
    const auto reading = readEventCsv(file, dict);
    if (wholeOrNothing(reading)) requireEvents(reading.table);
  });
}

inline void historyCsvTarget(std::string_view bytes) {
  const auto& dict = dictionary();
  bothWays(bytes, historyCsv(kStamp, {}, dict), [&](std::string_view file) {
    const auto reading = readHistoryCsv(file, dict);
    if (wholeOrNothing(reading)) requireHistory(reading.table);
  });
}

inline void chartCsvTarget(std::string_view bytes) {
  const auto& dict = dictionary();
  bothWays(bytes, chartCsv(kStamp, {}, FileKind::LiveChart, dict), [&](std::string_view file) {
    const auto reading = readChartCsv(file, dict);
    if (wholeOrNothing(reading)) requireChart(reading.table);
  });
}

inline void eventDatTarget(std::string_view bytes) {
  const auto read = [](std::string_view file) {
    const auto reading = readEventDat(file, kWest);
    if (wholeOrNothing(reading)) require(reading.raw.size() == kEventFrameBytes, "the raw bytes");
  };
  read(bytes);
  read(std::string(bytes) + datFile(kStamp, FileKind::Events, filled("", kEventFrameBytes)));
}

inline void historyDatTarget(std::string_view bytes) {
  const auto read = [](std::string_view file) {
    const auto reading = readHistoryDat(file, kWest);
    if (wholeOrNothing(reading)) require(reading.raw.size() == kHistoryFrameBytes, "the raw bytes");
  };
  read(bytes);
  read(std::string(bytes) + datFile(kStamp, FileKind::History, filled("", kHistoryFrameBytes)));
}

// The file as it is, and the same bytes where widths, or segments, are looked for.
inline void fontMetricsTarget(std::string_view bytes) {
  std::string every;
  for (int code = 0; code < 256; ++code) every += static_cast<char>(code);
  for (const std::string& file : {std::string(bytes), "StartCharMetrics\n" + std::string(bytes)}) {
    const FontMetrics metrics = parseFontMetrics(file);
    for (const int width : metrics.widths) require(std::abs(width) <= 32767, "a width within its range");
    require(metrics.widths[0] == 0 && std::abs(stringWidth(metrics, every, 1)) <= 32.767 * 256,
            "a text's width");
  }
}

inline void jpegHeaderTarget(std::string_view bytes) {
  for (const std::string& file : {std::string(bytes), "\xFF\xD8" + std::string(bytes) + "\xFF\xD9"}) {
    const JpegHeader header = readJpegHeader(file);
    const bool whole = header.width > 0 && header.width <= 65535 && header.height > 0 &&
                       header.height <= 65535 && header.colourSpace.starts_with("Device");
    require(header ? whole : header.width == 0 && header.height == 0, "a picture with its size, or none");
  }
}

}  // namespace zephon::fuzzing
