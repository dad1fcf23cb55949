#include "display/measurement_page.h"

#include <gtest/gtest.h>

#include "protocol/measurement.h"
#include "protocol/meters.h"
#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::World;

// The page as it is laid out while it polls.
class MeasurementPage : public testing::Test {
 protected:
  MeasurementPage() { open(world_); }

  static void open(World& world) {
    Main& main = world.main;
    MeasurementElements& m = main.measurement;
    wireMeasurementPage(main);
    for (Element* element : main.elements.all()) element->setVisible(true);
    m.clrCountBtn.setEnabled(true);
    m.clrEUbtn.setEnabled(true);
    world.stay(Page::Measurement);
  }

  World world_;
  Main& main_ = world_.main;
  MeasurementElements& m_ = main_.measurement;
};

TEST_F(MeasurementPage, AClickTurnsAMeterOffAndOn) {
  for (const Meter& meter : kMeters) {
    Slider& slider = m_.*meter.slider;
    Label& label = m_.*meter.text;
    label.setCaption("7");
    label.setStale(true);
    slider.click();
    EXPECT_FALSE(slider.on());
    EXPECT_EQ(slider.fill(), 0xC0C0C0u);
    EXPECT_EQ(label.caption(), meter.unit);
    EXPECT_FALSE(label.stale());
  }
  EXPECT_TRUE(getMeasurements(main_));
  EXPECT_EQ(world_.commands().front(), "g>");  // no meter was asked for
  m_.fSlide.click();
  EXPECT_TRUE(m_.fSlide.on());
  EXPECT_EQ(m_.fSlide.fill(), 0x836D6Du);
  EXPECT_EQ(m_.fLbl.caption(), "Hz");  // until the next pass
  world_.device.clearLog();
  EXPECT_TRUE(getMeasurements(main_));
  EXPECT_EQ(world_.commands().front(), "g;");
}

TEST_F(MeasurementPage, AClickDuringAPassCountsForWhatIsStillToCome) {
  world_.later(15, [&] {
    m_.VlnSlide.click();  // has been read
    m_.cfSlide.click();   // has not
  });
  EXPECT_TRUE(getMeasurements(main_));
  EXPECT_EQ(m_.VlnLbl.caption(), "V");
  const auto commands = world_.commands();
  EXPECT_EQ(std::count(commands.begin(), commands.end(), "g4"), 1);
  EXPECT_EQ(std::count(commands.begin(), commands.end(), "g7"), 0);
}

TEST_F(MeasurementPage, TheRecordGoesWithItsFieldsAndItsButton) {
  m_.recSlide.click();
  for (std::size_t i = 0; i < m_.recSlide.pointers(); ++i) EXPECT_EQ(m_.recSlide.pointer(i).mode, 0);
  EXPECT_FALSE(m_.POrecTxt.visible() || m_.OLrecTxt.visible() || m_.PDlbl1.visible() || m_.PDlbl7.visible());
  EXPECT_FALSE(m_.clrCountBtn.enabled());
  EXPECT_TRUE(getMeasurements(main_));
  for (const std::string& command : world_.commands()) EXPECT_NE(command, "g>");
  m_.recSlide.click();
  for (std::size_t i = 0; i < m_.recSlide.pointers(); ++i) EXPECT_EQ(m_.recSlide.pointer(i).mode, 1);
  EXPECT_TRUE(m_.POrecTxt.visible() && m_.OLrecTxt.visible() && m_.PDlbl1.visible() && m_.PDlbl7.visible());
  EXPECT_TRUE(m_.clrCountBtn.enabled());
  main_.link.connected = false;
  m_.recSlide.click();
  m_.recSlide.click();
  EXPECT_FALSE(m_.clrCountBtn.enabled());
}

TEST_F(MeasurementPage, TheRecordShowsOnlyWhatTheDeviceCounts) {
  main_.link.firmwareVersion = "1.GAZ";
  m_.recSlide.click();
  m_.recSlide.click();
  EXPECT_FALSE(m_.OLrecTxt.visible() || m_.PDlbl7.visible());
  EXPECT_TRUE(m_.UVcorecTxt.visible() && m_.PDlbl2.visible());
  World second({.line = simulator::Line::Tessara});
  open(second);
  const MeasurementElements& m = second.main.measurement;
  second.main.measurement.recSlide.click();
  second.main.measurement.recSlide.click();
  EXPECT_TRUE(m.POrecTxt.visible() && m.UVrerecTxt.visible() && m.OVrerecTxt.visible() && m.PDlbl6.visible());
  EXPECT_FALSE(m.OLrecTxt.visible() || m.UVcorecTxt.visible() || m.OVcorecTxt.visible() ||
               m.PDlbl5.visible());
}

TEST_F(MeasurementPage, AClickFoldsTheEnergyAwayAndBack) {
  m_.EUtxt.click();
  EXPECT_EQ(m_.EUtxt.colour(), kWhite);
  EXPECT_FALSE(main_.frame.EUlbl.visible() || m_.clrEUbtn.visible() || m_.EnRateTxt.visible() ||
               m_.EnCostLbl.visible());
  EXPECT_TRUE(getMeasurements(main_));
  for (const std::string& command : world_.commands()) EXPECT_NE(command, "g9");
  m_.clrEUbtn.setEnabled(false);
  m_.EUtxt.click();
  EXPECT_EQ(m_.EUtxt.colour(), kBlack);
  EXPECT_TRUE(main_.frame.EUlbl.visible() && m_.clrEUbtn.visible() && m_.EnRateTxt.visible() &&
              m_.EnCostLbl.visible());
  EXPECT_TRUE(m_.clrEUbtn.enabled());
}

TEST_F(MeasurementPage, ClearingIsAskedForAndDoneByTheNextPass) {
  world_.device.device().setCount(simulator::Event::Surge, 4);
  world_.device.device().setEnergy(50);
  world_.device.hold({.watts = 0.0});
  world_.dialogs.yes = false;
  m_.clrCountBtn.click();
  m_.clrEUbtn.click();
  EXPECT_FALSE(main_.counters.clearCountsRequest || main_.energy.clearEnergyRequest);
  EXPECT_TRUE(m_.clrCountBtn.enabled() && m_.clrEUbtn.enabled());
  world_.dialogs.yes = true;
  m_.clrCountBtn.click();
  m_.clrEUbtn.click();
  EXPECT_EQ(world_.dialogs.texts(), (std::vector<std::string>(4, "Clear?")));
  EXPECT_FALSE(m_.clrCountBtn.enabled() || m_.clrEUbtn.enabled());
  EXPECT_TRUE(world_.commands().empty());
  EXPECT_TRUE(getMeasurements(main_));
  EXPECT_TRUE(m_.clrCountBtn.enabled() && m_.clrEUbtn.enabled());
  EXPECT_EQ(world_.device.device().count(simulator::Event::Surge), 0u);
  EXPECT_EQ(world_.device.device().kilowattHours(), 0);
}

TEST_F(MeasurementPage, NothingIsClearedWhenThePageWasLeftBeforeTheAnswer) {
  world_.dialogs.meanwhile = [&] { world_.stay(Page::None); };
  m_.clrCountBtn.click();
  m_.clrEUbtn.click();
  EXPECT_EQ(world_.dialogs.shown().size(), 2u);
  EXPECT_FALSE(main_.counters.clearCountsRequest || main_.energy.clearEnergyRequest);
}

}  // namespace
}  // namespace zephon
