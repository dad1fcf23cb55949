// The stories of the sites, as the logs tell them. The few lines that read the logs here are the test's own.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

constexpr double kDay = 86400.0;

struct Row {
  double watts, maxWatts, minVolts, maxVolts, maxAmps;
};
struct Sample {
  double amps, crest;
};

// What the logs of a device say, as long as none has wrapped.
struct Told {
  std::vector<Row> rows;  // not corrected for the length of a row
  std::vector<int> codes;
  std::vector<Sample> samples;

  Told(Device& device, double basis) {
    const std::string history = device.historyFrame();
    const std::string events = device.events.frame();
    const auto byte = [](const std::string& bytes, std::size_t i) {
      return static_cast<unsigned char>(bytes[i]);
    };
    const auto pair = [&](std::size_t i) { return byte(history, i) + 256 * byte(history, i + 1); };
    for (std::size_t i = 23; i < history.size() && byte(history, i + 2) != 0; i += 16) {
      if (byte(history, i) == 0xFF) continue;
      rows.push_back({pair(i + 14) * 262144 / 36000.0, pair(i + 12) * 4.0, byte(history, i + 8) * basis,
                      byte(history, i + 9) * basis, pair(i + 6) / 256.0});
    }
    for (std::size_t i = 4; i < events.size(); i += 8) {
      if (byte(events, i) != 0xFF) codes.push_back(byte(events, i));
    }
    std::string chart;
    for (int page = 0x200; page < 0x800; page += 0x80) chart += device.chart.page(page)->substr(2);
    for (std::size_t i = 9; i < chart.size() && byte(chart, i) != 0xFF; i += 20) {  // behind the only mark
      const int rest = byte(chart, i + 15);
      samples.push_back({byte(chart, i + 2) + byte(chart, i + 3) / 256.0,
                         byte(chart, i + 14) + (rest < 128 ? rest : rest - 255) / 256.0});
    }
  }

  long count(int code) const { return std::count(codes.begin(), codes.end(), code); }
  // The mean over `days` days, the last of which ends so many days before the end.
  double mean(double Row::*field, std::size_t daysBack, std::size_t days) const {
    double sum = 0;
    for (std::size_t i = 48 * daysBack; i < 48 * (daysBack + days); ++i)
      sum += rows[rows.size() - 1 - i].*field;
    return sum / (48.0 * static_cast<double>(days));
  }
};

class StoryTest : public testing::TestWithParam<int> {
 public:
  Told tell(Story story, double days) const {
    Options options;
    options.site = story;
    options.pastSeconds = days * kDay;
    options.recordingHours = 24;
    BenchLine line(makeProfile(Line::Orvantis, GetParam()), options);
    return {line.device.device(), basis};
  }

  const double basis = GetParam() / 120.0;
  const double lowest = 0.95 * GetParam();
};

TEST_P(StoryTest, EachChangesFromWeekToWeekInItsOwnWay) {
  struct {
    Story story;
    double Row::*field;
    double least, most;  // of the change in a week
  } const rows[] = {{Story::Healthy, &Row::watts, -0.1, 0.1},
                    {Story::Healthy, &Row::maxWatts, -0.1, 0.1},
                    {Story::Healthy, &Row::minVolts, -0.01, 0.01},
                    {Story::Healthy, &Row::maxVolts, -0.01, 0.01},
                    {Story::Healthy, &Row::maxAmps, -0.01, 0.01},
                    {Story::SaggingFeeder, &Row::minVolts, -2.5 * basis, -0.4 * basis},
                    {Story::SaggingFeeder, &Row::watts, -2.0, 2.0},
                    {Story::OverloadedCircuit, &Row::maxAmps, 0.25, 0.6},
                    {Story::GrowingLoad, &Row::watts, 35 * basis, 60 * basis},
                    {Story::GrowingLoad, &Row::maxWatts, 35 * basis, 70 * basis},
                    {Story::GrowingLoad, &Row::maxAmps, 0.36, 0.6}};
  std::map<Story, Told> told;
  for (const auto& row : rows) {
    if (!told.contains(row.story)) told.emplace(row.story, tell(row.story, 28));
    for (const std::size_t back : {0u, 7u, 14u}) {
      const Told& log = told.at(row.story);
      const double change = log.mean(row.field, back, 7) - log.mean(row.field, back + 7, 7);
      EXPECT_TRUE(row.least <= change && change <= row.most)
          << mannerOf(row.story).name << " row " << &row - rows << " " << back << ": " << change;
    }
  }
}

TEST_P(StoryTest, AHealthySiteHasNothingToComplainOf) {
  const Told told = tell(Story::Healthy, 20);
  ASSERT_EQ(told.rows.size(), 20u * 48);
  for (const Row& row : told.rows) EXPECT_TRUE(row.minVolts > lowest && row.maxVolts < lowest / 0.95 * 1.05);
  EXPECT_EQ(told.codes, (std::vector<int>{32, 160, 32, 160}));
  ASSERT_EQ(told.samples.size(), 8640u);
  for (const Sample& sample : told.samples) EXPECT_TRUE(sample.crest > 1.4 && sample.crest < 1.43);
}

TEST_P(StoryTest, ASaggingFeederIsLowInTheSameHoursOfEachDay) {
  const Told told = tell(Story::SaggingFeeder, 21);
  std::map<std::size_t, int> low;
  for (std::size_t i = 0; i < told.rows.size(); ++i) low[i % 48] += told.rows[i].minVolts < lowest ? 1 : 0;
  EXPECT_GE(std::count_if(low.begin(), low.end(), [](const auto& hour) { return hour.second == 21; }), 7);
  EXPECT_GE(std::count_if(low.begin(), low.end(), [](const auto& hour) { return hour.second < 5; }), 30);
  EXPECT_GT(told.count(4), 40);
  EXPECT_EQ(told.count(132), told.count(4));
  EXPECT_EQ(static_cast<long>(told.codes.size()), 2 * told.count(4));
}

TEST_P(StoryTest, AnOverloadedCircuitHasItsVoltageAllTheSame) {
  const Told told = tell(Story::OverloadedCircuit, 20);
  EXPECT_GT(std::count_if(told.rows.begin(), told.rows.end(),
                          [&](const Row& row) { return row.maxAmps > 30.0 && row.minVolts >= lowest; }),
            20);
  EXPECT_GT(told.count(64), 60);
  EXPECT_EQ(told.count(192), told.count(64));
  EXPECT_GE(told.count(2), 2);
  EXPECT_EQ(told.count(130), told.count(2));
  EXPECT_GT(
      std::count_if(told.samples.begin(), told.samples.end(), [](const Sample& s) { return s.amps > 30; }),
      0);
}

TEST_P(StoryTest, ASquareWaveIsThereForAnHourOfSix) {
  long square = 0;
  for (const Sample& sample : tell(Story::SquareWaveUps, 2).samples) {
    const bool flat = sample.crest > 0.96 && sample.crest < 1.04;
    square += flat ? 1 : 0;
    EXPECT_TRUE(flat || (sample.crest > 1.4 && sample.crest < 1.43)) << sample.crest;
  }
  EXPECT_NEAR(static_cast<double>(square), 8640 / 6, 10);
}

TEST_P(StoryTest, AGrowingLoadPeaksThriceADay) {
  const Told told = tell(Story::GrowingLoad, 14);
  std::map<std::size_t, int> peaks;
  for (std::size_t i = 0; i < told.rows.size(); ++i) {
    EXPECT_TRUE(told.rows[i].minVolts > lowest && told.rows[i].maxAmps < 25.0);
    if (told.rows[i].watts > 2 * told.mean(&Row::watts, 13 - i / 48, 1)) ++peaks[i % 48];
  }
  EXPECT_EQ(peaks.size(), 6u);
  for (const auto& [halfHour, days] : peaks) EXPECT_EQ(days, 14) << halfHour;
}

INSTANTIATE_TEST_SUITE_P(BothRatings, StoryTest, testing::Values(120, 240));

TEST(LogsAgree, WithCountersAndEnergy) {
  Options options;
  options.pastSeconds = 5 * kDay;
  BenchLine line({}, options);
  Device& device = line.device.device();
  const Told told(device, 1.0);
  std::uint32_t records = 0;
  for (std::size_t i = 0; i < kEvents; ++i) {
    const auto event = static_cast<Event>(i);
    EXPECT_EQ(told.count(eventCode(event)), device.count(event)) << i;
    records += 2 * device.count(event);
  }
  EXPECT_EQ(told.codes.size(), records);  // each has ended
  double kilowattHours = 0;
  for (const Row& row : told.rows) kilowattHours += row.watts / 2000;
  EXPECT_NEAR(kilowattHours, device.kilowattHours(), 0.01 * device.kilowattHours());
  EXPECT_GT(kilowattHours, 25.0);
}

TEST(LogsAgree, BetweenBothLinesAtTheSameSite) {
  Options options;
  options.site = Story::SaggingFeeder;
  options.pastSeconds = 10 * kDay;
  BenchLine first({}, options);
  BenchLine second(makeProfile(Line::Tessara), options);
  EXPECT_EQ(second.device.device().image.count(ImageEvent::UnderVoltage),
            static_cast<int>(first.device.device().count(Event::UnderRecord)));
  EXPECT_GT(first.device.device().count(Event::UnderRecord), 20u);
}

TEST(Overloads, ShutTheOutletsOffUntilSomebodyPutsThemOn) {
  Options options = quiet();
  options.site = Story::OverloadedCircuit;
  BenchLine line({}, options);
  line.device.device().site().add({Disturbance::Kind::Overload, 100, 60, 25});
  for (const auto& [seconds, letter] : {std::pair(105, "1"), {10, "0"}, {280, "0"}, {20, "1"}}) {
    line.idle(seconds);
    EXPECT_EQ(line.ask("gQ"), letter) << seconds;
  }
}

}  // namespace
}  // namespace zephon::simulator
