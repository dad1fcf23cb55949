#include "protocol/exchange.h"

#include <gtest/gtest.h>

#include <cmath>

#include "protocol/measurement.h"
#include "support/bench.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using testing_support::Script;
using testing_support::World;

TEST(LateReplies, NeverPassForAnotherQuantity) {
  for (const char* command : {"g4", "g5", "g6", "g8", "g;"}) {
    for (int late = 95; late <= 450; late += 15) {
      for (int count = 1; count <= 5; ++count) {
        World world;
        world.device.hold({.volts = 118, .amps = 5, .watts = 500});
        world.stay(Page::Measurement);
        world.device.addFault({.kind = FaultKind::Late, .amount = late, .only = command, .commands = count});
        for (int pass = 0; pass < 3; ++pass) getMeasurements(world.main);
        SCOPED_TRACE(command + (" late by " + std::to_string(late)) + " times " + std::to_string(count));
        const Readings& read = world.main.readings;
        for (const auto& [value, held] :
             {std::pair{read.lastVln, 118.0f}, {read.lastI, 5}, {read.lastP, 500}})
          EXPECT_TRUE(value == 0 || std::abs(value - held) < held / 100) << value;  // 0 is not read yet
        EXPECT_TRUE(late > 100 || read.lastP > 0);
      }
    }
  }
}

// The watchdog empties the line. One that never falls silent does not hold up the reply that is there.
TEST(LateReplies, AreDroppedAndWaitedForNoLongerThanASecond) {
  Script script;
  script.stay(Page::Measurement);
  script.peer.answer("g4", "\x3C\x01", 150);
  std::function<void()> talk = [&] {
    script.peer.say("x", 115200);
    script.later(20, talk);
  };
  EXPECT_FALSE(getVLNrms(script.main));
  script.run(100);
  std::string left;
  EXPECT_EQ(CommRead(portOf(script.main), script.main.link.commPort, left, 100), 0);
  talk();
  const double start = script.nowMs();
  countedQuery(script.main, orvantis::kVlnRms);
  EXPECT_LT(script.nowMs() - start, 1000);
}

TEST(Replies, ConfirmOnlyWhatTheyMust) {
  for (const auto& [reply, ok, echo] : {std::tuple{"OK", true, true},
                                        {"..OK", true, false},
                                        {"ok", false, false},
                                        {"O", false, false},
                                        {"OKK", true, false}}) {
    Script script;
    script.stay(Page::Setup);
    script.peer.answer("a", reply);
    ASSERT_TRUE(sendText(script.main, "a"));
    EXPECT_EQ(getOK(script.main), ok) << reply;
    EXPECT_EQ(script.nowMs() >= 3000, !ok) << reply;
    script.run(100);
    ASSERT_TRUE(sendText(script.main, "a"));
    const double start = script.nowMs();
    EXPECT_EQ(getEcho(script.main, "OK"), echo) << reply;
    EXPECT_EQ(script.nowMs() - start >= 1000, std::string(reply).size() < 2) << reply;
  }
}

}  // namespace
}  // namespace zephon
