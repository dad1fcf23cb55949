#pragma once

#include "screen/button.h"
#include "screen/combo.h"
#include "screen/date_edit.h"
#include "screen/graph.h"
#include "screen/image.h"
#include "screen/label.h"
#include "screen/num_edit.h"
#include "screen/slider.h"
#include "screen/text_box.h"
#include "screen/tree.h"

namespace zephon {

// The named elements of the form, a group a page. Texts are the form's English defaults; the dictionary
// replaces those that depend on the language.

inline constexpr auto kMomentary = Button::Kind::Momentary;

// Always on screen.
struct FrameElements {
  explicit FrameElements(ElementList& list);

  Button measBtn, ScopeBtn, ChartBtn, outletsBtn, dataBtn, setupBtn, comBtn;
  Button helpBtn;  // shows the help page while it is on
  Button saveBtn, expertBtn;
  Combo findingsList;  // what the expert analysis found, a line each; the one chosen has its rows picked out
  Image image998, image999;  // badge of the first and of the second model
  Image adBanner;
  Graph CWGraph2;     // the chart, the scope's picture, a log as a graph
  Label formCaption;  // the window's title
  Label modelLbl;     // "Orvantis" or "Tessara" once connected
  Label linkLbl;      // the link's state in one line: port, model, firmware, ID, or why not
  Label adviceLbl;    // what to do about the last failure of the link; empty without one
  Label noticeLbl;    // what else a person should know, such as where unsaved rows are; mostly empty
  Label COMlbl;       // the COM number in use
  Label EUlbl;        // energy date on the measurement page, battery on the setup page
};

struct MeasurementElements {
  explicit MeasurementElements(ElementList& list);

  Label VlnLbl, Ilbl, Plbl, VngLbl, fLbl, pfLbl, cfLbl;
  Slider VlnSlide, ISlide, PSlide, VngSlide, fSlide, pfSlide, cfSlide;
  Slider recSlide;  // stacked bar, pointers 1 to 7 (0 is not used but for the mode)
  TextBox POrecTxt, UVcorecTxt, UVrerecTxt, OVrerecTxt, OVcorecTxt, SGrecTxt, OLrecTxt;
  Label PDlbl1, PDlbl2, PDlbl3, PDlbl4, PDlbl5, PDlbl6, PDlbl7;
  TextBox EUtxt;      // energy in kWh; a click folds the cost away and back
  TextBox EnRateTxt;  // the user's rate
  Label EnCostLbl;
  Button clrCountBtn, clrEUbtn;
};

struct SetupElements {
  explicit SetupElements(ElementList& list);

  NumEdit OVcoNumEdit, OVreNumEdit, OVrsNumEdit, UVrsNumEdit, UVreNumEdit, UVcoNumEdit, OLreNumEdit;
  Label OVcoLbl, OVreLbl, OVrslbl, UVrsLbl, UVreLbl, UVcoLbl, OLreLbl;
  Button updateLimsBtn, defaultBtn;
  TextBox userIDtxt;
  Button updateIDBtn;
  DateEdit timeNumEdit;
  Button setTimeBtn, setTimeAutoBtn;
  Button enableAutoTXbtn, startInternalCMbtn, enableGndBtn, enableOLcoBtn, enablePowerFailHoldBtn;
  Button YorCTbutton;
  Label yLbl, ctLbl;
};

struct OutletElements {
  explicit OutletElements(ElementList& list);
  Button oOnBtn, oCycBtn, oFltBtn;
};

struct ComElements {
  explicit ComElements(ElementList& list);
  NumEdit comNumEdit;
  Button saveComBtn, detectComBtn, configComBtn;
  Slider searchProgSlide;  // how many of the COM numbers have been searched
  Label portFoundLbl;      // what the search has found, or where it is
  Label cableLbl;          // the USB cables and their settings, a line each
  Combo langCombo;
  Label langLbl;
};

struct DataElements {
  explicit DataElements(ElementList& list);
  Button tsDataBtn, clrTsDataBtn, histDataBtn, clrHistDataBtn, cmDataBtn;
  Tree TreeView1;
  Slider dataProgSlide;  // how much of a log has come
  Button cancelDataBtn;  // ends a running transfer
  Button PavgHistBtn, VavgHistBtn, maxMinHistBtn, vMaxBtn, vMinBtn, iMaxBtn, pMaxBtn;
};

struct ChartElements {
  explicit ChartElements(ElementList& list);
  Button vlnChartBtn, aChartBtn, pChartBtn, vngChartBtn, fChartBtn, pfChartBtn, cfChartBtn, euChartBtn;
  Slider chartIntervalSlide;
};

struct ScopeElements {
  explicit ScopeElements(ElementList& list);
  Button CH1togBtn, CH2togBtn, CH3togBtn;
  Button p1upBtn, p1downBtn, p2upBtn, p2downBtn, p3upBtn, p3downBtn, XinBtn, XoutBtn;
  Button oneShotVbtn, oneShotAbtn, holdBtn;
  Label xTimeLbl;
};

}  // namespace zephon
