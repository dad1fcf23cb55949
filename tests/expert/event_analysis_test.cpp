#include "expert/event_analysis.h"

#include <gtest/gtest.h>

#include <limits>

#include "expert/tables.h"

namespace zephon {
namespace {

using namespace testing_support;

// Events of one code, or of two in turn, in the order in which trends count forward: the newest row first.
struct Pattern {
  const char* what;
  std::vector<int> days;
  bool hourly;  // at the hours of one day instead
};
const Pattern kRegular = {"regular", {0, 1, 2, 3}, true};
const Pattern kFlat = {"flat", {9, 7, 5, 3}, false};  // irregular by the 0 at the intervals' end
const Pattern kRising = {"rising", {9, 9, 9, 8, 8, 8, 7, 5}, false};
const Pattern kFading = {"fading", {8, 5, 3, 3, 3, 2, 2, 2}, false};

// The first and the last row are of a code that counts nowhere; the last one takes no part.
std::vector<Event> with(const Pattern& pattern, int code, int other) {
  std::vector<Event> list = {{192, pattern.hourly ? 3 : 10}};
  for (std::size_t i = 0; i < pattern.days.size(); ++i) {
    const int of = i % 2 == 0 ? code : other;
    list.push_back(pattern.hourly ? Event{of, 3, pattern.days[i]} : Event{of, pattern.days[i]});
  }
  list.push_back({192, pattern.hourly ? 3 : 1});
  return list;
}

TEST(ExpertTS, RaisesWhatEachFamilySaysOfItsPattern) {
  using Slots = std::set<int>;
  const std::tuple<int, int, Slots, Slots, Slots> families[] = {{64, 64, {0, 1, 2}, {3, 4}, {0, 3, 5}},
                                                                {32, 32, {0, 6}, {7, 8}, {5, 9, 10}},
                                                                {8, 16, {11, 12, 13}, {12, 13}, {12, 13, 14}},
                                                                {2, 4, {15}, {13, 16, 17}, {14, 18}},
                                                                {1, 1, {19}, {20, 21, 22}, {14}},
                                                                {132, 132, {23}, {23}, {23}},
                                                                {130, 130, {3, 24}, {3, 24}, {3, 24}},
                                                                {160, 160, {25}, {26}, {14, 27}},
                                                                {129, 136, {}, {}, {}}};
  for (const auto& [code, other, regular, lasting, fading] : families) {
    const std::pair<const Pattern&, const Slots&> rows[] = {
        {kRegular, regular}, {kFlat, lasting}, {kRising, lasting}, {kFading, fading}};
    for (const auto& [pattern, slots] : rows) {
      const Logs logs = events(with(pattern, code, other));
      EXPECT_EQ(raised(expertTS(logs, device())), slots) << code << ' ' << pattern.what;
    }
  }
}

TEST(ExpertTS, AsksForThreeEventsBeforeItSpeaksOfMore) {
  const std::pair<std::vector<Event>, std::set<int>> rows[] = {
      {{}, {}},
      {{{64, 2}, {64, 1}}, {3}},
      {{{64, 3}, {64, 2}, {64, 1}}, {0, 3, 5}},  // the last row is counted, but in no interval and no trend
      {{{64, 1, 2}, {64, 1, 1}, {64, 1}}, {3, 4}},
      {{{2, 2}, {4, 1}, {1, 2}, {1, 1}, {160, 2}, {160, 1}}, {}},
      {{{65, 1}, {3, 1}, {0, 1}, {128, 1}}, {}}};
  for (const auto& [list, found] : rows)
    EXPECT_EQ(raised(expertTS(events(list), device())), found) << list.size();
}

TEST(ExpertTS, LooksAtTheOverloadCounterBesideALog) {
  LoggedDevice counted = device();
  counted.overloads = 1;
  EXPECT_EQ(raised(expertTS(events({{132, 1}}), counted)), (std::set<int>{12, 13, 23}));
}

TEST(ExpertTS, TellsTheEventsBehindEachFinding) {
  const Analysis found = expertTS(events({{64, 5}, {130, 4}, {64, 3}, {8, 2}, {64, 1}}), device());
  EXPECT_EQ(found.rows[4], (RowNumbers{0, 2, 4}));
  EXPECT_EQ(found.rows[3], (RowNumbers{0, 1, 2, 4}));
}

TEST(ExpertTS, EndsAtACodeThatIsNoNumberAndTakesADateThatIsNoneForNoTrend) {
  Logs broken = events({{64, 1, 2}, {64, 1, 1}, {64, 1}, {32, 1}});
  broken.tsData[0][4] = std::numeric_limits<double>::infinity();
  EXPECT_EQ(raised(expertTS(broken, device())), (std::set<int>{3, 4}));
  broken.tsData[1][6] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(raised(expertTS(broken, device())), std::set<int>{});
}

}  // namespace
}  // namespace zephon
