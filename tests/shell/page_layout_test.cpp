#include "shell/page_layout.h"

#include <gtest/gtest.h>

#include "shell/tool.h"

namespace zephon {
namespace {

using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;

// The letters of what can be seen.
std::string shown(std::initializer_list<std::pair<char, const Element*>> controls) {
  std::string letters;
  for (const auto& [letter, control] : controls) {
    if (control->visible()) letters += letter;
  }
  return letters;
}

TEST(PageLayout, ShowsWhatTheFirmwareHas) {
  // The firmware on the wire; on the setup page automatic transmit, chart memory, ground detection, overload
  // shutdown, power fail hold, wiring; elsewhere overloads, current, neutral, history, memory.
  const std::tuple<Line, int, const char*, const char*, const char*> devices[] = {
      {Line::Orvantis, 120, "1GAZ", "", "cnh"},
      {Line::Orvantis, 120, "1GB0", "TM", "ocnhm"},
      {Line::Orvantis, 120, "1IBQ", "TM", "ocnhm"},
      {Line::Orvantis, 120, "1IBR", "TMG", "ocnhm"},
      {Line::Orvantis, 120, "1JD0", "TMG", "ocnhm"},
      {Line::Orvantis, 120, "1JD1", "TMGO", "ocnhm"},
      {Line::Orvantis, 120, "1KD0", "TMGO", "ocnhm"},
      {Line::Orvantis, 240, "1KD1", "TMGOP", "ocnhm"},
      {Line::Orvantis, 120, "1KD2", "TMGOP", "ocnhm"},
      {Line::Tessara, 120, "1.66", "", ""},
      {Line::Tessara, 120, "1.67", "T", ""},
      {Line::Tessara, 120, "1.99", "T", ""},
      {Line::Tessara, 120, "2.00", "T", "n"},
      {Line::Tessara, 120, "2.01", "T", "n"},
      {Line::Tessara, 240, "1*13", "", ""},
      {Line::Tessara, 240, "1*14", "W", ""},
      {Line::Tessara, 240, "1*15", "W", ""}};
  for (const auto& [line, rating, firmware, onSetup, onOthers] : devices) {
    SCOPED_TRACE(firmware);
    simulator::Profile profile = makeProfile(line, rating);
    profile.firmware = firmware;
    Tool tool(profile);
    FrameElements& f = tool.main.frame;
    const SetupElements& s = tool.main.setup;
    const auto setup = [&s] {
      return shown({{'T', &s.enableAutoTXbtn},
                    {'M', &s.startInternalCMbtn},
                    {'G', &s.enableGndBtn},
                    {'O', &s.enableOLcoBtn},
                    {'P', &s.enablePowerFailHoldBtn},
                    {'W', &s.YorCTbutton}});
    };
    const bool first = line == Line::Orvantis;
    tool.press(f.setupBtn);
    EXPECT_EQ(setup(), onSetup);
    EXPECT_EQ(s.timeNumEdit.visible() && s.OVrsNumEdit.enabled() && f.ScopeBtn.enabled(), first);
    tool.press(f.measBtn);
    EXPECT_EQ(setup(), "");
    const MeasurementElements& m = tool.main.measurement;
    EXPECT_TRUE(m.VlnLbl.visible() && m.POrecTxt.visible() && m.SGrecTxt.visible());
    EXPECT_TRUE(m.cfSlide.visible() == first && m.UVcorecTxt.visible() == first);
    std::string elsewhere = shown({{'o', &m.OLrecTxt}, {'c', &m.ISlide}, {'n', &m.VngSlide}});
    tool.press(f.dataBtn);
    EXPECT_TRUE(tool.main.data.tsDataBtn.visible() && !m.VlnLbl.visible());
    elsewhere += shown({{'h', &tool.main.data.histDataBtn}, {'m', &tool.main.data.cmDataBtn}});
    EXPECT_EQ(elsewhere, onOthers);
    tool.press(f.helpBtn);
    const std::string version = "\nFirmware Version " + tool.main.link.firmwareVersion + "\nChip ID ";
    EXPECT_NE(tool.dialogs.texts().back().find(version), std::string::npos);
  }
}

}  // namespace
}  // namespace zephon
