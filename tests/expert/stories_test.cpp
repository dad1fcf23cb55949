// The stories of the simulated sites, downloaded, decoded and analysed: each has the findings that it is
// about, and a healthy site has none.

#include <gtest/gtest.h>

#include "expert/expert_button.h"
#include "expert/tables.h"
#include "logs/chart_download.h"
#include "logs/event_download.h"
#include "logs/history_download.h"
#include "support/bench.h"

namespace zephon {
namespace {

using simulator::Story;

class Site : public testing_support::World {
 public:
  Site(Story story, int rating, double volts)
      : World({.rating = rating, .siteVolts = volts},
              {.pastSeconds = 30 * 86'400.0, .site = story, .recordingHours = 24}) {
    stay(Page::Data);
    for (Element* element : {&main.data.tsDataBtn, &main.data.histDataBtn, &main.data.cmDataBtn})
      element->setVisible(true);
    wireExpert(main);
  }

  // Downloads a log and presses the button.
  std::set<int> found(bool (*get)(Main&)) {
    EXPECT_TRUE(get(main));
    main.frame.expertBtn.setVisible(true);
    main.frame.expertBtn.click();
    return testing_support::raised(main.findings.findingFlags);
  }
};

// Trends of the history come out the other way round: its day means are mirrored, and the device's memory
// begins with the oldest row.
using Slots = std::set<int>;
const Slots kOverloads = {0, 1, 2, 3, 12, 13, 16, 17, 24};
const Slots kSagging = {12, 13, 14, 17, 18, 22, 32, 33, 35, 54};
// The story, the device's rating and the site's volts, and the answer to the question for the line voltage,
// empty for the one that is offered; what the events, the history and the chart have in them.
const std::tuple<Story, int, double, std::string, Slots, Slots, Slots> kStories[] = {
    {Story::Healthy, 120, 0, "", {}, {}, {}},
    {Story::Healthy, 240, 0, "", {}, {}, {}},
    {Story::Healthy, 240, 208, "", {}, {32, 54}, {}},  // below 95 % of the rating all day
    {Story::Healthy, 240, 230, "", {}, {32, 54}, {}},  // now and then
    {Story::SaggingFeeder, 120, 0, "", {15, 23}, kSagging, {32}},
    {Story::SaggingFeeder, 240, 230, "", {15, 23}, kSagging, {11, 12, 13, 32}},
    {Story::SaggingFeeder, 240, 230, "230", {15, 23}, kSagging, {32}},
    {Story::OverloadedCircuit, 120, 0, "", kOverloads, {3, 5, 9, 14, 18, 29, 37}, {3, 29, 38, 39}},
    {Story::SquareWaveUps, 120, 0, "", {}, {}, {17, 47, 48}},
    {Story::GrowingLoad, 120, 0, "", {}, {5, 9, 14, 18, 37, 53}, {39}},
};

TEST(Stories, HaveTheFindingsThatTheyAreAbout) {
  for (const auto& [story, rating, volts, answer, events, history, chart] : kStories) {
    SCOPED_TRACE(std::string(simulator::mannerOf(story).name) + ' ' + answer);
    Site site(story, rating, volts);
    if (!answer.empty()) site.dialogs.promptAnswer = answer;
    EXPECT_EQ(site.found(getTSdata), events);
    EXPECT_EQ(site.found(getHistData), history);
    EXPECT_EQ(site.found(getCMdata), chart);
  }
}

}  // namespace
}  // namespace zephon
