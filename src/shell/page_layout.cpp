#include "shell/page_layout.h"

#include <initializer_list>

#include "display/chart_page.h"
#include "display/data_page.h"
#include "display/scope_page.h"
#include "display/unsaved_chart.h"
#include "logs/shown_log.h"
#include "protocol/firmware_gates.h"

namespace zephon {
namespace {

using Elements = std::initializer_list<Element*>;

void setVisible(Elements elements, bool on) {
  for (Element* element : elements) element->setVisible(on);
}

void show(Elements elements) {
  setVisible(elements, true);
}
void hide(Elements elements) {
  setVisible(elements, false);
}

void chartPage(Main& main, bool on) {
  ChartElements& c = main.chart;
  setVisible(
      {&c.vlnChartBtn, &c.aChartBtn, &c.pChartBtn, &c.vngChartBtn, &c.fChartBtn, &c.pfChartBtn, &c.cfChartBtn,
       &c.euChartBtn, &c.chartIntervalSlide, &main.frame.saveBtn, &main.frame.expertBtn},
      on);
}

void setupPage(Main& main, bool on) {
  SetupElements& s = main.setup;
  setVisible({&s.OVcoNumEdit, &s.OVreNumEdit,    &s.OVrsNumEdit,      &s.UVrsNumEdit,   &s.UVreNumEdit,
              &s.UVcoNumEdit, &s.OLreNumEdit,    &s.OVcoLbl,          &s.OVreLbl,       &s.OVrslbl,
              &s.UVrsLbl,     &s.UVreLbl,        &s.UVcoLbl,          &s.OLreLbl,       &s.updateLimsBtn,
              &s.updateIDBtn, &s.setTimeBtn,     &s.setTimeAutoBtn,   &s.userIDtxt,     &s.timeNumEdit,
              &s.defaultBtn,  &main.frame.EUlbl, &main.com.langCombo, &main.com.langLbl},
             on);
}

void setupGates(Main& main, const FirmwareGates& gates) {
  SetupElements& s = main.setup;
  s.enableAutoTXbtn.setVisible(gates.autoTransmit);
  s.startInternalCMbtn.setVisible(gates.internalChart);
  s.enableGndBtn.setVisible(gates.groundDetection);
  s.enableOLcoBtn.setVisible(gates.overloadShutdown);
  s.enablePowerFailHoldBtn.setVisible(gates.powerFailHold);
  for (Element* element : Elements{&s.YorCTbutton, &s.yLbl, &s.ctLbl}) element->setVisible(gates.wiring);
  s.YorCTbutton.setEnabled(gates.wiring);
}

// The second line keeps no clock, no battery and no overload point, and its restore points are fixed.
void setupOfSecondLine(Main& main) {
  SetupElements& s = main.setup;
  hide({&s.setTimeBtn, &s.setTimeAutoBtn, &s.timeNumEdit, &main.frame.EUlbl, &s.OLreNumEdit, &s.OLreLbl});
  s.OVrsNumEdit.setEnabled(false);
  s.UVrsNumEdit.setEnabled(false);
}

void recordFields(Main& main, bool on) {
  MeasurementElements& m = main.measurement;
  setVisible({&m.POrecTxt, &m.UVcorecTxt, &m.UVrerecTxt, &m.OVrerecTxt, &m.OVcorecTxt, &m.SGrecTxt,
              &m.OLrecTxt, &m.PDlbl1, &m.PDlbl2, &m.PDlbl3, &m.PDlbl4, &m.PDlbl5, &m.PDlbl6, &m.PDlbl7},
             on);
}

void measurementPage(Main& main, bool on) {
  MeasurementElements& m = main.measurement;
  setVisible(
      {&m.VlnLbl,   &m.Ilbl,   &m.Plbl,      &m.VngLbl,    &m.fLbl,        &m.pfLbl,    &m.cfLbl,
       &m.VlnSlide, &m.ISlide, &m.PSlide,    &m.VngSlide,  &m.fSlide,      &m.pfSlide,  &m.cfSlide,
       &m.recSlide, &m.EUtxt,  &m.EnRateTxt, &m.EnCostLbl, &m.clrCountBtn, &m.clrEUbtn, &main.frame.EUlbl},
      on);
  recordFields(main, on && m.recSlide.on());
}

// The second line measures two voltages and counts four kinds of disturbance.
void measurementOfSecondLine(Main& main, const FirmwareGates& gates) {
  MeasurementElements& m = main.measurement;
  hide({&m.Ilbl, &m.Plbl, &m.fLbl, &m.pfLbl, &m.cfLbl, &m.ISlide, &m.PSlide, &m.fSlide, &m.pfSlide,
        &m.cfSlide});
  hide({&m.OLrecTxt, &m.UVcorecTxt, &m.OVcorecTxt, &m.PDlbl2, &m.PDlbl5, &m.PDlbl7});
  hide({&m.EUtxt, &main.frame.EUlbl, &m.EnRateTxt, &m.EnCostLbl, &m.clrEUbtn});
  if (!gates.neutralGround) hide({&m.VngLbl, &m.VngSlide});
}

void layMeasurement(Main& main, const FirmwareGates& gates) {
  main.timers.Timer3.setEnabled(false);
  main.frame.EUlbl.setCaption("");  // it may still tell the battery
  main.measurement.EUtxt.setColour(kBlack);
  measurementPage(main, true);
  if (!gates.overloadCount) hide({&main.measurement.OLrecTxt, &main.measurement.PDlbl7});
  if (main.link.modelLine == 1) measurementOfSecondLine(main, gates);
}

void laySetup(Main& main, const FirmwareGates& gates) {
  main.frame.EUlbl.setCaption("");  // it may still tell the energy's date
  setupPage(main, true);
  setupGates(main, gates);
  if (main.link.modelLine == 1) setupOfSecondLine(main);
}

void hideEveryPageBut(Main& main, const bool* flag) {
  const struct {
    const bool& flag;
    void (*hide)(Main&);
  } pages[] = {{main.pages.scopeOn, hideScopePage},     {main.pages.chartOn, hideChartPage},
               {main.pages.setupOn, hideSetupPage},     {main.pages.measuring, hideMeasurementPage},
               {main.pages.outletsOn, hideOutletsPage}, {main.pages.dataOn, hideDataPage},
               {main.pages.comOn, hideComPage}};
  for (const auto& page : pages) {
    if (&page.flag != flag) page.hide(main);
  }
}

const bool* flagThatIsSet(const Pages& pages) {
  for (const bool* flag : {&pages.scopeOn, &pages.chartOn, &pages.setupOn, &pages.measuring, &pages.outletsOn,
                           &pages.dataOn, &pages.comOn}) {
    if (*flag) return flag;
  }
  return nullptr;
}

}  // namespace

void pageLayout(Main& main) {
  hideFindings(main);  // they are of the page that is left
  hideEveryPageBut(main, flagThatIsSet(main.pages));
  main.frame.ScopeBtn.setEnabled(main.link.modelLine == 0);
  const FirmwareGates gates = firmwareGates(kindOf(main.link));
  const Pages& pages = main.pages;
  if (pages.scopeOn || pages.chartOn) main.timers.Timer3.setEnabled(false);
  if (pages.scopeOn) layScopePage(main);
  if (pages.chartOn) {
    chartPage(main, true);
    main.frame.CWGraph2.setVisible(true);
  }
  if (pages.setupOn) laySetup(main, gates);
  if (pages.measuring) layMeasurement(main, gates);
  if (pages.outletsOn) show({&main.outlets.oOnBtn, &main.outlets.oCycBtn, &main.outlets.oFltBtn});
  if (pages.dataOn) layDataPage(main, gates.internalChart);
  if (pages.comOn) {
    show({&main.com.comNumEdit, &main.com.saveComBtn, &main.com.detectComBtn, &main.com.configComBtn,
          &main.com.portFoundLbl, &main.com.cableLbl, &main.com.langCombo, &main.com.langLbl});
  }
}

void showLeftChart(Main& main) {
  if (chartWasLeft(main)) chartPage(main, true);
}

void hideScopePage(Main& main) {
  main.pages.scopeOn = false;
  clearScopePage(main);
}

void hideChartPage(Main& main) {
  main.pages.chartOn = false;
  main.timers.chartTimer.setEnabled(false);
  clearChartPage(main);
  chartPage(main, chartWasLeft(main));
}

void hideSetupPage(Main& main) {
  main.pages.setupOn = false;
  main.timers.Timer3.setEnabled(false);
  setupPage(main, false);
  setupGates(main, {});
  main.frame.saveBtn.setVisible(false);
}

void hideMeasurementPage(Main& main) {
  main.pages.measuring = false;
  main.timers.measurementTimer.setEnabled(false);
  main.exchange.Timer1.setEnabled(false);
  measurementPage(main, false);
}

void hideOutletsPage(Main& main) {
  main.pages.outletsOn = false;
  main.timers.outletTimer.setEnabled(false);
  hide({&main.outlets.oOnBtn, &main.outlets.oCycBtn, &main.outlets.oFltBtn});
}

void hideDataPage(Main& main) {
  main.pages.dataOn = false;
  main.pages.dataPageActive = false;
  clearDataPage(main);
}

void hideComPage(Main& main) {
  main.pages.comOn = false;
  hide({&main.com.comNumEdit, &main.com.saveComBtn, &main.com.detectComBtn, &main.com.configComBtn,
        &main.com.portFoundLbl, &main.com.cableLbl});
  if (!main.pages.setupOn) hide({&main.com.langCombo, &main.com.langLbl});
}

}  // namespace zephon
