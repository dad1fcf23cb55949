#include "shell/page_layout.h"

#include <gtest/gtest.h>

#include "shell/tool.h"

namespace zephon {
namespace {

using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;

// A device's firmware as it goes over the wire, and which of the gated controls it should show.
struct Gate {
  Line line;
  int rating;
  const char* firmware;
  const char* shown;
};

// One letter a control: T automatic transmit, M chart memory, G ground detection, O overload shutdown, P
// power fail hold, W wiring.
std::string gatesShown(const SetupElements& s) {
  std::string shown;
  if (s.enableAutoTXbtn.visible()) shown += 'T';
  if (s.startInternalCMbtn.visible()) shown += 'M';
  if (s.enableGndBtn.visible()) shown += 'G';
  if (s.enableOLcoBtn.visible()) shown += 'O';
  if (s.enablePowerFailHoldBtn.visible()) shown += 'P';
  if (s.YorCTbutton.visible() && s.yLbl.visible() && s.ctLbl.visible()) shown += 'W';
  return shown;
}

TEST(Gates, SetupShowsWhatTheFirmwareHas) {
  const Gate gates[] = {
      {Line::Orvantis, 120, "1GAZ", ""},      {Line::Orvantis, 120, "1GB0", "TM"},
      {Line::Orvantis, 120, "1GB1", "TM"},    {Line::Orvantis, 120, "1IBQ", "TM"},
      {Line::Orvantis, 120, "1IBR", "TMG"},   {Line::Orvantis, 120, "1IBS", "TMG"},
      {Line::Orvantis, 120, "1JB2", "TMG"},   {Line::Orvantis, 120, "1JB3", "TMG"},
      {Line::Orvantis, 120, "1JD0", "TMG"},   {Line::Orvantis, 120, "1JD1", "TMGO"},
      {Line::Orvantis, 120, "1JD2", "TMGO"},  {Line::Orvantis, 120, "1KD0", "TMGO"},
      {Line::Orvantis, 120, "1KD1", "TMGOP"}, {Line::Orvantis, 240, "1KD2", "TMGOP"},
      {Line::Tessara, 120, "1.66", ""},       {Line::Tessara, 120, "1.67", "T"},
      {Line::Tessara, 120, "1.68", "T"},      {Line::Tessara, 120, "2.00", "T"},
      {Line::Tessara, 240, "1*13", ""},       {Line::Tessara, 240, "1*14", "W"},
      {Line::Tessara, 240, "1*15", "W"},
  };
  for (const Gate& gate : gates) {
    simulator::Profile profile = makeProfile(gate.line, gate.rating);
    profile.firmware = gate.firmware;
    Tool tool(profile);
    tool.press(tool.main.frame.setupBtn);
    ASSERT_TRUE(tool.main.pages.setupOn) << gate.firmware;
    EXPECT_EQ(gatesShown(tool.main.setup), gate.shown) << gate.firmware;
    const bool first = gate.line == Line::Orvantis;
    for (const Element* element :
         std::initializer_list<const Element*>{&tool.main.setup.timeNumEdit, &tool.main.setup.setTimeBtn,
                                               &tool.main.setup.OLreNumEdit, &tool.main.frame.EUlbl}) {
      EXPECT_EQ(element->visible(), first) << element->name();
    }
    EXPECT_EQ(tool.main.setup.OVrsNumEdit.enabled(), first);
    EXPECT_EQ(tool.main.frame.ScopeBtn.enabled(), first);
    tool.press(tool.main.frame.setupBtn);
    EXPECT_EQ(gatesShown(tool.main.setup), "");
  }
}

TEST(Gates, MeasurementAndDataShowWhatTheDeviceMeasures) {
  const struct {
    Line line;
    int rating;
    const char* firmware;
    bool overloads, current, neutral, history, memory;
  } gates[] = {
      {Line::Orvantis, 120, "1GAZ", false, true, true, true, false},
      {Line::Orvantis, 120, "1GB0", true, true, true, true, true},
      {Line::Tessara, 120, "1.99", false, false, false, false, false},
      {Line::Tessara, 120, "2.00", false, false, true, false, false},
      {Line::Tessara, 240, "1*14", false, false, false, false, false},
  };
  for (const auto& gate : gates) {
    simulator::Profile profile = makeProfile(gate.line, gate.rating);
    profile.firmware = gate.firmware;
    Tool tool(profile);
    const MeasurementElements& m = tool.main.measurement;
    tool.press(tool.main.frame.measBtn);
    ASSERT_TRUE(tool.main.pages.measuring) << gate.firmware;
    EXPECT_EQ(m.OLrecTxt.visible(), gate.overloads) << gate.firmware;
    EXPECT_EQ(m.PDlbl7.visible(), gate.overloads) << gate.firmware;
    for (const Element* element : std::initializer_list<const Element*>{
             &m.ISlide, &m.Plbl, &m.fSlide, &m.pfLbl, &m.cfSlide, &m.EUtxt, &m.EnCostLbl, &m.UVcorecTxt}) {
      EXPECT_EQ(element->visible(), gate.current) << gate.firmware << " " << element->name();
    }
    EXPECT_EQ(m.VngSlide.visible(), gate.neutral) << gate.firmware;
    EXPECT_TRUE(m.VlnLbl.visible() && m.POrecTxt.visible() && m.SGrecTxt.visible());
    tool.press(tool.main.frame.dataBtn);
    EXPECT_FALSE(m.VlnLbl.visible());
    EXPECT_TRUE(tool.main.data.tsDataBtn.visible());
    EXPECT_EQ(tool.main.data.histDataBtn.visible(), gate.history) << gate.firmware;
    EXPECT_EQ(tool.main.data.cmDataBtn.visible(), gate.memory) << gate.firmware;
  }
}

}  // namespace
}  // namespace zephon
