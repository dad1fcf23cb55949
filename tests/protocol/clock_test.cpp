#include "protocol/clock.h"

#include <gtest/gtest.h>

#include "support/bench.h"
#include "text/date_picture.h"

namespace zephon {
namespace {

using simulator::Line;
using testing_support::Script;
using testing_support::World;

constexpr char kField[] = "mm/dd/yy hh:nn:ss";
constexpr UtcOffset kFiveHoursWest{5.0 / 24};

double moment(int year, int month, int day, int hour, int minute, int second) {
  return dateValue({year, month, day, hour, minute, second});
}

TEST(ClockValue, IsLocalTime) {
  const struct {
    const char* reply;
    const char* local;
  } rows[] = {{"14:30:05 03/05/2024", "03/05/24 09:30:05"},
              {"02:00:00 01/01/2024", "12/31/23 21:00:00"},
              {"04:59:59 03/01/2024", "02/29/24 23:59:59"},
              {"12:00:00 13/01/2023", "01/01/24 07:00:00"}};  // month 13 carries
  for (const auto& row : rows) {
    const auto value = clockValue(row.reply, kFiveHoursWest);
    ASSERT_TRUE(value) << row.reply;
    EXPECT_EQ(formatDate(*value, kField), row.local);
  }
  for (const char* none :
       {"", "14:30", "1x:30:05 03/05/2024", "14:30:05 --/05/2024", "\xFF\xFF:30:05 03/05/2024"}) {
    EXPECT_FALSE(clockValue(none, kFiveHoursWest)) << none;
  }
}

TEST(ClockBytes, ArePackedDecimalAndTheWeekday) {
  EXPECT_EQ(clockBytes(moment(2018, 12, 31, 23, 59, 58)), std::string("\x23\x59\x58\x12\x31\x18\x01", 7));
  EXPECT_EQ(clockBytes(moment(2024, 3, 2, 0, 0, 0)), std::string("\0\0\0\x03\x02\x24\x06", 7));  // Saturday
  EXPECT_EQ(clockBytes(moment(2024, 3, 3, 9, 8, 7)).back(), '\0');                               // Sunday
  // The last half second belongs to the next day, in its weekday too.
  EXPECT_EQ(clockBytes(moment(2024, 3, 2, 23, 59, 59) + 0.7 / 86400), std::string("\0\0\0\x03\x03\x24\0", 7));
}

TEST(GetTime, ShowsLocalTimeAndLetsItRun) {
  World world;
  EXPECT_TRUE(getTime(world.main));
  EXPECT_EQ(formatDate(world.main.setup.timeNumEdit.value(), kField), "03/05/24 09:30:00");
  EXPECT_TRUE(world.main.timers.Timer3.enabled());
  EXPECT_EQ(world.main.timers.Timer3.interval(), 1000);
}

TEST(GetTime, AReplyThatIsNoDateKeepsTheFieldAndAShortOneFails) {
  Script script;
  script.main.setup.timeNumEdit.setValue(45000);
  script.peer.answer("gR", "--:--:-- --/--/----");
  EXPECT_TRUE(getTime(script.main));
  EXPECT_EQ(script.main.setup.timeNumEdit.value(), 45000);
  EXPECT_TRUE(script.main.timers.Timer3.enabled());
  script.peer.answer("gR", "14:30:05 03/05/202");
  EXPECT_FALSE(getTime(script.main));
  EXPECT_EQ(script.main.exchange.lastFailure, ExchangeFailure::ShortReply);
}

TEST(SetTime, SetsTheDeviceAndLeavesTheFieldInUniversalTime) {
  World world;
  world.main.setup.timeNumEdit.setValue(moment(2025, 7, 4, 20, 15, 30));
  EXPECT_TRUE(setTime(world.main));
  EXPECT_EQ(formatDate(world.main.setup.timeNumEdit.value(), kField), "07/05/25 01:15:30");
  EXPECT_EQ(world.commands(), (std::vector<std::string>{std::string("s;\x01\x15\x30\x07\x05\x25\x06", 9)}));
  EXPECT_EQ(world.main.setup.setTimeBtn.caption(), world.main.dict[100]);
  EXPECT_EQ(world.main.setup.setTimeAutoBtn.caption(), world.main.dict[100]);
  const auto& written = world.line.written();
  ASSERT_EQ(written.size(), 8u);
  EXPECT_EQ(Millis(written[1].at - written[0].at).count(), 100);
  EXPECT_EQ(Millis(written[7].at - written[1].at).count(), 60);
  EXPECT_TRUE(getTime(world.main));
  EXPECT_EQ(formatDate(world.main.setup.timeNumEdit.value(), kField), "07/04/25 20:15:30");
}

TEST(SetTime, ARefusalFailsAfterThreeSeconds) {
  World world;
  world.device.addFault({.kind = simulator::FaultKind::Refuse});
  EXPECT_FALSE(setTime(world.main));
  EXPECT_NEAR(world.nowMs(), 3160, 1);
  EXPECT_FALSE(world.main.exchange.Timer1.enabled());
}

TEST(Wiring, ReadsAndWritesThePhaseAngle) {
  World world({.line = Line::Tessara, .rating = 240, .firmware = "1*14"});
  Button& button = world.main.setup.YorCTbutton;
  int clicks = 0;
  button.onChange = [&](bool) { clicks += button.enabled() ? 1 : 0; };
  EXPECT_TRUE(setYorCT(world.main, false));
  EXPECT_EQ(getYorCT(world.main), 180);
  EXPECT_TRUE(world.main.link.yOrCTflag);
  EXPECT_FALSE(button.value());
  EXPECT_TRUE(setYorCT(world.main, true));
  EXPECT_EQ(getYorCT(world.main), 120);
  EXPECT_FALSE(world.main.link.yOrCTflag);
  EXPECT_TRUE(button.value());
  EXPECT_TRUE(button.enabled());
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(world.commands(), (std::vector<std::string>{"n2", "g", "n1", "g"}));

  world.device.cutLine();
  const double before = world.nowMs();
  EXPECT_EQ(getYorCT(world.main), 0);
  EXPECT_DOUBLE_EQ(world.nowMs() - before, 600);
  EXPECT_TRUE(button.value());
}

TEST(Wiring, TheLastThreeCharactersCountAndTheFirstLineHasNone) {
  Script script(1);
  script.peer.answer("g", "x180");
  EXPECT_EQ(getYorCT(script.main), 180);
  script.peer.answer("g", "181");
  EXPECT_EQ(getYorCT(script.main), 120);
  script.main.link.modelLine = 0;
  script.peer.forgetHeard();
  EXPECT_TRUE(setYorCT(script.main, true));
  EXPECT_TRUE(script.peer.heard().empty());
}

}  // namespace
}  // namespace zephon
