#include "shell/dictionary_texts.h"

#include "display/saving.h"
#include "protocol/dict_text.h"

namespace zephon {
namespace {

void captions(Main& main) {
  SetupElements& s = main.setup;
  const struct {
    Label& label;
    std::size_t key;
  } rows[] = {{s.OVcoLbl, 158}, {s.OVreLbl, 159}, {s.OVrslbl, 160}, {s.UVrsLbl, 161},
              {s.UVreLbl, 162}, {s.UVcoLbl, 163}, {s.OLreLbl, 164}, {main.com.langLbl, 200}};
  for (const auto& row : rows) row.label.setCaption(dictText(main, row.key));
}

// What the first 271 entries, which every language file has, have no line for.
void ownWords(Main& main) {
  MeasurementElements& m = main.measurement;
  const struct {
    Label& label;
    const Word& word;
  } rows[] = {{m.PDlbl1, words::kPowerOutages},         {m.PDlbl2, words::kUnderVoltagesShutdown},
              {m.PDlbl3, words::kUnderVoltagesRecord},  {m.PDlbl4, words::kOverVoltagesRecord},
              {m.PDlbl5, words::kOverVoltagesShutdown}, {m.PDlbl6, words::kSurges},
              {m.PDlbl7, words::kCurrentOverloads},     {main.setup.yLbl, words::kWye},
              {main.setup.ctLbl, words::kCenterTap}};
  for (const auto& row : rows) row.label.setCaption(dictText(main, row.word));
  main.setup.defaultBtn.setTexts(dictText(main, words::kDefaults));
  main.data.cancelDataBtn.setTexts(dictText(main, words::kCancel));
}

void buttonTexts(Main& main) {
  const struct {
    Button& button;
    std::size_t key;
  } rows[] = {
      {main.setup.updateLimsBtn, 32},
      {main.setup.updateIDBtn, 33},
      {main.setup.setTimeBtn, 34},
      {main.setup.setTimeAutoBtn, 35},
      {main.data.tsDataBtn, 36},
      {main.data.histDataBtn, 37},
      {main.data.cmDataBtn, 38},
      {main.com.detectComBtn, 39},
      {main.com.configComBtn, 40},
      {main.setup.enableAutoTXbtn, 94},
      {main.setup.startInternalCMbtn, 98},
      {main.measurement.clrEUbtn, 127},
      {main.measurement.clrCountBtn, 128},
      {main.chart.pfChartBtn, 129},
      {main.chart.cfChartBtn, 130},
      {main.chart.euChartBtn, 131},
      {main.setup.enableGndBtn, 165},
      {main.data.maxMinHistBtn, 173},
      {main.data.clrTsDataBtn, 176},
      {main.data.clrHistDataBtn, 176},
      {main.scope.holdBtn, 182},
      {main.scope.oneShotAbtn, 184},
      {main.scope.oneShotVbtn, 184},
      {main.data.PavgHistBtn, 188},
      {main.com.saveComBtn, 189},
      {main.data.VavgHistBtn, 195},
      {main.chart.vngChartBtn, 197},
      {main.chart.vlnChartBtn, 201},
      {main.chart.fChartBtn, 202},
      {main.setup.enableOLcoBtn, 205},
      {main.setup.enablePowerFailHoldBtn, 210},
  };
  for (const auto& row : rows) row.button.setTexts(dictText(main, row.key));
}

void tooltips(Main& main) {
  FrameElements& f = main.frame;
  MeasurementElements& m = main.measurement;
  SetupElements& s = main.setup;
  ComElements& c = main.com;
  const struct {
    Element& element;
    std::size_t key;
  } rows[] = {
      {s.setTimeBtn, 34},      {m.SGrecTxt, 59},        {m.OVcorecTxt, 60},
      {m.OVrerecTxt, 61},      {m.UVrerecTxt, 62},      {m.UVcorecTxt, 63},
      {m.POrecTxt, 64},        {s.enableAutoTXbtn, 95}, {s.startInternalCMbtn, 99},
      {f.measBtn, 120},        {f.ScopeBtn, 121},       {f.ChartBtn, 122},
      {f.outletsBtn, 123},     {f.dataBtn, 124},        {f.setupBtn, 125},
      {f.comBtn, 126},         {m.pfLbl, 129},          {m.pfSlide, 129},
      {m.cfLbl, 130},          {m.cfSlide, 130},        {m.Plbl, 141},
      {m.PSlide, 141},         {f.expertBtn, 166},      {s.enableGndBtn, 170},
      {m.clrCountBtn, 174},    {m.clrEUbtn, 175},       {c.comNumEdit, 177},
      {c.configComBtn, 178},   {c.detectComBtn, 179},   {m.EnRateTxt, 180},
      {f.helpBtn, 181},        {s.OLreNumEdit, 183},    {s.OVcoNumEdit, 185},
      {s.OVreNumEdit, 186},    {s.OVrsNumEdit, 187},    {c.saveComBtn, 190},
      {s.setTimeAutoBtn, 191}, {s.UVcoNumEdit, 192},    {s.UVreNumEdit, 193},
      {s.UVrsNumEdit, 194},    {m.VlnLbl, 196},         {m.VlnSlide, 196},
      {m.VngLbl, 198},         {m.VngSlide, 198},       {m.fLbl, 202},
      {m.fSlide, 202},         {s.enableOLcoBtn, 207},  {s.enablePowerFailHoldBtn, 211},
  };
  for (const auto& row : rows) row.element.setTooltip(dictText(main, row.key));
}

// Texts that are put together from several entries.
void composites(Main& main) {
  const auto text = [&](std::size_t key) { return dictText(main, key); };
  MeasurementElements& m = main.measurement;
  main.chart.aChartBtn.setTexts(text(140) + " " + text(143));
  main.chart.pChartBtn.setTexts(text(141) + " " + text(143));
  m.Ilbl.setTooltip(text(140) + " RMS " + text(143));
  m.ISlide.setTooltip(text(140) + " RMS " + text(143));
  m.OLrecTxt.setTooltip(text(140) + " " + text(65));
  m.EUtxt.setTooltip(text(131) + " (kWh)");
  showSaveTooltip(main);
  const std::string clear = dictText(main, words::kClearLog);
  main.data.clrTsDataBtn.setTooltip(filledText(clear, {text(176), text(145)}));
  main.data.clrHistDataBtn.setTooltip(filledText(clear, {text(176), text(147)}));
  main.chart.chartIntervalSlide.setTooltip(text(45) + " (" + text(133) + " 1 " + text(134) + ")");
  Tree& tree = main.data.TreeView1;
  if (!tree.tooltip().empty()) tree.setTooltip(text(214));  // on events of the second line
  for (Button* button : {&main.outlets.oOnBtn, &main.outlets.oCycBtn})
    button->setTexts("");  // the next read fills them
  const std::string& battery = main.frame.EUlbl.caption();
  if (!battery.empty()) {
    const std::size_t colon = battery.find(':');
    main.frame.EUlbl.setCaption(text(91) + (colon == std::string::npos ? "" : battery.substr(colon)));
  }
}

// Letters, not bytes: the texts are UTF-8.
std::size_t lengthOf(const std::string& text) {
  std::size_t letters = 0;
  for (const char c : text) letters += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  return letters;
}

void fontSizes(Main& main) {
  const struct {
    Button& button;
    int size;
    std::size_t room;
    int sizeAbove;
  } rows[] = {
      {main.measurement.clrEUbtn, 12, 5, 10}, {main.chart.euChartBtn, 12, 12, 10},
      {main.scope.oneShotAbtn, 10, 8, 7},     {main.scope.oneShotVbtn, 10, 8, 7},
      {main.data.PavgHistBtn, 10, 19, 8},     {main.setup.setTimeAutoBtn, 12, 14, 7},
      {main.data.tsDataBtn, 10, 24, 7},       {main.data.VavgHistBtn, 10, 21, 8},
  };
  for (const auto& row : rows) {
    row.button.setFontSize(lengthOf(row.button.offText()) > row.room ? row.sizeAbove : row.size);
  }
}

}  // namespace

void showTexts(Main& main) {
  captions(main);
  ownWords(main);
  buttonTexts(main);
  tooltips(main);
  composites(main);
  fontSizes(main);
}

}  // namespace zephon
