#include "window/main_window.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <set>

#include "window/state_button.h"
#include "window/tile_layout.h"
#include "window/window_fixture.h"

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
  settle();
  EXPECT_EQ(pages->currentWidget(), start);
}

TEST_F(MainWindowTest, APageHasItsShortcut) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_2, Qt::ControlModifier);
  QTest::qWait(200);  // a pressed button shows it for a moment
  EXPECT_TRUE(main.frame.ScopeBtn.value());
  EXPECT_TRUE(find(main.frame.measBtn)->toolTip().contains("Ctrl+1"));
}

// A page may scroll down, never sideways; what it holds is never narrower than it must be, and no caption is
// cut.
TEST_F(MainWindowTest, PagesFitTheSmallestScreens) {
  main.outlets.oOnBtn.setTexts(main.dict.at(27));
  main.outlets.oCycBtn.setTexts(main.dict.at(29));
  main.outlets.oFltBtn.setTexts(main.dict.at(76));
  for (const QSize size : {QSize(1366, 768), QSize(1024, 600), QSize(683, 384)}) {
    window.resize(size);
    for (const PageCase& page : kCases) {
      open(page.flag);
      EXPECT_EQ(window.size(), size) << page.name;
      window.grab();
      for (auto* area : shown<QScrollArea>()) {
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << page.name << " at " << size.width();
        EXPECT_GE(area->viewport()->width(), area->widget()->minimumSizeHint().width()) << page.name;
      }
      for (auto* button : shown<StateButton>()) {
        EXPECT_FALSE(button->drawnCaption().cut) << button->caption().toStdString() << " at " << size.width();
        const QSize least = button->minimumSizeHint();
        EXPECT_TRUE(button->width() >= least.width() && button->height() >= least.height())
            << button->objectName().toStdString();
      }
    }
  }
}

TEST_F(MainWindowTest, TheLinkIsAlwaysInSightAndAdviceWhenThereIsSome) {
  main.frame.linkLbl.setCaption("COM3  no answer");
  settle();
  auto* link = find<QLabel>(main.frame.linkLbl);
  auto* advice = find<QLabel>(main.frame.adviceLbl);
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

TEST(Tiles, FillTheirRowsEvenlyAndLeaveNoHole) {
  QWidget ground;
  auto* tiles = new TileLayout(100, 5, 10);
  ground.setLayout(tiles);
  std::vector<QWidget*> all;
  for (int i = 0; i < 8; ++i) {
    all.push_back(new QWidget(&ground));
    all.back()->setMinimumHeight(40);
    tiles->addWidget(all.back());
  }
  const auto columnsAt = [&](int width) {
    ground.resize(width, 400);
    tiles->activate();
    std::set<int> lefts;
    for (const QWidget* tile : all) {
      if (tile->isVisible()) lefts.insert(tile->x());
      EXPECT_LE(tile->geometry().right(), width);
    }
    return lefts.size();
  };
  ground.show();
  EXPECT_EQ(columnsAt(540), 4U) << "five would fit; two even rows";
  EXPECT_EQ(columnsAt(330), 3U);
  EXPECT_EQ(columnsAt(120), 1U);
  EXPECT_EQ(tiles->heightForWidth(540), 2 * 40 + 10);
  for (std::size_t i = 0; i < 6; ++i) all[i]->hide();
  EXPECT_EQ(columnsAt(540), 2U);
  EXPECT_EQ(all[6]->pos(), QPoint(0, all[7]->y()));
}

}  // namespace
}  // namespace zephon
