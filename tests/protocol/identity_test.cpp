#include "protocol/identity.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::Script;
using testing_support::World;

TEST(FirmwareText, OnlyTheFirstLineLeavesThePointOut) {
  EXPECT_EQ(firmwareText("1KD1", 0), "1.KD1");
  EXPECT_EQ(firmwareText("2.00", 1), "2.00");
  EXPECT_EQ(firmwareText("1*14", 1), "1*14");
  EXPECT_EQ(firmwareText("", 0), "");
}

TEST(ChipText, TakesTheOddBytes) {
  EXPECT_EQ(chipText(std::string("\x01-\xA2-\xFF", 5)), "01.A2.FF");
  EXPECT_EQ(chipText(std::string("\0\0\0\0\0", 5)), "00.00.00");
}

TEST(NameBytes, AreTenFilledUpInFront) {
  EXPECT_EQ(nameBytes("PANEL 7"), "   PANEL 7");
  EXPECT_EQ(nameBytes(""), "          ");
  EXPECT_EQ(nameBytes("0123456789"), "0123456789");
  EXPECT_EQ(nameBytes("0123456789AB"), "0123456789");
  EXPECT_EQ(nameBytes("K\xC3\xBC"
                      "che"),
            "     K\xFC"
            "che");
}

TEST(Identity, IsReadOnBothLines) {
  World first({.userId = "LAB 3     "});
  EXPECT_TRUE(getFirmwareVersion(first.main) && getChipID(first.main) && getUserID(first.main));
  EXPECT_EQ(first.commands(), (std::vector<std::string>{"gN", "gO", "gP"}));
  EXPECT_EQ(first.main.link.firmwareVersion, "1.KD1");
  EXPECT_EQ(first.main.link.chipID, "4C.5A.17");
  EXPECT_EQ(first.main.frame.formCaption.caption(), "QLT Zephon Diagnostic Tool:    LAB 3     ");
  EXPECT_EQ(first.main.setup.userIDtxt.text(), "LAB 3     ");

  World second({.line = simulator::Line::Tessara, .rating = 240, .firmware = "1*14"});
  EXPECT_TRUE(getFirmwareVersion(second.main) && getChipID(second.main) && getUserID(second.main));
  EXPECT_EQ(second.commands(), (std::vector<std::string>{"r", "i"}));
  EXPECT_EQ(second.main.link.firmwareVersion, "1*14");
  EXPECT_EQ(second.main.link.userID, "TessaraPCS");
  second.main.setup.userIDtxt.setText("BACK ROOM");
  EXPECT_TRUE(setUserID(second.main) && getUserID(second.main));
  EXPECT_EQ(second.main.frame.formCaption.caption(), "QLT Zephon Diagnostic Tool:    BACK ROOM");
  EXPECT_EQ(second.commands().size(), 2u);
}

TEST(Identity, AFailedExchangeLeavesNoHalfText) {
  Script script;
  script.main.link.firmwareVersion = "1.KD1";
  script.peer.answer("gN", "1K");
  EXPECT_FALSE(getFirmwareVersion(script.main));
  EXPECT_EQ(script.main.link.firmwareVersion, "");
  EXPECT_EQ(script.main.exchange.lastFailure, ExchangeFailure::ShortReply);
  EXPECT_DOUBLE_EQ(script.nowMs(), 100);
  EXPECT_FALSE(getChipID(script.main));
  EXPECT_DOUBLE_EQ(script.nowMs(), 300);
  EXPECT_FALSE(getUserID(script.main));
  EXPECT_EQ(script.main.exchange.lastFailure, ExchangeFailure::TimedOut);
  EXPECT_DOUBLE_EQ(script.nowMs(), 1100);
  script.peer.answer("gN", "noise 1KD1");
  EXPECT_TRUE(getFirmwareVersion(script.main));
  EXPECT_EQ(script.main.link.firmwareVersion, "1.KD1");
}

TEST(SetUserID, SendsTheNameACharacterAtATimeWhilePageButtonsAreHeld) {
  World world;
  world.main.setup.userIDtxt.setText("PANEL 7");
  bool held = false;
  world.later(100,
              [&] { held = !world.main.frame.measBtn.enabled() && !world.main.frame.setupBtn.enabled(); });
  EXPECT_TRUE(setUserID(world.main));
  EXPECT_TRUE(held);
  EXPECT_TRUE(world.main.frame.measBtn.enabled());
  EXPECT_EQ(world.device.device().userId, "   PANEL 7");
  EXPECT_EQ(world.main.setup.updateIDBtn.caption(), world.main.dict[100]);
  const auto& written = world.line.written();
  ASSERT_EQ(written.size(), 11u);
  EXPECT_EQ(Millis(written[1].at - written[0].at).count(), 70);  // 50, and 20 before each character
  EXPECT_EQ(Millis(written[10].at - written[9].at).count(), 20);

  world.device.addFault({.kind = simulator::FaultKind::Refuse});
  EXPECT_FALSE(setUserID(world.main));
  EXPECT_EQ(world.main.exchange.lastFailure, ExchangeFailure::TimedOut);
}

}  // namespace
}  // namespace zephon
