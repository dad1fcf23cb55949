#include "protocol/identity.h"

#include <gtest/gtest.h>

#include "protocol/clock.h"
#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::Script;
using testing_support::World;

TEST(IdentityTexts, OfTheDevicesBytes) {
  EXPECT_EQ(firmwareText("1KD1", 0), "1.KD1");  // only the first line leaves the point out
  EXPECT_EQ(firmwareText("1*14", 1), "1*14");
  EXPECT_EQ(chipText(std::string("\x01-\xA2-\xFF", 5)), "01.A2.FF");
  EXPECT_EQ(nameBytes("PANEL 7"), "   PANEL 7");
  EXPECT_EQ(nameBytes("0123456789AB"), "0123456789");
  EXPECT_EQ(nameBytes("K\u00FCche"), "     K\xFC\x63he");
}

TEST(Identity, OfTheSecondLineHasANameOfTheToolsOwn) {
  World second({.line = simulator::Line::Tessara});
  EXPECT_TRUE(getFirmwareVersion(second.main) && getChipID(second.main) && getUserID(second.main));
  EXPECT_EQ(second.main.link.chipID, "4C.5A.17");
  EXPECT_EQ(second.main.frame.formCaption.caption(), "QLT Zephon Diagnostic Tool:    TessaraPCS");
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

TEST(SetUserID, SendsACharacterAtATimeWhileThePageButtonsAreHeld) {
  World world;
  Main& main = world.main;
  main.setup.userIDtxt.setText("PANEL 7");
  world.later(100, [&] { EXPECT_FALSE(main.frame.measBtn.enabled() || main.frame.setupBtn.enabled()); });
  EXPECT_TRUE(setUserID(main));
  EXPECT_TRUE(main.frame.measBtn.enabled());
  EXPECT_EQ(world.device.device().userId, "   PANEL 7");
  EXPECT_EQ(main.setup.updateIDBtn.caption(), "Updating...");
  EXPECT_EQ(Millis(world.line.written().back().at).count(), 50 + 10 * 20);
}

}  // namespace
}  // namespace zephon
