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
      {Line::Orvantis, 120, "1GAZ", ""},     {Line::Orvantis, 120, "1GB0", "TM"},
      {Line::Orvantis, 120, "1IBQ", "TM"},   {Line::Orvantis, 120, "1IBR", "TMG"},
      {Line::Orvantis, 120, "1JD0", "TMG"},  {Line::Orvantis, 120, "1JD1", "TMGO"},
      {Line::Orvantis, 120, "1KD0", "TMGO"}, {Line::Orvantis, 240, "1KD1", "TMGOP"},
      {Line::Tessara, 120, "1.66", ""},      {Line::Tessara, 120, "1.67", "T"},
      {Line::Tessara, 120, "2.00", "T"},     {Line::Tessara, 240, "1*13", ""},
      {Line::Tessara, 240, "1*14", "W"},
  };
  for (const Gate& gate : gates) {
    simulator::Profile profile = makeProfile(gate.line, gate.rating);
    profile.firmware = gate.firmware;
    Tool tool(profile);
    tool.press(tool.main.frame.setupBtn);
    ASSERT_TRUE(tool.main.pages.setupOn) << gate.firmware;
    EXPECT_EQ(gatesShown(tool.main.setup), gate.shown) << gate.firmware;
    const bool first = gate.line == Line::Orvantis;
    EXPECT_EQ(tool.main.setup.timeNumEdit.visible() && tool.main.setup.OLreNumEdit.visible(), first);
    EXPECT_EQ(tool.main.setup.OVrsNumEdit.enabled() && tool.main.frame.ScopeBtn.enabled(), first);
    tool.press(tool.main.frame.setupBtn);
    EXPECT_EQ(gatesShown(tool.main.setup), "");
  }
}

TEST(Gates, MeasurementAndDataShowWhatTheDeviceMeasures) {
  const struct {
    Line line;
    int rating;
    const char* firmware;
    const char* shown;  // overloads, current, neutral, history, memory
  } gates[] = {
      {Line::Orvantis, 120, "1GAZ", "-cnh-"}, {Line::Orvantis, 120, "1GB0", "ocnhm"},
      {Line::Tessara, 120, "1.99", "-----"},  {Line::Tessara, 120, "2.00", "--n--"},
      {Line::Tessara, 240, "1*14", "-----"},
  };
  for (const auto& gate : gates) {
    simulator::Profile profile = makeProfile(gate.line, gate.rating);
    profile.firmware = gate.firmware;
    Tool tool(profile);
    const MeasurementElements& m = tool.main.measurement;
    tool.press(tool.main.frame.measBtn);
    ASSERT_TRUE(tool.main.pages.measuring) << gate.firmware;
    EXPECT_TRUE(m.VlnLbl.visible() && m.POrecTxt.visible() && m.SGrecTxt.visible());
    std::string shown = m.OLrecTxt.visible() && m.PDlbl7.visible() ? "o" : "-";
    shown +=
        m.ISlide.visible() && m.cfSlide.visible() && m.EUtxt.visible() && m.UVcorecTxt.visible() ? 'c' : '-';
    shown += m.VngSlide.visible() ? 'n' : '-';
    tool.press(tool.main.frame.dataBtn);
    EXPECT_TRUE(tool.main.data.tsDataBtn.visible() && !m.VlnLbl.visible());
    shown += tool.main.data.histDataBtn.visible() ? 'h' : '-';
    shown += tool.main.data.cmDataBtn.visible() ? 'm' : '-';
    EXPECT_EQ(shown, gate.shown) << gate.firmware;
  }
}

}  // namespace
}  // namespace zephon
