// Pictures of every page with plausible values, for looking at: window_shots <folder>. The scale comes from
// QT_SCALE_FACTOR, as on a desktop.

#include <QApplication>
#include <QPixmap>
#include <QStyleFactory>
#include <cstdio>

#include "window/bare_main.h"
#include "window/main_window.h"

namespace zephon {
namespace {

using testing_support::BareMain;

QPalette darkPalette() {
  QPalette dark(QColor(0x3a, 0x3d, 0x41), QColor(0x2b, 0x2d, 0x30));
  dark.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x24));
  dark.setColor(QPalette::Highlight, QColor(0x4c, 0x9a, 0xe8));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  return dark;
}

struct Reading {
  Slider* slide;
  Label* label;
  double value;
  const char* caption;
  Colour colour;
};

void fillMeasurement(Main& main) {
  MeasurementElements& m = main.measurement;
  main.limits = {80, 100, 105, 140, 145, 150};
  const Reading readings[] = {
      {&m.VlnSlide, &m.VlnLbl, 118.42, "118.42 V", kGreen},
      {&m.ISlide, &m.Ilbl, 17.2, "17.20 A", kYellow},
      {&m.PSlide, &m.Plbl, 1932.5, "1932.5 W", kYellow},
      {&m.VngSlide, &m.VngLbl, 6.2, "6.204 V", kRed},
      {&m.fSlide, &m.fLbl, 59.98, "59.98 Hz", kGreen},
      {&m.pfSlide, &m.pfLbl, 0.949, "0.949 PF Inductive", kGreen},
  };
  for (const Reading& each : readings) {
    each.slide->setValue(each.value);
    each.label->setCaption(each.caption);
    each.slide->setPointerColour(0, each.colour);
  }
  m.cfSlide.setPointerMode(0, 0);
  m.cfSlide.setFill(kMeterOff);
  constexpr Colour kClasses[] = {0xB0561F, 0x2F7FE0, 0x8C4FA8, 0x3F9E4F, 0x20A5DA, 0x4B4BC8, 0x8A8A6A};
  constexpr double kShares[] = {4, 20, 26, 55, 80, 86, 100};
  for (std::size_t i = 0; i < 7; ++i) {
    m.recSlide.setPointerColour(i + 1, kClasses[i]);
    m.recSlide.setPointerValue(i + 1, kShares[i]);
  }
  TextBox* const counts[] = {&m.OLrecTxt,   &m.POrecTxt,   &m.UVcorecTxt, &m.UVrerecTxt,
                             &m.OVrerecTxt, &m.OVcorecTxt, &m.SGrecTxt};
  constexpr const char* kCounts[] = {"2", "8", "3", "14", "12", "3", "7"};
  for (std::size_t i = 0; i < 7; ++i) counts[i]->setText(kCounts[i]);
  m.EUtxt.setText("1284.5120");
  m.EnRateTxt.setText("0.32");
  m.EnCostLbl.setCaption("$2 411.04");
  main.frame.EUlbl.setCaption("Energy Usage Since: 03/05/24 09:12:44");
}

void fillLink(Main& main) {
  main.link.connected = true;
  main.frame.modelLbl.setCaption("Orvantis");
  main.frame.comBtn.setVisible(false);
  main.frame.linkLbl.setCaption("COM3  Orvantis PCS  120 V  firmware 1.KD1  chip 01.A2.FF  ID BOOTH 4");
}

void fillRest(Main& main) {
  main.setup.userIDtxt.setText("BOOTH 4");
  main.setup.timeNumEdit.setValue(45356.40);
  main.setup.enableGndBtn.setValue(true);
  main.outlets.oOnBtn.setValue(true);
  main.outlets.oOnBtn.setOnText("Outlets On: Press to Turn Off");
  main.outlets.oCycBtn.setOffText("Press to Cycle Outlets");
  main.chart.chartIntervalSlide.setValue(5);
  main.chart.chartIntervalSlide.setTooltip("Chart Interval (5 x 1 sec)");
  for (Button* plot : {&main.chart.vlnChartBtn, &main.chart.aChartBtn, &main.chart.pChartBtn})
    plot->setValue(true);
  main.scope.xTimeLbl.setCaption("6 ms/Div");
  main.scope.CH1togBtn.setValue(true);
  main.scope.p1upBtn.setTexts("Ch1: 100 V/Div");
  main.scope.p1downBtn.setTexts("Ch1: 100 V/Div");
}

// In the middle of a search.
void fillCom(ComElements& page) {
  page.detectComBtn.setTexts("Searching...");
  page.detectComBtn.setValue(true);
  page.configComBtn.setEnabled(false);
  page.searchProgSlide.setVisible(true);
  page.searchProgSlide.setValue(72);
  page.portFoundLbl.setCaption("COM72. Press again to stop.");
  page.cableLbl.setCaption(
      "ttyUSB0: latency 16 ms, but 2 ms are needed\nttyUSB1: latency 2 ms, as it must be");
}

struct Shot {
  const char* name;
  bool Pages::*page;
  Button* button;
};

void shoot(const QString& folder, const QString& look, const QSize& size) {
  VirtualLoop loop;
  BareMain bare(loop);
  Main& main = bare.main;
  main.frame.linkLbl.setCaption("COM3  not connected");
  MainWindow window(main, {});
  window.resize(size);
  window.show();
  const auto save = [&](const QString& name) {
    for (int pass = 0; pass < 3; ++pass) QApplication::processEvents();
    const QString path = QStringLiteral("%1/%2_%3.png").arg(folder, name, look);
    if (!window.grab().save(path)) std::fprintf(stderr, "can't write %s\n", qPrintable(path));
  };
  save(QStringLiteral("start"));
  main.frame.linkLbl.setCaption("COM3  no answer from the conditioner");
  main.frame.adviceLbl.setCaption(
      "Check that the conditioner has power and that the cable is plugged in at both ends.");
  main.frame.comBtn.setValue(true);
  bare.open(&Pages::comOn);
  fillCom(main.com);
  save(QStringLiteral("com"));
  main.frame.comBtn.setValue(false);
  main.frame.adviceLbl.setCaption("");

  fillLink(main);
  fillRest(main);
  const Shot shots[] = {{"measure", &Pages::measuring, &main.frame.measBtn},
                        {"setup", &Pages::setupOn, &main.frame.setupBtn},
                        {"outlets", &Pages::outletsOn, &main.frame.outletsBtn},
                        {"data", &Pages::dataOn, &main.frame.dataBtn},
                        {"chart", &Pages::chartOn, &main.frame.ChartBtn},
                        {"scope", &Pages::scopeOn, &main.frame.ScopeBtn}};
  for (const Shot& shot : shots) {
    shot.button->setValue(true);
    bare.open(shot.page);
    if (shot.page == &Pages::measuring) fillMeasurement(main);
    if (shot.page == &Pages::setupOn) main.frame.EUlbl.setCaption("Battery: 98%, 2.94V");
    save(QString::fromLatin1(shot.name));
    shot.button->setValue(false);
  }

  bare.open(&Pages::measuring);
  fillMeasurement(main);
  for (Label* label : {&main.measurement.VlnLbl, &main.measurement.Ilbl, &main.measurement.Plbl})
    label->setStale(true);
  main.measurement.POrecTxt.setStale(true);
  main.measurement.EUtxt.setStale(true);
  save(QStringLiteral("stale"));
  main.link.modelLine = 1;
  main.link.firmwareVersion = "2.00";
  bare.open(&Pages::measuring);
  save(QStringLiteral("tessara"));
  main.outlets.oOnBtn.setValue(false);
  main.outlets.oOnBtn.setEnabled(false);
  main.outlets.oOnBtn.setOffText("Outlets Off");
  main.outlets.oCycBtn.setEnabled(false);
  main.outlets.oFltBtn.setValue(true);
  main.outlets.oFltBtn.setOnText("Reverse Polarity");
  bare.open(&Pages::outletsOn);
  save(QStringLiteral("fault"));
  main.link.firmwareVersion = "1*14";
  main.link.nominalVolts = 240;
  bare.open(&Pages::setupOn);
  save(QStringLiteral("setup_tessara"));
  main.data.PavgHistBtn.setVisible(true);
  main.data.VavgHistBtn.setVisible(true);
  main.data.maxMinHistBtn.setVisible(true);
  main.data.dataProgSlide.setVisible(true);
  main.data.dataProgSlide.setValue(42);
  main.data.cancelDataBtn.setVisible(true);
  main.data.clrTsDataBtn.setVisible(false);
  main.data.tsDataBtn.setTexts("Downloading...");
  main.link.modelLine = 0;
  main.link.firmwareVersion = "1.KD1";
  bare.open(&Pages::dataOn);
  save(QStringLiteral("download"));
}

}  // namespace
}  // namespace zephon

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc < 2) {
    std::fputs("usage: window_shots <folder>\n", stderr);
    return 2;
  }
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  const QString folder = QString::fromLocal8Bit(argv[1]);
  const bool twice = qgetenv("QT_SCALE_FACTOR") == "2";
  const QSize size = twice ? QSize(683, 384) : QSize(1366, 768);
  const QString scale = twice ? QStringLiteral("2x") : QStringLiteral("1x");
  zephon::shoot(folder, QStringLiteral("light_") + scale, size);
  if (!twice) zephon::shoot(folder, QStringLiteral("light_small"), QSize(1024, 600));
  QApplication::setPalette(zephon::darkPalette());
  zephon::shoot(folder, QStringLiteral("dark_") + scale, size);
  return 0;
}
