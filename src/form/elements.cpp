#include "form/elements.h"

#include <iterator>

namespace zephon {
namespace {

constexpr Slider::Axis kVolts120{80, 160, 10, 5};

// The classes of disturbance, by recSlide's pointer. The log's tree shows its events in the same colours.
constexpr Colour kRecordColours[] = {rgb(255, 0, 255),  rgb(31, 87, 176), rgb(0, 128, 128), rgb(70, 160, 60),
                                     rgb(230, 126, 34), rgb(200, 40, 40), rgb(192, 192, 0)};

// Everything but the page buttons is hidden until its page is laid out.
template <class... Elements>
void hide(Elements&... elements) {
  (elements.setVisible(false), ...);
}

}  // namespace

FrameElements::FrameElements(ElementList& list)
    : measBtn(list, "measBtn"),
      ScopeBtn(list, "ScopeBtn"),
      ChartBtn(list, "ChartBtn"),
      outletsBtn(list, "outletsBtn"),
      dataBtn(list, "dataBtn"),
      setupBtn(list, "setupBtn"),
      comBtn(list, "comBtn"),
      helpBtn(list, "helpBtn"),
      saveBtn(list, "saveBtn", kMomentary),
      expertBtn(list, "expertBtn", kMomentary),
      findingsList(list, "findingsList"),
      image998(list, "Image998"),
      image999(list, "Image999"),
      adBanner(list, "adBanner"),
      CWGraph2(list, "CWGraph2"),
      formCaption(list, "formCaption", "QLT Zephon Diagnostic Tool"),
      modelLbl(list, "modelLbl"),
      linkLbl(list, "linkLbl"),
      adviceLbl(list, "adviceLbl"),
      noticeLbl(list, "noticeLbl"),
      COMlbl(list, "COMlbl", "1"),
      EUlbl(list, "EUlbl") {
  hide(saveBtn, expertBtn, findingsList, EUlbl, image998, image999, CWGraph2);
}

MeasurementElements::MeasurementElements(ElementList& list)
    : VlnLbl(list, "VlnLbl", "V"),
      Ilbl(list, "Ilbl", "A"),
      Plbl(list, "Plbl", "W"),
      VngLbl(list, "VngLbl", "V"),
      fLbl(list, "fLbl", "Hz"),
      pfLbl(list, "pfLbl", "PF"),
      cfLbl(list, "cfLbl", "CF"),
      VlnSlide(list, "VlnSlide", kVolts120),
      ISlide(list, "ISlide", {0, 30, 5, 1}),
      PSlide(list, "PSlide", {0, 4000, 1000, 250}),
      VngSlide(list, "VngSlide", {0, 10, 1, 1}),
      fSlide(list, "fSlide", {55, 65, 1, 0.5}),
      pfSlide(list, "pfSlide", {-1, 1, 0.5, 0.1}),
      cfSlide(list, "cfSlide", {0, 3, 0.5, 0.1}),
      recSlide(list, "recSlide", {0, 100, 25, 5}, 8),
      POrecTxt(list, "POrecTxt", "0", 0, true),
      UVcorecTxt(list, "UVcorecTxt", "0", 0, true),
      UVrerecTxt(list, "UVrerecTxt", "0", 0, true),
      OVrerecTxt(list, "OVrerecTxt", "0", 0, true),
      OVcorecTxt(list, "OVcorecTxt", "0", 0, true),
      SGrecTxt(list, "SGrecTxt", "0", 0, true),
      OLrecTxt(list, "OLrecTxt", "0", 0, true),
      PDlbl1(list, "PDlbl1", "Power Outages"),
      PDlbl2(list, "PDlbl2", "Under Voltages (Shutdown)"),
      PDlbl3(list, "PDlbl3", "Under Voltages (Record)"),
      PDlbl4(list, "PDlbl4", "Over Voltages (Record)"),
      PDlbl5(list, "PDlbl5", "Over Voltages (Shutdown)"),
      PDlbl6(list, "PDlbl6", "Surges"),
      PDlbl7(list, "PDlbl7", "Current Overloads"),
      EUtxt(list, "EUtxt", {}, 0, true),
      EnRateTxt(list, "EnRateTxt", {}, 10),
      EnCostLbl(list, "EnCostLbl"),
      clrCountBtn(list, "clrCountBtn", kMomentary),
      clrEUbtn(list, "clrEUbtn", kMomentary) {
  for (std::size_t i = 0; i < std::size(kRecordColours); ++i)
    recSlide.setPointerColour(i + 1, kRecordColours[i]);
  EnRateTxt.setTooltip("Enter kWh Rate");
  clrEUbtn.setTooltip("Reset Energy Usage");
  hide(VlnLbl, Ilbl, Plbl, VngLbl, fLbl, pfLbl, cfLbl);
  hide(VlnSlide, ISlide, PSlide, VngSlide, fSlide, pfSlide, cfSlide, recSlide);
  hide(POrecTxt, UVcorecTxt, UVrerecTxt, OVrerecTxt, OVcorecTxt, SGrecTxt, OLrecTxt);
  hide(PDlbl1, PDlbl2, PDlbl3, PDlbl4, PDlbl5, PDlbl6, PDlbl7);
  hide(EUtxt, EnRateTxt, EnCostLbl, clrCountBtn, clrEUbtn);
}

SetupElements::SetupElements(ElementList& list)
    : OVcoNumEdit(list, "OVcoNumEdit", 150, {130, 160, 1}),
      OVreNumEdit(list, "OVreNumEdit", 135, {130, 160, 1}),
      OVrsNumEdit(list, "OVrsNumEdit", 130, {130, 160, 1}),
      UVrsNumEdit(list, "UVrsNumEdit", 105, {80, 110, 1}),
      UVreNumEdit(list, "UVreNumEdit", 100, {0, 110, 1}),
      UVcoNumEdit(list, "UVcoNumEdit", 80, {0, 110, 1}),
      OLreNumEdit(list, "OLreNumEdit", 25, {2, 40, 1}),
      OVcoLbl(list, "OVcoLbl", "Over Voltage Shutdown"),
      OVreLbl(list, "OVreLbl", "Over Voltage Record"),
      OVrslbl(list, "OVrslbl", "Over Voltage Restore"),
      UVrsLbl(list, "UVrsLbl", "Under Voltage Restore"),
      UVreLbl(list, "UVreLbl", "Under Voltage Record"),
      UVcoLbl(list, "UVcoLbl", "Under Voltage Shutdown"),
      OLreLbl(list, "OLreLbl", "Overload Record"),
      updateLimsBtn(list, "updateLimsBtn", kMomentary),
      defaultBtn(list, "defaultBtn", kMomentary),
      userIDtxt(list, "userIDtxt", {}, 10),
      updateIDBtn(list, "updateIDBtn", kMomentary),
      timeNumEdit(list, "timeNumEdit"),
      setTimeBtn(list, "setTimeBtn", kMomentary),
      setTimeAutoBtn(list, "setTimeAutoBtn", kMomentary),
      enableAutoTXbtn(list, "enableAutoTXbtn"),
      startInternalCMbtn(list, "startInternalCMbtn"),
      enableGndBtn(list, "enableGndBtn"),
      enableOLcoBtn(list, "enableOLcoBtn"),
      enablePowerFailHoldBtn(list, "enablePowerFailHoldBtn"),
      YorCTbutton(list, "YorCTbutton"),
      yLbl(list, "yLbl", "120/208 Wye"),
      ctLbl(list, "ctLbl", "120/240 Center Tap") {
  OVcoNumEdit.setTooltip("Over Voltage Shutdown Point");
  OVreNumEdit.setTooltip("Over Voltage Record Point");
  OVrsNumEdit.setTooltip("Over Voltage Restore Point");
  UVrsNumEdit.setTooltip("Under Voltage Restore Point");
  UVreNumEdit.setTooltip("Under Voltage Record Point");
  UVcoNumEdit.setTooltip("Under Voltage Shutdown Point");
  OLreNumEdit.setTooltip("Overload Record Point");
  defaultBtn.setTexts("Defaults");
  hide(OVcoNumEdit, OVreNumEdit, OVrsNumEdit, UVrsNumEdit, UVreNumEdit, UVcoNumEdit, OLreNumEdit);
  hide(OVcoLbl, OVreLbl, OVrslbl, UVrsLbl, UVreLbl, UVcoLbl, OLreLbl);
  hide(updateLimsBtn, defaultBtn, userIDtxt, updateIDBtn, timeNumEdit, setTimeBtn, setTimeAutoBtn);
  hide(enableAutoTXbtn, startInternalCMbtn, enableGndBtn, enableOLcoBtn, enablePowerFailHoldBtn);
  hide(YorCTbutton, yLbl, ctLbl);
}

OutletElements::OutletElements(ElementList& list)
    : oOnBtn(list, "oOnBtn"), oCycBtn(list, "oCycBtn"), oFltBtn(list, "oFltBtn") {
  oFltBtn.setEnabled(false);  // an indicator
  hide(oOnBtn, oCycBtn, oFltBtn);
}

ComElements::ComElements(ElementList& list)
    : comNumEdit(list, "comNumEdit", 1, {1, 255, 1}),
      saveComBtn(list, "saveComBtn", kMomentary),
      detectComBtn(list, "detectComBtn"),
      configComBtn(list, "configComBtn", kMomentary),
      searchProgSlide(list, "searchProgSlide", {0, 256, 64, 16}),
      portFoundLbl(list, "portFoundLbl"),
      cableLbl(list, "cableLbl"),
      langCombo(list, "langCombo"),
      langLbl(list, "langLbl") {
  hide(comNumEdit, saveComBtn, detectComBtn, configComBtn, searchProgSlide, portFoundLbl, cableLbl);
  hide(langCombo, langLbl);
}

DataElements::DataElements(ElementList& list)
    : tsDataBtn(list, "tsDataBtn"),
      clrTsDataBtn(list, "clrTsDataBtn", kMomentary),
      histDataBtn(list, "histDataBtn"),
      clrHistDataBtn(list, "clrHistDataBtn", kMomentary),
      cmDataBtn(list, "cmDataBtn"),
      TreeView1(list, "TreeView1"),
      dataProgSlide(list, "dataProgSlide", {0, 100, 25, 5}),
      cancelDataBtn(list, "cancelDataBtn", kMomentary),
      PavgHistBtn(list, "PavgHistBtn"),
      VavgHistBtn(list, "VavgHistBtn"),
      maxMinHistBtn(list, "maxMinHistBtn"),
      vMaxBtn(list, "vMaxBtn"),
      vMinBtn(list, "vMinBtn"),
      iMaxBtn(list, "iMaxBtn"),
      pMaxBtn(list, "pMaxBtn") {
  hide(tsDataBtn, clrTsDataBtn, histDataBtn, clrHistDataBtn, cmDataBtn, dataProgSlide, cancelDataBtn,
       TreeView1);
  hide(PavgHistBtn, VavgHistBtn, maxMinHistBtn, vMaxBtn, vMinBtn, iMaxBtn, pMaxBtn);
}

ChartElements::ChartElements(ElementList& list)
    : vlnChartBtn(list, "vlnChartBtn"),
      aChartBtn(list, "aChartBtn"),
      pChartBtn(list, "pChartBtn"),
      vngChartBtn(list, "vngChartBtn"),
      fChartBtn(list, "fChartBtn"),
      pfChartBtn(list, "pfChartBtn"),
      cfChartBtn(list, "cfChartBtn"),
      euChartBtn(list, "euChartBtn"),
      chartIntervalSlide(list, "chartIntervalSlide", {1, 60, 10, 1}) {
  hide(vlnChartBtn, aChartBtn, pChartBtn, vngChartBtn, fChartBtn, pfChartBtn, cfChartBtn, euChartBtn);
  hide(chartIntervalSlide);
}

ScopeElements::ScopeElements(ElementList& list)
    : CH1togBtn(list, "CH1togBtn"),
      CH2togBtn(list, "CH2togBtn"),
      CH3togBtn(list, "CH3togBtn"),
      p1upBtn(list, "p1upBtn", kMomentary),
      p1downBtn(list, "p1downBtn", kMomentary),
      p2upBtn(list, "p2upBtn", kMomentary),
      p2downBtn(list, "p2downBtn", kMomentary),
      p3upBtn(list, "p3upBtn", kMomentary),
      p3downBtn(list, "p3downBtn", kMomentary),
      XinBtn(list, "XinBtn", kMomentary),
      XoutBtn(list, "XoutBtn", kMomentary),
      oneShotVbtn(list, "oneShotVbtn"),
      oneShotAbtn(list, "oneShotAbtn"),
      holdBtn(list, "holdBtn"),
      xTimeLbl(list, "xTimeLbl") {
  hide(CH1togBtn, CH2togBtn, CH3togBtn, p1upBtn, p1downBtn, p2upBtn, p2downBtn, p3upBtn, p3downBtn);
  hide(XinBtn, XoutBtn, oneShotVbtn, oneShotAbtn, holdBtn, xTimeLbl);
}

}  // namespace zephon
