#include "shell/connection.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "shell/tool.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;

TEST(Connect, TellsTheLineByTheAnswer) {
  const struct {
    Line line;
    int rating;
    const char* firmware;
    std::int16_t assumed;
    bool asksForWiring;
  } cases[] = {{Line::Orvantis, 240, "1KD1", 0, false}, {Line::Orvantis, 120, "1GB0", 1, false},
               {Line::Tessara, 120, "2.00", 0, false},  {Line::Tessara, 120, "2.00", 1, false},
               {Line::Tessara, 240, "1*14", 0, true},   {Line::Tessara, 240, "1*13", 0, false}};
  for (const auto& each : cases) {
    SCOPED_TRACE(each.firmware);
    simulator::Profile profile = makeProfile(each.line, each.rating);
    profile.firmware = each.firmware;
    Tool tool(profile);
    tool.main.link.modelLine = each.assumed;
    ASSERT_TRUE(connectSub(tool.main));
    const Link& link = tool.main.link;
    EXPECT_TRUE(link.connected && !tool.main.frame.comBtn.visible());
    EXPECT_EQ(link.modelLine, each.line == Line::Tessara ? 1 : 0);
    EXPECT_TRUE(link.nominalVolts == each.rating && link.ratedVolts == each.rating);
    EXPECT_EQ(link.firmwareVersion, profile.version());
    EXPECT_TRUE(tool.line.modemLines(1).rts && tool.line.modemLines(1).dtr) << "they feed the cable";
    EXPECT_TRUE(tool.dialogs.shown().empty());
    const auto& heard = tool.device.heard();
    EXPECT_EQ(std::any_of(heard.begin(), heard.end(), [](const auto& one) { return one.command == "g"; }),
              each.asksForWiring);
    disconnectSub(tool.main);
    EXPECT_TRUE(tool.idle());
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
  EXPECT_TRUE(tool.main.pages.measuring);
  EXPECT_EQ(tool.dialogs.texts(), lostOnce);
}

TEST_F(Pages, APortThatCantBeOpenedIsToldInTheSystemsWords) {
  tool.line.detach(1);
  tool.press(f.setupBtn);
  EXPECT_EQ(
      tool.dialogs.texts(),
      (std::vector<std::string>{"COM Error: Error (2): CommOpen (CreateFile) - No such file or directory"}));
  EXPECT_TRUE(tool.idle());
  EXPECT_NE(f.linkLbl.caption().find("No such file"), std::string::npos);
  tool.dialogs.forget();
  tool.press(f.dataBtn);  // files can be opened without a device
  EXPECT_TRUE(tool.main.pages.dataOn);
  tool.line.attach(&tool.device, 1);
  tool.press(f.measBtn);
  EXPECT_TRUE(tool.main.pages.measuring && tool.dialogs.shown().empty());
}

TEST_F(Pages, TheLastPageSwitchedOffEndsTheConnectionAndWhatWasAskedForOnIt) {
  tool.press(f.measBtn);
  tool.run(50);
  tool.press(tool.main.measurement.clrCountBtn);
  EXPECT_TRUE(tool.main.counters.clearCountsRequest);
  tool.press(f.setupBtn);
  EXPECT_FALSE(f.measBtn.value());
  EXPECT_TRUE(tool.main.link.connected);
  tool.press(f.outletsBtn);
  EXPECT_EQ(tool.line.opens(), 1);
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
  EXPECT_EQ(tool.dialogs.texts(), lostOnce);
  EXPECT_TRUE(tool.idle() && !f.measBtn.value());
}

// A page pressed while another one is still reading who the device is.
TEST(Identity, IsWholeWhateverIsPressedMeanwhile) {
  for (const Line line : {Line::Orvantis, Line::Tessara}) {
    for (double moment = 0.1; moment < 420; moment *= 1.15) {
      Tool tool(makeProfile(line, 240));
      FrameElements& f = tool.main.frame;
      tool.later(moment, [&] { f.outletsBtn.click(); });
      tool.press(f.setupBtn);
      tool.run(5000);
      const Link& link = tool.main.link;
      ASSERT_TRUE(link.connected && link.identified) << moment;
      ASSERT_EQ(link.nominalVolts, 240) << moment;
      ASSERT_EQ(link.firmwareVersion, tool.device.profile().version()) << moment;
      ASSERT_FALSE(link.chipID.empty() || link.userID.empty()) << moment;
      ASSERT_TRUE(tool.dialogs.shown().empty()) << moment;
    }
  }
}

}  // namespace
}  // namespace zephon
