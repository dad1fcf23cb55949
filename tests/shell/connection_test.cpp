#include "shell/connection.h"

#include <gtest/gtest.h>

#include "shell/tool.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;

TEST(Connect, TellsTheLineByTheAnswer) {
  // The device's rating and firmware, the line assumed, and the last that is asked.
  const std::tuple<Line, int, const char*, std::int16_t, const char*> cases[] = {
      {Line::Orvantis, 240, "1KD1", 0, "gV"}, {Line::Orvantis, 120, "1GB0", 1, "gV"},
      {Line::Tessara, 120, "2.00", 0, "i"},   {Line::Tessara, 120, "2.00", 1, "i"},
      {Line::Tessara, 240, "1*14", 0, "g"},   {Line::Tessara, 240, "1*13", 0, "i"}};
  for (const auto& [line, rating, firmware, assumed, last] : cases) {
    SCOPED_TRACE(firmware);
    simulator::Profile profile = makeProfile(line, rating);
    profile.firmware = firmware;
    Tool tool(profile);
    tool.main.link.modelLine = assumed;
    ASSERT_TRUE(connectSub(tool.main));
    const Link& link = tool.main.link;
    EXPECT_TRUE(link.connected && link.nominalVolts == rating && link.ratedVolts == rating);
    EXPECT_EQ(link.modelLine, line == Line::Tessara ? 1 : 0);
    EXPECT_EQ(link.firmwareVersion, profile.version());
    EXPECT_TRUE(tool.line.modemLines(1).rts && tool.line.modemLines(1).dtr) << "they feed the cable";
    EXPECT_EQ(tool.device.heard().back().command, last);
    disconnectSub(tool.main);
    EXPECT_TRUE(tool.idle() && tool.dialogs.shown().empty());
  }
}

class Pages : public ::testing::Test {
 protected:
  Tool tool;
  FrameElements& f = tool.main.frame;
  const std::vector<std::string> lostOnce = {tool.main.dict[46]};
};

TEST_F(Pages, ADeadLineIsToldOnceAndTheNextPressConnectsAfresh) {
  tool.device.cutLine();
  tool.press(f.measBtn);
  EXPECT_EQ(tool.dialogs.texts(), lostOnce);
  EXPECT_EQ(tool.main.link.modelLine, 1);  // the line tried last
  EXPECT_TRUE(tool.idle() && !f.measBtn.value());
  tool.device.restoreLine();
  tool.press(f.measBtn);
  EXPECT_TRUE(tool.main.pages.measuring && tool.dialogs.texts() == lostOnce);
}

TEST_F(Pages, APortThatCantBeOpenedIsToldInTheSystemsWords) {
  tool.line.detach(1);
  tool.press(f.setupBtn);
  const std::string why = "Error (2): CommOpen (CreateFile) - No such file or directory";
  EXPECT_EQ(tool.dialogs.texts(), std::vector{"COM Error: " + why});
  tool.press(f.dataBtn);  // files can be opened without a device
  EXPECT_TRUE(tool.main.pages.dataOn);
  tool.line.attach(&tool.device, 1);
  tool.press(f.measBtn);
  EXPECT_TRUE(tool.main.pages.measuring);
  EXPECT_EQ(tool.dialogs.shown().size(), 1U);
}

TEST_F(Pages, TheLastPageSwitchedOffEndsTheConnectionAndWhatWasAskedForOnIt) {
  tool.press(f.measBtn);
  tool.run(50);
  tool.press(tool.main.measurement.clrCountBtn);
  tool.press(f.setupBtn);
  EXPECT_TRUE(tool.main.link.connected && !f.measBtn.value());
  tool.press(f.outletsBtn);
  EXPECT_TRUE(tool.line.opens() == 1 && !f.comBtn.visible());
  tool.press(f.outletsBtn);
  EXPECT_TRUE(tool.idle() && f.comBtn.visible());
  EXPECT_FALSE(tool.main.counters.clearCountsRequest);
}

TEST_F(Pages, ThreeFailedPassesAreForgivenTheFourthIsALostLink) {
  tool.press(f.measBtn);
  tool.run(1000);
  tool.device.addFault({.kind = FaultKind::Silent, .only = "g4", .commands = 3});
  tool.run(2000);
  EXPECT_TRUE(tool.main.pages.measuring && tool.dialogs.shown().empty());
  tool.device.addFault({.kind = FaultKind::Silent, .only = "g4", .commands = 4});
  tool.run(2000);
  EXPECT_TRUE(tool.dialogs.texts() == lostOnce && tool.idle() && !f.measBtn.value());
}

// A page pressed while another one is still reading who the device is.
TEST(Identity, IsWholeWhateverIsPressedMeanwhile) {
  for (const Line line : {Line::Orvantis, Line::Tessara}) {
    for (std::size_t question = 1; question <= 5; ++question) {
      Tool tool(makeProfile(line, 240));
      FrameElements& f = tool.main.frame;
      std::function<void()> pressInTheMiddle = [&] {
        if (tool.device.heard().size() < question) return tool.later(0.2, pressInTheMiddle);
        f.outletsBtn.click();
      };
      pressInTheMiddle();
      tool.press(f.setupBtn);
      tool.run(5000);
      const Link& link = tool.main.link;
      ASSERT_TRUE(link.identified && link.nominalVolts == 240 && !link.chipID.empty()) << question;
      ASSERT_EQ(link.firmwareVersion, tool.device.profile().version()) << question;
      ASSERT_TRUE(tool.dialogs.shown().empty() && !link.userID.empty()) << question;
    }
  }
}

}  // namespace
}  // namespace zephon
