#include "display/setup_page.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "display/setup_controls.h"
#include "protocol/limit_editors.h"
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
         {&s.startInternalCMbtn, &s.enableGndBtn, &s.enableOLcoBtn, &s.enablePowerFailHoldBtn}) {
      button->setVisible(profile.line == Line::Orvantis);
    }
  }
  bool controlsEnabled(bool on) const {
    const Element* const held[] = {&s.updateLimsBtn,         &s.updateIDBtn,     &s.setTimeBtn,
                                   &s.setTimeAutoBtn,        &s.enableAutoTXbtn, &s.startInternalCMbtn,
                                   &s.enableGndBtn,          &s.enableOLcoBtn,   &s.timeNumEdit,
                                   &s.enablePowerFailHoldBtn};
    return std::all_of(std::begin(held), std::end(held),
                       [on](const Element* one) { return one->enabled() == on; });
  }
  const std::string& text(std::size_t key) const { return main.dict[key]; }
  std::string captions() const {
    return s.updateLimsBtn.caption() + s.updateIDBtn.caption() + s.setTimeBtn.caption() +
           s.setTimeAutoBtn.caption();
  }
  std::string clockShown() const { return formatDate(s.timeNumEdit.value(), "mm/dd/yy hh:nn:ss"); }
  simulator::Device& unit() { return device.device(); }

  SetupElements& s = main.setup;
  int lost = 0;
};

TEST(ReadSetupPage, AsksInOrderWithItsControlsHeld) {
  SetupWorld first;
  first.device.addFault({.kind = FaultKind::Late, .amount = 100, .only = "gg"});
  first.s.enableGndBtn.onChange = [&](bool) { EXPECT_FALSE(first.s.enableGndBtn.enabled()); };
  first.later(60, [&] {
    EXPECT_TRUE(first.controlsEnabled(false));
    first.s.enableGndBtn.click();
  });
  EXPECT_TRUE(readSetupPage(first.main));
  EXPECT_EQ(first.commands(),
            (Commands{"gH", "gI", "gJ", "gM", "gL", "gK", "gZ", "gR", "gY", "ga", "gb", "gg", "gh", "g^"}));
  EXPECT_TRUE(first.controlsEnabled(true));
  first.device.clearLog();
  for (Button* hidden : {&first.s.enableOLcoBtn, &first.s.enableAutoTXbtn}) hidden->setVisible(false);
  EXPECT_TRUE(readSetupPage(first.main));
  EXPECT_EQ(first.commands().size(), 12U) << "what older firmware lacks is not asked for";
  SetupWorld second(makeProfile(Line::Tessara));
  EXPECT_TRUE(readSetupPage(second.main));
  EXPECT_EQ(second.commands(), (Commands{"+", "t", "j"}));
}

TEST(ReadSetupPage, EndsAtTheFirstFailureWithItsControlsFree) {
  for (const char* command : {"gK", "gR", "gY", "ga", "gh", "g^"}) {
    SetupWorld setup;
    setup.device.addFault({.kind = FaultKind::Silent, .only = command});
    EXPECT_FALSE(readSetupPage(setup.main)) << command;
    EXPECT_EQ(setup.commands().back(), command);
    EXPECT_TRUE(setup.controlsEnabled(true)) << command;
  }
}

TEST(SetupPage, LimitsAreWrittenReadBackAndNoted) {
  SetupWorld setup;
  setup.s.OVcoNumEdit.edit(143);
  setup.s.OVreNumEdit.edit(141);
  setup.device.addFault({.kind = FaultKind::Refuse, .only = "s8"});
  setup.later(200, [&] {
    EXPECT_EQ(setup.s.updateLimsBtn.caption(), setup.text(100));
    EXPECT_TRUE(setup.controlsEnabled(false));
  });
  setup.s.updateLimsBtn.click();
  EXPECT_EQ(setup.unit().registers.ovco, 143);
  EXPECT_EQ(setup.s.OVreNumEdit.value(), 145) << "a refused value comes back changed";
  EXPECT_EQ(setup.s.updateLimsBtn.caption(), setup.text(31));
  EXPECT_TRUE(setup.controlsEnabled(false));
  setup.run(1100);
  EXPECT_EQ(setup.s.updateLimsBtn.caption(), setup.text(32));
  EXPECT_TRUE(setup.controlsEnabled(true) && !setup.main.timers.Timer2.enabled());
  EXPECT_EQ(setup.lost, 0);
}

TEST(SetupPage, DefaultsGoToTheDeviceOnlyWithUpdate) {
  SetupWorld setup(makeProfile(Line::Tessara, 120));
  setup.unit().image.poke(254, 0x88);
  ASSERT_TRUE(readSetupPage(setup.main));
  setup.s.defaultBtn.click();
  EXPECT_EQ(setup.unit().image.at(254), 0x88);
  setup.s.updateLimsBtn.click();
  EXPECT_EQ(setup.unit().image.at(254), 0x00);
  EXPECT_EQ(editorValues(setup.s), (LimitValues{150, 135, 140, 105, 100, 0, 0}));
}

TEST(SetupPage, NameAndClock) {
  SetupWorld setup;
  setup.s.userIDtxt.type("PRESS 7");
  setup.s.updateIDBtn.click();
  EXPECT_EQ(setup.unit().userId, "   PRESS 7");
  setup.run(1100);
  setup.s.timeNumEdit.edit(dateValue({2018, 12, 31, 18, 59, 58}));
  setup.s.setTimeBtn.click();
  EXPECT_EQ(setup.s.setTimeBtn.caption() + setup.s.setTimeAutoBtn.caption(), setup.text(31) + setup.text(35));
  setup.run(3010);
  EXPECT_EQ(setup.clockShown(), "12/31/18 19:00:01");
  setup.s.timeNumEdit.beginEdit();
  setup.run(3000);
  EXPECT_EQ(setup.clockShown(), "12/31/18 19:00:01") << "it stands still while it is edited";
  setup.s.setTimeAutoBtn.click();
  EXPECT_NEAR(double(setup.unit().clock()), double(World::kUnixStart) + setup.nowMs() / 1000, 1.0);
  EXPECT_EQ(setup.lost, 0);
}

TEST(SetupPage, OptionsAreTurnedBothWaysAndReadBack) {
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
      EXPECT_EQ((setup.s.*c.button).caption() == setup.text(31), on && chart);
      EXPECT_TRUE(setup.controlsEnabled(!(on && chart)));
      setup.run(1100);
      EXPECT_TRUE(setup.controlsEnabled(true));
    }
    EXPECT_EQ(setup.lost, 0);
  }
}

TEST(SetupPage, Wiring) {
  SetupWorld setup(makeProfile(Line::Tessara, 240));
  for (const bool wye : {!setup.unit().centreTapped, setup.unit().centreTapped}) {
    setup.s.YorCTbutton.setValue(!wye);
    setup.s.YorCTbutton.setValue(wye);
    EXPECT_EQ(setup.unit().centreTapped, !wye);
    EXPECT_TRUE(setup.s.YorCTbutton.value() == wye && setup.s.YorCTbutton.enabled());
  }
  setup.device.cutLine();
  setup.s.YorCTbutton.click();
  EXPECT_EQ(setup.lost, 1);
}

// Every write that fails: a lost link while the page is wanted, silence once it was left; the controls are
// free and say what they do either way.
TEST(SetupPage, FailureExits) {
  using E = SetupElements;
  const struct {
    Button E::*button;
    const char* command;
    FaultKind kind;
  } cases[] = {
      {&E::updateLimsBtn, "gM", FaultKind::Silent},  {&E::updateIDBtn, "s:", FaultKind::Refuse},
      {&E::updateIDBtn, "gP", FaultKind::Short},     {&E::setTimeBtn, "s;", FaultKind::Silent},
      {&E::setTimeAutoBtn, "gR", FaultKind::Cut},    {&E::enableAutoTXbtn, "sC", FaultKind::Refuse},
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
      EXPECT_FALSE(setup.main.timers.Timer2.enabled()) << c.command;
      EXPECT_EQ(setup.captions(), setup.text(32) + setup.text(33) + setup.text(34) + setup.text(35));
    }
  }
}

TEST(SetupPage, ANoteThatOutlivesTheLinkLeavesTheControlsHeldForTheNextVisit) {
  SetupWorld setup;
  ASSERT_TRUE(readSetupPage(setup.main));
  setup.s.updateIDBtn.click();
  setup.main.link.connected = false;
  setup.run(1100);
  EXPECT_EQ(setup.s.updateIDBtn.caption(), setup.text(33));
  EXPECT_TRUE(setup.controlsEnabled(false));
  setup.main.link.connected = true;
  ASSERT_TRUE(readSetupPage(setup.main));
  EXPECT_TRUE(setup.controlsEnabled(true));
}

}  // namespace
}  // namespace zephon
