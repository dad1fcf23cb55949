#include "display/measurement_page.h"

#include <gtest/gtest.h>

#include "protocol/measurement.h"
#include "protocol/meters.h"
#include "support/bench.h"

namespace zephon {
namespace {

// The page as it is laid out while it polls.
struct MeasurementPage : testing_support::World, testing::Test {
  MeasurementPage() {
    wireMeasurementPage(main);
    for (Element* element : main.elements.all()) element->setVisible(true);
    stay(Page::Measurement);
  }
  // A pass, and how often it asked.
  std::ptrdiff_t askedInAPass(const char* command) {
    device.clearLog();
    EXPECT_TRUE(getMeasurements(main));
    return asked(command);
  }
  MeasurementElements& m = main.measurement;
};

TEST_F(MeasurementPage, AClickTurnsAMeterOffAndOn) {
  for (const Meter& meter : kMeters) {
    (m.*meter.slider).click();
    EXPECT_EQ((m.*meter.text).caption(), meter.unit);
    EXPECT_EQ(askedInAPass(meter.read->text.data()), 0) << meter.unit;
    (m.*meter.slider).click();
    EXPECT_EQ(askedInAPass(meter.read->text.data()), 1) << meter.unit;
  }
  later(15, [this] { m.VlnSlide.click(); });  // its query has run in that pass
  EXPECT_EQ(askedInAPass("g4"), 1);
  EXPECT_EQ(m.VlnLbl.caption(), "V");
}

TEST_F(MeasurementPage, AClickFoldsTheRecordAndTheEnergyAwayAndBack) {
  m.recSlide.click();
  EXPECT_FALSE(m.POrecTxt.visible() || m.PDlbl7.visible() || m.clrCountBtn.enabled());
  EXPECT_EQ(askedInAPass("g>"), 0);
  main.link.modelLine = 1;  // it counts less
  m.recSlide.click();
  EXPECT_TRUE(m.POrecTxt.visible() && m.UVrerecTxt.visible() && m.PDlbl6.visible());
  EXPECT_FALSE(m.OLrecTxt.visible() || m.UVcorecTxt.visible() || m.PDlbl5.visible());
  main.link.modelLine = 0;
  m.EUtxt.click();
  EXPECT_FALSE(m.EnCostLbl.visible() || m.clrEUbtn.visible());
  EXPECT_EQ(askedInAPass("g9"), 0);
  m.EUtxt.click();
  EXPECT_TRUE(m.EnCostLbl.visible() && m.clrEUbtn.visible());
}

TEST_F(MeasurementPage, ClearingIsAskedForAndDoneByTheNextPass) {
  device.device().setCount(simulator::Event::Surge, 4);
  dialogs.yes = false;
  m.clrCountBtn.click();
  m.clrEUbtn.click();
  EXPECT_EQ(askedInAPass("s=Y") + askedInAPass("s?Y"), 0);
  dialogs.yes = true;
  m.clrCountBtn.click();
  m.clrEUbtn.click();
  EXPECT_FALSE(m.clrCountBtn.enabled() || m.clrEUbtn.enabled());
  EXPECT_EQ(askedInAPass("s?Y"), 1);
  EXPECT_EQ(device.device().count(simulator::Event::Surge), 0u);
  EXPECT_TRUE(m.clrCountBtn.enabled() && m.clrEUbtn.enabled());
  // Nor is anything cleared when the page was left while the question stood.
  dialogs.meanwhile = [this] { stay(Page::None); };
  m.clrCountBtn.click();
  m.clrEUbtn.click();
  EXPECT_FALSE(main.counters.clearCountsRequest || main.energy.clearEnergyRequest);
}

}  // namespace
}  // namespace zephon
