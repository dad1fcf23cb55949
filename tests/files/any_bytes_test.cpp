#include <gtest/gtest.h>

#include "fuzz/targets.h"

// The fuzzers' targets on some thousand spoilt inputs, without a fuzzer.
namespace zephon::fuzzing {
namespace {

std::string spoilt(std::string text, std::mt19937& random) {
  static const std::string pieces[] = {",", "\n",    "\"",  "\xFF\xFF\xFF",          "/",
                                       "-", "1e308", "PWR", std::string(16, '\xFF'), "9999"};
  for (auto changes = random() % 6; changes > 0 && !text.empty(); --changes) {
    const std::size_t place = random() % text.size();
    const std::size_t length = random() % 12;
    if (const auto kind = random() % 4; kind == 0)
      text[place] = static_cast<char>(random());
    else if (kind == 1)
      text.erase(place, length);
    else if (kind == 2)
      text.insert(place, pieces[random() % std::size(pieces)]);
    else
      text.resize(place);
  }
  return text;
}

const std::string kPicture(
    "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\1\0\x48\0\x48\0\0\xFF\xC0\0\x0B\x08\0\x14\0\x28\1\1\x11\0\xFF\xD9", 35);

// Few events, so that they have dates.
std::string image(std::mt19937& random) {
  std::string characters;
  for (int i = 0; i < 256; ++i) {
    const bool counter = i > 240 && i < 253;
    characters +=
        {static_cast<char>('0' + (counter ? (i % 3 == 1 ? random() % 9 : 0) : random() % 160)), '.'};
  }
  return characters;
}

struct Target {
  const char* name;
  void (*run)(std::string_view);
  std::string seed;
  int runs;
};

std::vector<Target> targets() {
  std::mt19937 random(7);
  const std::string events = eventFrame(troubledRecords(random, 8, 1, 12), 12);
  const std::string history = historyFrame(troubledRecords(random, 16, 0, 12), 12);
  std::string chart =
      chartMark("STR", {2013, 5, 1, 10, 0, 0}) + chartSample() + chartMark("PWR", {2024, 2, 29, 0, 0, 0});
  for (int i = 0; i < 10; ++i) chart += chartSample(15000 + i);
  const auto& dict = dictionary();
  const auto eventRows = *decodeEventFrame(events, 120, kWest);
  const auto historyRows = *decodeHistoryFrame(history, 120, kWest);
  const auto chartRows = decodeChartMemory(chart, kWest);
  return {
      {"event frame", eventFrameTarget, events.substr(0, 200), 1500},
      {"history frame", historyFrameTarget, history.substr(0, 300), 300},
      {"chart stream", chartStreamTarget, chart, 1500},
      {"event csv", eventCsvTarget, eventCsv(kStamp, eventRows, dict), 1500},
      {"history csv", historyCsvTarget, historyCsv(kStamp, historyRows, dict), 1500},
      {"chart csv", chartCsvTarget, chartCsv(kStamp, chartRows, FileKind::LiveChart, dict), 1500},
      {"event dat", eventDatTarget, datFile(kStamp, FileKind::Events, events), 500},
      {"history dat", historyDatTarget, datFile(kStamp, FileKind::History, history), 50},
      {"second line's image", imageTarget, image(random), 1500},
      {"scope", scopeTarget, "V" + history.substr(0, 400), 1500},
      {"dictionary", dictionaryTarget, "text\n", 300},
      {"font metrics", fontMetricsTarget, "StartCharMetrics 2\nC 65 ; WX 500 ; N A ;\nC -1 ; WX 1 ;\n", 1500},
      {"picture", jpegHeaderTarget, kPicture, 1500}};
}

TEST(AnyBytes, endInATableOrAFault) {
  std::mt19937 random(8);
  for (const Target& target : targets()) {
    SCOPED_TRACE(target.name);
    for (int i = 0; i < target.runs; ++i) target.run(spoilt(target.seed, random));
    for (std::size_t cut = 0; cut < std::min<std::size_t>(target.seed.size(), 400); ++cut)
      target.run(std::string_view(target.seed).substr(0, cut));
  }
}

}  // namespace
}  // namespace zephon::fuzzing
