#include "display/setup_page.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/bench.h"
#include "text/calendar.h"
#include "text/date_picture.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::World;
using Commands = std::vector<std::string>;

class SetupWorld : public World {
 public:
  explicit SetupWorld(const simulator::Profile& profile = {}) : World(profile) {
    wireSetupPage(main, {[this] {
                    ++lost;
                    stay(Page::None);
                  }});
    stay(Page::Setup);
    for (Element* element : main.elements.all()) element->setVisible(true);
    s.YorCTbutton.setVisible(profile.rating == 240 && profile.line == Line::Tessara);
    for (Button* button :
         {&s.startInternalCMbtn, &s.enableGndBtn, &s.enableOLcoBtn, &s.enablePowerFailHoldBtn})
      button->setVisible(profile.line == Line::Orvantis);
  }
  bool controlsEnabled(bool on) const {
    const Element* const held[] = {&s.updateLimsBtn, &s.updateIDBtn,     &s.setTimeBtn,
                                   &s.timeNumEdit,   &s.enableAutoTXbtn, &s.enableGndBtn};
    return std::all_of(std::begin(held), std::end(held),
                       [on](const Element* one) { return one->enabled() == on; });
  }
  simulator::Device& unit() { return device.device(); }

  SetupElements& s = main.setup;
  int lost = 0;
};
class SetupPage : public SetupWorld, public testing::Test {};

TEST(ReadSetupPage, AsksInOrderWithItsControlsHeld) {
  SetupWorld first;
  first.device.addFault({.kind = FaultKind::Late, .amount = 100, .only = "gg"});
  first.later(60, [&] {
    EXPECT_TRUE(first.controlsEnabled(false));
    first.s.enableGndBtn.click();
  });
  EXPECT_TRUE(readSetupPage(first.main));
  EXPECT_EQ(first.commands(),
            (Commands{"gH", "gI", "gJ", "gM", "gL", "gK", "gZ", "gR", "gY", "ga", "gb", "gg", "gh", "g^"}));
  first.device.clearLog();
  for (Button* hidden : {&first.s.enableOLcoBtn, &first.s.enableAutoTXbtn}) hidden->setVisible(false);
  EXPECT_TRUE(readSetupPage(first.main));
  EXPECT_EQ(first.commands().size(), 12U) << "what older firmware lacks is not asked for";
  SetupWorld second(makeProfile(Line::Tessara));
  EXPECT_TRUE(readSetupPage(second.main));
  EXPECT_EQ(second.commands(), (Commands{"+", "t", "j"}));
  for (const char* command : {"gK", "gR", "gh", "g^"}) {
    SetupWorld failing;
    failing.device.addFault({.kind = FaultKind::Silent, .only = command});
    EXPECT_FALSE(readSetupPage(failing.main)) << command;
    EXPECT_EQ(failing.commands().back(), command);
    EXPECT_TRUE(failing.controlsEnabled(true)) << command;
  }
}

TEST_F(SetupPage, LimitsAreWrittenReadBackAndNoted) {
  s.OVcoNumEdit.edit(143);
  s.OVreNumEdit.edit(141);
  device.addFault({.kind = FaultKind::Refuse, .only = "s8"});
  later(200, [&] { EXPECT_TRUE(controlsEnabled(false)); });
  s.updateLimsBtn.click();
  EXPECT_EQ(unit().registers.ovco, 143);
  EXPECT_EQ(s.OVreNumEdit.value(), 145) << "a refused value comes back changed";
  EXPECT_EQ(s.updateLimsBtn.caption(), main.dict[31]);
  run(1100);
  EXPECT_EQ(s.updateLimsBtn.caption(), main.dict[32]);
  EXPECT_TRUE(controlsEnabled(true) && lost == 0);

  SetupWorld second(makeProfile(Line::Tessara, 120));
  second.unit().image.poke(254, 0x88);
  ASSERT_TRUE(readSetupPage(second.main));
  second.s.defaultBtn.click();
  EXPECT_EQ(second.unit().image.at(254), 0x88) << "defaults wait for the press too";
  second.s.updateLimsBtn.click();
  EXPECT_EQ(second.unit().image.at(254), 0x00);
}

TEST_F(SetupPage, NameAndClock) {
  s.userIDtxt.type("PRESS 7");
  s.updateIDBtn.click();
  EXPECT_EQ(unit().userId, "   PRESS 7");
  run(1100);
  s.timeNumEdit.edit(dateValue({2018, 12, 31, 18, 59, 58}));
  s.setTimeBtn.click();
  run(3010);
  const double shown = s.timeNumEdit.value();
  EXPECT_EQ(formatDate(shown, "mm/dd/yy hh:nn:ss"), "12/31/18 19:00:01");
  s.timeNumEdit.beginEdit();
  run(3000);
  EXPECT_EQ(s.timeNumEdit.value(), shown) << "it stands still while it is edited";
  s.setTimeAutoBtn.click();
  EXPECT_NEAR(double(unit().clock()), double(World::kUnixStart) + nowMs() / 1000, 1.0);
}

TEST(SetupOptions, OptionsAreTurnedBothWaysAndReadBack) {
  using S = simulator::Switches;
  const struct {
    Button SetupElements::*button;
    bool S::*state;
    Commands on, off;
  } cases[] = {
      {&SetupElements::enableAutoTXbtn, &S::autoTransmit, {"sCY", "g^"}, {"sDY", "g^"}},
      {&SetupElements::enableGndBtn, &S::groundDetection, {"sFY", "gb"}, {"sFN", "gb"}},
      {&SetupElements::enableOLcoBtn, &S::overloadShutdown, {"sHY", "gg"}, {"sIY", "gg"}},
      {&SetupElements::enablePowerFailHoldBtn, &S::powerFailHold, {"sJY", "gh"}, {"sJN", "gh"}},
      {&SetupElements::startInternalCMbtn, &S::chartMemory, {"sEY", "ga"}, {"ga"}},  // it can't be stopped
  };
  for (const auto& c : cases) {
    SetupWorld setup;
    const bool chart = c.button == &SetupElements::startInternalCMbtn;
    setup.unit().switches.*c.state = false;
    ASSERT_TRUE(readSetupPage(setup.main));
    for (const bool on : {true, false}) {
      setup.device.clearLog();
      (setup.s.*c.button).click();
      EXPECT_EQ(setup.commands(), on ? c.on : c.off);
      EXPECT_EQ(setup.unit().switches.*c.state, on || chart);
      EXPECT_EQ((setup.s.*c.button).value(), on || chart);
      setup.run(1100);
      EXPECT_TRUE(setup.controlsEnabled(true));
    }
  }
}

TEST(SetupWiring, TurnsTheDeviceBothWays) {
  SetupWorld setup(makeProfile(Line::Tessara, 240));
  for (const bool wye : {!setup.unit().centreTapped, setup.unit().centreTapped}) {
    setup.s.YorCTbutton.setValue(!wye);
    setup.s.YorCTbutton.setValue(wye);
    EXPECT_EQ(setup.unit().centreTapped, !wye);
    EXPECT_TRUE(setup.s.YorCTbutton.value() == wye && setup.s.YorCTbutton.enabled());
  }
}

TEST(SetupFailures, AreALostLinkWhileThePageIsWantedAndSilenceOnceItWasLeft) {
  using E = SetupElements;
  const struct {
    Button E::*button;
    const char* command;
    FaultKind kind;
  } cases[] = {
      {&E::updateLimsBtn, "gM", FaultKind::Silent},  {&E::updateIDBtn, "s:", FaultKind::Refuse},
      {&E::updateIDBtn, "gP", FaultKind::Short},     {&E::setTimeAutoBtn, "gR", FaultKind::Cut},
      {&E::enableOLcoBtn, "gg", FaultKind::Garbage}, {&E::startInternalCMbtn, "sE", FaultKind::Refuse}};
  for (const auto& c : cases) {
    for (const bool left : {false, true}) {
      SetupWorld setup;
      ASSERT_TRUE(readSetupPage(setup.main));
      setup.device.addFault({.kind = c.kind, .only = c.command});
      if (left) setup.later(30, [&] { setup.stay(Page::None); });
      (setup.s.*c.button).click();
      EXPECT_EQ(setup.lost, left ? 0 : 1) << c.command;
      EXPECT_TRUE(setup.controlsEnabled(true)) << c.command;
      EXPECT_EQ(setup.s.updateLimsBtn.caption() + setup.s.updateIDBtn.caption(),
                setup.main.dict.at(32) + setup.main.dict.at(33));
    }
  }
}

}  // namespace
}  // namespace zephon
