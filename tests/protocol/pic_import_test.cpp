#include "protocol/pic_import.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::ImageEvent;
using testing_support::World;

class Import : public testing::Test {
 protected:
  simulator::MemoryImage& image() { return world_.device.device().image; }
  void fail(FaultKind kind, const char* command) { world_.device.addFault({.kind = kind, .only = command}); }

  World world_{simulator::makeProfile(simulator::Line::Tessara, 120)};
  Main& main_ = world_.main;
};

TEST_F(Import, TakesCountersEventsDatesAndLimits) {
  image().record(ImageEvent::Outage, 5);
  image().record(ImageEvent::UnderVoltage, 3600);
  image().record(ImageEvent::Surge, 2 * 86400 + 61);
  image().poke(255, 0x20);
  world_.run(10'000);  // the device's "t" counts from its start
  main_.counters.clearCountsRequest = true;
  main_.counters.olCount = 9;
  world_.later(300, [&] { EXPECT_EQ(main_.data.tsDataBtn.offText(), main_.dict[79]); });
  ASSERT_TRUE(importPIC(main_));
  EXPECT_EQ(world_.commands(), (std::vector<std::string>{"+", "t"}));
  EXPECT_EQ(main_.logs.rawLogBuffer, image().dump());
  EXPECT_TRUE(main_.counters.poCount == 1 && main_.counters.olCount == 0);
  EXPECT_TRUE(main_.counters.clearCountsRequest);
  EXPECT_EQ(main_.measurement.SGrecTxt.text(), "1");
  EXPECT_EQ(main_.limits, (Limits{80, 100, 105, 135, 135, 140}));
  EXPECT_EQ(main_.pdEvents[2].text, main_.dict[59]);
  EXPECT_EQ(main_.pdEvents[2].date, "03/05/24 09:30:00");  // local time, now less "t"
  EXPECT_EQ(main_.pdEvents[0].date + main_.pdEvents[3].date, "03/03/24 08:28:59");
  EXPECT_EQ(main_.data.tsDataBtn.offText(), main_.dict[36]);
}

TEST_F(Import, EveryFailureEndsAlike) {
  const std::tuple<const char*, std::function<void()>, bool, bool> cases[] = {
      {"silent", [&] { fail(FaultKind::Silent, "+"); }, false, false},
      {"doubled", [&] { fail(FaultKind::Doubled, "+"); }, true, false},
      {"no write", [&] { world_.line.failNext(MemoryLine::Call::Write, 5); }, false, false},
      {"too many events", [&] { image().poke(243, 0x32), image().poke(242, 0x76), image().poke(241, 0x08); },
       true, false},
      {"ring", [&] { image().poke(253, 0xFF), image().poke(242, 0x12); }, true, false},
      {"no time", [&] { fail(FaultKind::Silent, "t"); }, true, true},
      {"time in letters", [&] { fail(FaultKind::Garbage, "t"); }, true, true},
  };
  for (const auto& [about, cause, imageRead, limitsRead] : cases) {
    SCOPED_TRACE(about);
    world_.run(2000);  // whatever is still on its way
    world_.device.clearFaults();
    image().clear();
    image().poke(255, 0x80);
    main_.limits = {};
    main_.logs.rawLogBuffer.clear();
    cause();
    EXPECT_FALSE(importPIC(main_));
    EXPECT_EQ(!main_.logs.rawLogBuffer.empty(), imageRead);
    EXPECT_EQ(main_.limits.OVco == 160, limitsRead);
    EXPECT_EQ(main_.data.tsDataBtn.offText(), main_.dict[36]);
    EXPECT_FALSE(main_.exchange.Timer1.enabled());
  }
}

TEST_F(Import, EndsWhenThePageIsLeftAndNeverEndsARecording) {
  world_.stay(Page::Measurement);
  world_.later(50, [&] { world_.stay(Page::None); });
  EXPECT_FALSE(importPIC(main_));
  EXPECT_TRUE(world_.writes().empty());
  world_.stay(Page::Measurement);
  world_.later(645, [&] { world_.stay(Page::None); });  // in the pause behind the image
  EXPECT_FALSE(importPIC(main_));
  EXPECT_EQ(world_.writes(), std::vector<std::string>{"+"});
  world_.stay(Page::Chart);
  fail(FaultKind::Silent, "+");
  EXPECT_TRUE(importPIC(main_)) << "a recording is not ended by it";
}

}  // namespace
}  // namespace zephon
