#include "protocol/identity.h"

#include <gtest/gtest.h>

#include "protocol/clock.h"
#include "support/bench.h"
#include "text/date_picture.h"

// Who the device is, and its clock.

namespace zephon {
namespace {

using testing_support::Script;
using testing_support::World;

TEST(IdentityTexts, OfTheDevicesBytes) {
  EXPECT_EQ(firmwareText("1KD1", 0), "1.KD1");  // only the first line leaves the point out
  EXPECT_EQ(chipText(std::string("\x01-\xA2-\xFF", 5)), "01.A2.FF");
  EXPECT_EQ(nameBytes("PANEL 7"), "   PANEL 7");
  EXPECT_EQ(nameBytes("K\u00FCche"), "     K\xFC\x63he");
}

TEST(Identity, OfTheSecondLineHasANameOfTheToolsOwn) {
  World second({.line = simulator::Line::Tessara});
  EXPECT_TRUE(getFirmwareVersion(second.main) && getChipID(second.main) && getUserID(second.main));
  EXPECT_EQ(second.main.link.chipID, "4C.5A.17");
  second.main.setup.userIDtxt.setText("BACK ROOM");
  EXPECT_TRUE(setUserID(second.main) && getUserID(second.main));
  EXPECT_EQ(second.main.link.userID, "BACK ROOM");
  EXPECT_EQ(second.commands(), (std::vector<std::string>{"r", "i"}));  // it stores no name
}

TEST(Identity, IsWaitedForAndAFailureLeavesWhatWasKnown) {
  Script script;
  script.main.link.firmwareVersion = "1.KD1";
  script.peer.answer("gN", "1K");
  EXPECT_FALSE(getFirmwareVersion(script.main));
  EXPECT_EQ(script.main.link.firmwareVersion, "1.KD1");
  EXPECT_EQ(script.main.exchange.lastFailure, ExchangeFailure::ShortReply);
  EXPECT_FALSE(getChipID(script.main) || getUserID(script.main));
  EXPECT_EQ(getYorCT(script.main), 0);
  EXPECT_DOUBLE_EQ(script.nowMs(), 100 + 200 + 800 + 600);
}

std::string shown(double value) {
  return formatDate(value, "mm/dd/yy hh:nn:ss");
}

TEST(ClockValue, IsLocalTime) {
  constexpr UtcOffset kFiveHoursWest{5.0 / 24};
  EXPECT_EQ(shown(*clockValue("02:00:00 01/01/2024", kFiveHoursWest)), "12/31/23 21:00:00");
  for (const char* none : {"", "1x:30:05 03/05/2024", "14:30:05 --/05/2024"})
    EXPECT_FALSE(clockValue(none, kFiveHoursWest)) << none;
}

TEST(ClockBytes, ArePackedDecimalAndTheWeekday) {
  EXPECT_EQ(clockBytes(dateValue({2018, 12, 31, 23, 59, 58})), "\x23\x59\x58\x12\x31\x18\x01");
  const double saturday = dateValue({2024, 3, 2, 23, 59, 59});
  EXPECT_EQ(clockBytes(saturday), "\x23\x59\x59\x03\x02\x24\x06");
  // Its last half second belongs to Sunday, in the weekday too.
  EXPECT_EQ(clockBytes(saturday + 0.7 / 86400), std::string("\0\0\0\x03\x03\x24\0", 7));
}

TEST(Clock, IsSetInUniversalTimeAndReadBackInLocalTime) {
  World world;
  SetupElements& setup = world.main.setup;
  setup.timeNumEdit.setValue(dateValue({2025, 7, 4, 20, 15, 30}));
  EXPECT_TRUE(setTime(world.main));
  EXPECT_EQ(shown(setup.timeNumEdit.value()), "07/05/25 01:15:30");
  EXPECT_EQ(world.commands().back(), "s;\x01\x15\x30\x07\x05\x25\x06");
  EXPECT_TRUE(getTime(world.main));
  EXPECT_EQ(shown(setup.timeNumEdit.value()), "07/04/25 20:15:30");

  world.device.addFault({.kind = simulator::FaultKind::Refuse});
  EXPECT_FALSE(setTime(world.main));
  // A reply that is no date keeps the field, a short one fails.
  const double before = setup.timeNumEdit.value();
  world.device.addFault({.kind = simulator::FaultKind::Garbage, .only = "gR"});
  EXPECT_TRUE(getTime(world.main));
  EXPECT_EQ(setup.timeNumEdit.value(), before);
  world.device.addFault({.kind = simulator::FaultKind::Short, .only = "gR"});
  EXPECT_FALSE(getTime(world.main));
}

}  // namespace
}  // namespace zephon
