#include "shell/connection.h"

#include <gtest/gtest.h>

#include "shell/tool.h"
#include "shell/visit.h"

namespace zephon {
namespace {

using simulator::Fault;
using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;

TEST(Start, TheWordExpertEndsTheProgramInAnyLetters) {
  for (const char* word : {"expert", "EXPERT", "Expert"}) {
    Tool tool;
    EXPECT_EQ(formLoad(tool.main, word), Started::Ended);
    EXPECT_TRUE(tool.dialogs.shown().empty());
  }
  Tool tool;
  EXPECT_EQ(formLoad(tool.main, "expert "), Started::Export);
  EXPECT_EQ(formLoad(tool.main, "-m"), Started::Export);
}

struct Found {
  Line line;
  int rating;
  const char* firmware;
  std::int16_t assumed;
  bool asksForWiring;
};

class Connect : public ::testing::TestWithParam<Found> {};

TEST_P(Connect, TellsTheLineByTheAnswer) {
  const Found& found = GetParam();
  simulator::Profile profile = makeProfile(found.line, found.rating);
  profile.firmware = found.firmware;
  Tool tool(profile);
  tool.main.link.modelLine = found.assumed;
  ASSERT_TRUE(connectSub(tool.main));
  const Link& link = tool.main.link;
  EXPECT_TRUE(link.connected && !tool.main.frame.comBtn.visible());
  EXPECT_EQ(link.modelLine, found.line == Line::Tessara ? 1 : 0);
  EXPECT_TRUE(link.nominalVolts == found.rating && link.ratedVolts == found.rating);
  EXPECT_EQ(link.firmwareVersion, profile.version());
  EXPECT_TRUE(tool.dialogs.shown().empty());
  bool asked = false;
  for (const auto& heard : tool.device.heard()) asked = asked || heard.command == "g";
  EXPECT_EQ(asked, found.asksForWiring);
  disconnectSub(tool.main);
  EXPECT_TRUE(tool.idle());
}

INSTANTIATE_TEST_SUITE_P(Lines, Connect,
                         ::testing::Values(Found{Line::Orvantis, 240, "1KD1", 0, false},
                                           Found{Line::Orvantis, 120, "1GB0", 1, false},
                                           Found{Line::Tessara, 120, "2.00", 0, false},
                                           Found{Line::Tessara, 120, "2.00", 1, false},
                                           Found{Line::Tessara, 240, "1*14", 0, true},
                                           Found{Line::Tessara, 240, "1*13", 0, false}));

class Pages : public ::testing::Test {
 protected:
  // How often the user was told that the link is lost.
  int lostTold() const {
    int count = 0;
    for (const auto& text : tool.dialogs.texts()) count += text == tool.main.dict[46];
    return count;
  }
  Tool tool;
  FrameElements& f = tool.main.frame;
};

TEST_F(Pages, ADeadLineIsToldOnceAndTheNextPressConnectsAfresh) {
  tool.device.cutLine();
  tool.press(f.measBtn);
  EXPECT_EQ(lostTold(), 1);
  EXPECT_FALSE(f.measBtn.value());
  EXPECT_EQ(tool.main.link.modelLine, 1);  // the line tried last
  EXPECT_TRUE(tool.idle());
  tool.device.restoreLine();
  tool.press(f.measBtn);
  EXPECT_TRUE(tool.main.pages.measuring);
  EXPECT_EQ(lostTold(), 1);
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
  EXPECT_TRUE(tool.dialogs.shown().empty());
  tool.line.attach(&tool.device, 1);
  tool.press(f.measBtn);
  EXPECT_TRUE(tool.main.pages.measuring);
  EXPECT_TRUE(tool.dialogs.shown().empty());
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
  EXPECT_TRUE(tool.main.pages.measuring);
  EXPECT_EQ(lostTold(), 0);
  tool.device.addFault({.kind = FaultKind::Silent, .only = "g4", .commands = 4});
  tool.run(2000);
  EXPECT_FALSE(f.measBtn.value());
  EXPECT_EQ(lostTold(), 1);
  EXPECT_TRUE(tool.idle());
}

// Whatever is pressed at whatever moment of an opening page: nothing is told, nothing is left over, and no
// call meets a port that is not open.
TEST_F(Pages, LeavingAPageInTheMiddleOfAnythingIsNotALostLink) {
  Button* const pages[] = {&f.measBtn, &f.setupBtn, &f.outletsBtn, &f.dataBtn};
  for (Button* from : pages) {
    for (Button* to : {from, static_cast<Button*>(&f.measBtn), static_cast<Button*>(&f.setupBtn),
                       static_cast<Button*>(&f.comBtn)}) {
      for (double moment = 0.05; moment < 1500; moment *= 1.7) {
        tool.later(moment, [to] { to->click(); });
        tool.press(*from);
        tool.run(3000);
        for (Button* page : pages) page->setValue(false);
        f.comBtn.setValue(false);
        tool.run(3000);
        ASSERT_TRUE(tool.idle()) << from->name() << " " << to->name() << " " << moment;
        ASSERT_TRUE(tool.dialogs.shown().empty()) << from->name() << " " << to->name() << " " << moment;
      }
    }
  }
  EXPECT_EQ(tool.line.strayCalls(), 0);
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

TEST(Closing, LeavesNoDeviceWithHalfAWrite) {
  for (double moment = 1; moment < 700; moment += 13) {
    Tool tool;
    tool.press(tool.main.frame.setupBtn);
    tool.line.forgetWritten();
    tool.later(moment, [&] { formUnload(tool.main); });
    tool.press(moment < 350 ? tool.main.setup.updateLimsBtn : tool.main.setup.setTimeBtn);
    tool.run(3000);
    EXPECT_TRUE(tool.main.ending);
    const auto writes = tool.writes();
    for (std::size_t i = 0; i < writes.size(); ++i) {
      const std::size_t values = writes[i] == "s;" ? 7 : writes[i].size() == 2 && writes[i][0] == 's' ? 1 : 0;
      ASSERT_LT(i + values, writes.size()) << writes[i] << " " << moment;
      for (std::size_t k = 1; k <= values; ++k)
        EXPECT_EQ(writes[i + k].size(), 1U) << writes[i] << " " << moment;
    }
  }
}

TEST(Closing, EndsFromTheMiddleOfAnythingWithinASecond) {
  for (double moment = 0.05; moment < 3000; moment *= 1.9) {
    Tool tool(makeProfile(Line::Tessara));
    double closed = 0;
    tool.later(moment, [&] {
      closed = tool.nowMs();
      formUnload(tool.main);
    });
    tool.press(tool.main.frame.measBtn);
    tool.run(5000);
    EXPECT_TRUE(tool.dialogs.shown().empty()) << moment;
    EXPECT_FALSE(tool.port().open) << moment;
    EXPECT_FALSE(tool.main.exchange.Timer1.enabled()) << moment;
    for (const auto& heard : tool.line.written())
      EXPECT_LE(Millis(heard.at).count(), closed + 1000) << moment;
  }
}

}  // namespace
}  // namespace zephon
