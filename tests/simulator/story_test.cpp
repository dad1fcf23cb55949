// The stories of the sites, as the logs tell them. The few lines that read the logs here are the test's own.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <map>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

constexpr double kDay = 86400.0;

int at(const std::string& bytes, std::size_t place) {
  return static_cast<unsigned char>(bytes[place]);
}

struct Row {
  double watts, maxWatts, minVolts, maxVolts, maxAmps;
};

// The rows of a history that has not wrapped, without blank ones, as they stand: not corrected for their
// length.
std::vector<Row> rowsOf(const std::string& frame, int rating) {
  std::vector<Row> rows;
  const std::size_t end = 7 + static_cast<std::size_t>(at(frame, 21) * 256 + at(frame, 22));
  for (std::size_t i = 23; i < end; i += 16) {
    if (at(frame, i) == 0xFF) continue;
    const auto field = [&](std::size_t place) {
      return at(frame, i + place) + 256 * at(frame, i + place + 1);
    };
    rows.push_back({field(14) * 262144 / 36000.0, field(12) * 4.0, at(frame, i + 8) * rating / 120.0,
                    at(frame, i + 9) * rating / 120.0, field(6) / 256.0});
  }
  return rows;
}

std::vector<int> codesOf(const std::string& frame) {
  std::vector<int> codes;
  const std::size_t end = 4 + static_cast<std::size_t>((at(frame, 2) * 256 + at(frame, 3)) - 0xB000);
  for (std::size_t i = 4; i < end; i += 8) {
    if (at(frame, i) != 0xFF) codes.push_back(at(frame, i));
  }
  return codes;
}

struct Sample {
  double amps, crest;
};

std::vector<Sample> samplesOf(const ChartMemory& chart) {
  std::string bytes;
  for (int address = 0x200; address < 0x800; address += 0x80) bytes += chart.page(address)->substr(2);
  std::vector<Sample> samples;
  for (std::size_t i = 0; at(bytes, i) != 0xFF;) {
    const std::string mark = bytes.substr(i, 3);
    const bool isMark = mark == "STR" || mark == "PWR";
    if (!isMark) {
      const int rest = at(bytes, i + 15);
      samples.push_back({(at(bytes, i + 2) * 256 + at(bytes, i + 3)) / 256.0,
                         at(bytes, i + 14) + (rest < 128 ? rest : rest - 255) / 256.0});
    }
    i += isMark ? 9 : 20;
  }
  return samples;
}

struct Told {
  std::vector<Row> rows;
  std::vector<int> codes;
  std::vector<Sample> samples;

  long count(int code) const { return std::count(codes.begin(), codes.end(), code); }
  // The mean over some days, the last of which ends so many days before the end.
  double day(double Row::*field, std::size_t daysBack, std::size_t days = 1) const {
    double sum = 0;
    for (std::size_t i = rows.size() - 48 * (daysBack + days); i < rows.size() - 48 * daysBack; ++i)
      sum += rows[i].*field;
    return sum / (48.0 * static_cast<double>(days));
  }
  double week(double Row::*field, std::size_t weeksBack) const { return day(field, 7 * weeksBack, 7); }
};

Told tell(Story story, int rating, double days) {
  Options options;
  options.site = story;
  options.pastSeconds = days * kDay;
  options.recordingHours = 24;
  BenchLine line(makeProfile(Line::Orvantis, rating), options);
  Device& device = line.device.device();
  return {rowsOf(device.historyFrame(), rating), codesOf(device.events.frame()), samplesOf(device.chart)};
}

class StoryTest : public testing::TestWithParam<int> {
 public:
  const int rating = GetParam();
  const double nominal = rating;
};

TEST_P(StoryTest, AHealthySiteHasNothingToComplainOf) {
  const Told told = tell(Story::Healthy, rating, 20);
  ASSERT_EQ(told.rows.size(), 20u * 48);
  for (const Row& row : told.rows) {
    EXPECT_GT(row.minVolts, 0.95 * nominal);
    EXPECT_LT(row.maxVolts, 1.05 * nominal);
    EXPECT_LT(row.maxAmps, 4.0);
  }
  for (const auto field : {&Row::watts, &Row::maxWatts, &Row::minVolts, &Row::maxVolts, &Row::maxAmps}) {
    for (std::size_t back = 1; back < 20; ++back)
      EXPECT_NEAR(told.day(field, back), told.day(field, 0), 0.3) << back;
  }
  EXPECT_EQ(told.codes, (std::vector<int>{32, 160, 32, 160}));
  ASSERT_EQ(told.samples.size(), 8640u);
  for (const Sample& sample : told.samples) {
    EXPECT_GT(sample.crest, 1.4);
    EXPECT_LT(sample.crest, 1.43);
  }
}

TEST_P(StoryTest, ASaggingFeederSinksFromWeekToWeekAndInSomeHours) {
  const Told told = tell(Story::SaggingFeeder, rating, 28);
  for (const std::size_t back : {1u, 2u, 3u}) {
    EXPECT_LT(told.week(&Row::minVolts, back - 1), told.week(&Row::minVolts, back) - nominal / 300);
    EXPECT_NEAR(told.week(&Row::watts, back), told.week(&Row::watts, 0), 2.0);
  }
  for (std::size_t start = 0; start + 48 < told.rows.size(); start += 48) {
    int low = 0;
    for (std::size_t i = start; i < start + 48; ++i) low += told.rows[i].minVolts < 0.95 * nominal ? 1 : 0;
    EXPECT_GE(low, 7) << start;
    EXPECT_LE(low, 20) << start;
  }
  const long events = told.count(4);
  EXPECT_GT(events, 40);
  EXPECT_EQ(told.count(132), events);
  EXPECT_LT(tell(Story::SaggingFeeder, rating, 14).count(4), events);
  EXPECT_EQ(static_cast<long>(told.codes.size()), 2 * events);
}

TEST_P(StoryTest, AnOverloadedCircuitHasItsVoltageAllTheSame) {
  const Told told = tell(Story::OverloadedCircuit, rating, 20);
  const auto heavy = std::count_if(told.rows.begin(), told.rows.end(), [this](const Row& row) {
    return row.maxAmps > 30.0 && row.minVolts >= 0.95 * nominal;
  });
  EXPECT_GT(heavy, 20);
  EXPECT_GT(told.day(&Row::maxAmps, 0), told.day(&Row::maxAmps, 19) + 0.5);
  EXPECT_GT(told.count(64), 60);
  EXPECT_EQ(told.count(192), told.count(64));
  EXPECT_GE(told.count(2), 2);
  EXPECT_EQ(told.count(130), told.count(2));
  EXPECT_GT(
      std::count_if(told.samples.begin(), told.samples.end(), [](const Sample& s) { return s.amps > 30; }),
      0);
}

TEST_P(StoryTest, ASquareWaveIsThereForAnHourOfSix) {
  const Told told = tell(Story::SquareWaveUps, rating, 2);
  long square = 0;
  for (const Sample& sample : told.samples) {
    const bool flat = sample.crest > 0.96 && sample.crest < 1.04;
    square += flat ? 1 : 0;
    EXPECT_TRUE(flat || (sample.crest > 1.4 && sample.crest < 1.43)) << sample.crest;
  }
  EXPECT_NEAR(static_cast<double>(square) / 8640, 1.0 / 6, 0.002);
}

TEST_P(StoryTest, AGrowingLoadGrowsAndPeaksThriceADay) {
  const Told told = tell(Story::GrowingLoad, rating, 28);
  for (const std::size_t back : {1u, 2u, 3u}) {
    EXPECT_GT(told.week(&Row::watts, back - 1), told.week(&Row::watts, back) + 20);
    EXPECT_GT(told.week(&Row::maxWatts, back - 1), told.week(&Row::maxWatts, back) + 20);
    EXPECT_GT(told.week(&Row::maxAmps, back - 1), told.week(&Row::maxAmps, back) + 0.35);
  }
  std::map<std::size_t, int> peaks;
  for (std::size_t i = 0; i < told.rows.size(); ++i) {
    EXPECT_GT(told.rows[i].minVolts, 0.95 * nominal);
    EXPECT_LT(told.rows[i].maxAmps, 25.0);
    if (told.rows[i].watts > 2 * told.day(&Row::watts, 27 - i / 48)) ++peaks[i % 48];
  }
  EXPECT_EQ(peaks.size(), 6u);
  for (const auto& [halfHour, days] : peaks) EXPECT_EQ(days, 28) << halfHour;
}

INSTANTIATE_TEST_SUITE_P(BothRatings, StoryTest, testing::Values(120, 240));

TEST(LogsAgree, WithCountersAndEnergy) {
  Options options;
  options.pastSeconds = 5 * kDay;
  BenchLine line({}, options);
  Device& device = line.device.device();
  const std::vector<int> codes = codesOf(device.events.frame());
  long records = 0;
  for (std::size_t i = 0; i < kEvents; ++i) {
    const auto event = static_cast<Event>(i);
    EXPECT_EQ(std::count(codes.begin(), codes.end(), eventCode(event)), device.count(event)) << i;
    records += 2 * device.count(event);
  }
  EXPECT_EQ(static_cast<long>(codes.size()), records);  // each has ended
  EXPECT_LT(records, 512);
  double kilowattHours = 0;
  for (const Row& row : rowsOf(device.historyFrame(), 120)) kilowattHours += row.watts / 2000;
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
  Options options;
  options.site = Story::OverloadedCircuit;
  options.disturbances = false;
  BenchLine line({}, options);
  line.device.device().site().add({Disturbance::Kind::Overload, 100, 60, 25});
  line.idle(105);
  EXPECT_EQ(line.ask("gQ"), "1");
  line.idle(10);
  EXPECT_EQ(line.ask("gQ"), "0");
  line.idle(280);
  EXPECT_EQ(line.ask("gQ"), "0");
  line.idle(20);
  EXPECT_EQ(line.ask("gQ"), "1");
}

}  // namespace
}  // namespace zephon::simulator
