#include "protocol/clock.h"

#include <gtest/gtest.h>

#include "support/bench.h"
#include "text/date_picture.h"

namespace zephon {
namespace {

using testing_support::World;

std::string shown(double value) {
  return formatDate(value, "mm/dd/yy hh:nn:ss");
}

TEST(ClockValue, IsLocalTime) {
  constexpr UtcOffset kFiveHoursWest{5.0 / 24};
  const char* rows[][2] = {{"02:00:00 01/01/2024", "12/31/23 21:00:00"},
                           {"04:59:59 03/01/2024", "02/29/24 23:59:59"},
                           {"12:00:00 13/01/2023", "01/01/24 07:00:00"}};  // month 13 carries
  for (const auto& row : rows) {
    const auto value = clockValue(row[0], kFiveHoursWest);
    EXPECT_EQ(value ? shown(*value) : "none", row[1]);
  }
  for (const char* none : {"", "1x:30:05 03/05/2024", "14:30:05 --/05/2024"}) {
    EXPECT_FALSE(clockValue(none, kFiveHoursWest)) << none;
  }
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
  EXPECT_TRUE(getTime(world.main));
  EXPECT_EQ(shown(setup.timeNumEdit.value()), "03/05/24 09:30:00");
  world.line.forgetWritten();
  setup.timeNumEdit.setValue(dateValue({2025, 7, 4, 20, 15, 30}));
  EXPECT_TRUE(setTime(world.main));
  EXPECT_EQ(shown(setup.timeNumEdit.value()), "07/05/25 01:15:30");
  EXPECT_EQ(world.commands().back(), "s;\x01\x15\x30\x07\x05\x25\x06");
  const auto& written = world.line.written();
  EXPECT_EQ(Millis(written[1].at - written[0].at).count(), 100);
  EXPECT_EQ(Millis(written[7].at - written[1].at).count(), 60);
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

TEST(Wiring, IsWrittenAndReadBack) {
  World world(simulator::makeProfile(simulator::Line::Tessara, 240));
  for (const bool wye : {false, true}) {
    EXPECT_TRUE(setYorCT(world.main, wye));
    EXPECT_EQ(getYorCT(world.main), wye ? 120 : 180);
    EXPECT_EQ(world.main.link.yOrCTflag, !wye);
  }
  EXPECT_EQ(world.commands(), (std::vector<std::string>{"n2", "g", "n1", "g"}));
}

}  // namespace
}  // namespace zephon
