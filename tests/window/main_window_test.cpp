#include "window/main_window.h"

#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>

#include "support/temp_folder.h"
#include "window/window_fixture.h"
#include "window/window_place.h"

namespace zephon {
namespace {

struct PageCase {
  const char* name;
  bool Pages::*flag;
  Element* (*of)(Main&);
};

const PageCase kCases[] = {
    {"measurement", &Pages::measuring, [](Main& main) -> Element* { return &main.measurement.VlnSlide; }},
    {"scope", &Pages::scopeOn, [](Main& main) -> Element* { return &main.scope.holdBtn; }},
    {"chart", &Pages::chartOn, [](Main& main) -> Element* { return &main.chart.vlnChartBtn; }},
    {"outlets", &Pages::outletsOn, [](Main& main) -> Element* { return &main.outlets.oOnBtn; }},
    {"data", &Pages::dataOn, [](Main& main) -> Element* { return &main.data.tsDataBtn; }},
    {"setup", &Pages::setupOn, [](Main& main) -> Element* { return &main.setup.updateLimsBtn; }},
    {"com", &Pages::comOn, [](Main& main) -> Element* { return &main.com.detectComBtn; }},
};

using MainWindowTest = testing_support::WindowTest;

TEST_F(MainWindowTest, ThePageWhoseFlagIsSetIsOnScreen) {
  auto* pages = window.findChild<QStackedWidget*>();
  QWidget* const start = pages->currentWidget();
  for (const PageCase& page : kCases) {
    open(page.flag);
    for (const PageCase& other : kCases) {
      EXPECT_EQ(find(*other.of(main))->isVisible(), &other == &page) << other.name;
    }
  }
  main.pages.comOn = false;
  main.frame.comBtn.setValue(true);  // any news of the page's elements will do
  testing_support::settle();
  EXPECT_EQ(pages->currentWidget(), start);
}

TEST_F(MainWindowTest, APageHasItsShortcut) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_2, Qt::ControlModifier);
  QTest::qWait(200);  // a pressed button shows it for a moment
  EXPECT_TRUE(main.frame.ScopeBtn.value());
}

TEST_F(MainWindowTest, NoPageScrollsSidewaysAt200Percent) {
  window.resize(683, 384);
  for (const PageCase& page : kCases) {
    open(page.flag);
    for (const auto* area : window.findChildren<QScrollArea*>()) {
      if (!area->isVisible()) continue;
      EXPECT_GE(area->viewport()->width(), area->widget()->minimumSizeHint().width()) << page.name;
    }
  }
}

TEST_F(MainWindowTest, TheLinkIsAlwaysInSightAndAdviceWhenThereIsSome) {
  auto* link = find<QLabel>(main.frame.linkLbl);
  auto* advice = find<QLabel>(main.frame.adviceLbl);
  main.frame.linkLbl.setCaption("COM3  no answer");
  EXPECT_FALSE(advice->isVisible());
  main.frame.adviceLbl.setCaption("Check the cable.");
  for (const PageCase& page : kCases) {
    open(page.flag);
    EXPECT_TRUE(link->isVisible() && advice->isVisible()) << page.name;
    EXPECT_EQ(link->visibleRegion().boundingRect().size(), link->size());
  }
}

TEST_F(MainWindowTest, ClosingEndsTheProgramOnce) {
  EXPECT_FALSE(main.ending);
  window.close();
  window.close();
  EXPECT_TRUE(main.ending);
  EXPECT_EQ(closings, 1);
}

TEST(WindowPlace, IsFoundAgainByTheNextStart) {
  const TempFolder folder;
  const std::string state = folder / "state/zephon";  // not made yet
  QWidget first;
  first.setGeometry(40, 30, 500, 400);
  keepPlace(first, state);
  QWidget second;
  restorePlace(second, state);
  EXPECT_EQ(second.geometry(), QRect(40, 30, 500, 400));
}

}  // namespace
}  // namespace zephon
