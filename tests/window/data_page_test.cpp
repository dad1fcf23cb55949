#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTreeView>

#include "shell/tool.h"
#include "window/graph_canvas.h"
#include "window/main_window.h"

// The data page as a user works it: the whole tool with its window, and a simulated device.
namespace zephon {
namespace {

using testing_support::Tool;

simulator::Options busySite(simulator::Story story) {
  simulator::Options options;
  options.site = story;
  options.pastSeconds = 5 * 86400;
  options.recordingHours = 2;
  return options;
}

class Page : public Tool {
 public:
  explicit Page(simulator::Story story = simulator::Story::Lively) : Tool({}, busySite(story)) {
    window.resize(1024, 600);
    window.show();
    click(main.frame.dataBtn);
  }

  static void settle() {
    for (int pass = 0; pass < 5; ++pass) QApplication::processEvents();
  }
  void click(Button& button) {
    press(button);
    settle();
  }
  template <class Widget>
  Widget* find(const char* name) {
    return dynamic_cast<Widget*>(window.findChild<QWidget*>(QString::fromLatin1(name)));
  }
  // Clicks the finding of a slot in the list.
  void choose(std::size_t slot) {
    auto* list = find<QListWidget>("findingsList");
    ASSERT_TRUE(list && list->isVisible());
    const auto found = list->findItems(QString::fromStdString(main.dict[215 + slot]), Qt::MatchContains);
    ASSERT_EQ(found.size(), 1) << slot;
    list->scrollToItem(found[0]);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(found[0]).center());
    settle();
  }
  // The one that stands in the middle of the page.
  std::string middle() {
    std::string names;
    for (const char* name : {"TreeView1", "CWGraph2"}) {
      const auto* widget = find<QWidget>(name);
      if (widget && widget->isVisible()) names += name;
    }
    return names;
  }
  bool hints(const char* text) {
    const auto labels = window.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [text](const QLabel* label) {
      return label->isVisible() && label->text().startsWith(QLatin1String(text));
    });
  }

  MainWindow window{main, [] {}};
  DataElements& d = main.data;
};
class DataPage : public Page, public testing::Test {};

TEST_F(DataPage, ShowsEachLogInItsPlace) {
  EXPECT_TRUE(hints("No log is open"));
  for (Button* log : {&d.tsDataBtn, &d.histDataBtn}) {
    click(*log);
    EXPECT_EQ(middle(), "TreeView1");
    EXPECT_GT(find<QTreeView>("TreeView1")->model()->rowCount(), 0);
  }
  EXPECT_FALSE(hints("No log"));
  click(d.cmDataBtn);
  EXPECT_EQ(middle(), "CWGraph2");
  EXPECT_EQ(find<GraphCanvas>("canvas")->line(0).size(), main.logs.chartData.size());
}

TEST_F(DataPage, TheHistorysGraphTakesTheTreesPlaceAndFollowsItsButtons) {
  click(d.histDataBtn);
  click(d.maxMinHistBtn);
  EXPECT_EQ(middle(), "CWGraph2");
  const auto* canvas = find<GraphCanvas>("canvas");
  ASSERT_EQ(canvas->lines(), 4U);
  const QCPRange before = canvas->xAxis->range();
  click(d.vMaxBtn);
  EXPECT_FALSE(canvas->line(0).visible());
  EXPECT_EQ(canvas->xAxis->range(), before);
  click(d.maxMinHistBtn);
  EXPECT_EQ(middle(), "TreeView1");
}

TEST(Findings, LeadToTheirRowsWhateverTheUserLookedAtSince) {
  constexpr std::size_t kHighLoad = 3, kCurrentAtGoodVolts = 29;  // raised by the same rows
  Page page(simulator::Story::OverloadedCircuit);
  page.click(page.d.histDataBtn);
  page.click(page.main.frame.expertBtn);
  auto* tree = page.find<QTreeView>("TreeView1");
  for (const std::size_t slot : {kHighLoad, kCurrentAtGoodVolts, kCurrentAtGoodVolts}) {
    page.choose(slot);
    const auto picked = tree->selectionModel()->selectedIndexes();
    ASSERT_EQ(picked.size(), static_cast<qsizetype>(page.main.findings.rows[slot].size()));
    ASSERT_GT(picked.size(), 1);
    EXPECT_TRUE(tree->viewport()->rect().intersects(tree->visualRect(picked[0])));
    tree->scrollToTop();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, QPoint(60, 5));
    EXPECT_LE(tree->selectionModel()->selectedIndexes().size(), 1);
  }
  page.click(page.d.maxMinHistBtn);
  const auto* canvas = page.find<GraphCanvas>("canvas");
  for (const std::size_t slot : {kHighLoad, kCurrentAtGoodVolts, kCurrentAtGoodVolts}) {
    canvas->xAxis->setRange(1, 2);
    page.choose(slot);
    EXPECT_TRUE(canvas->xAxis->range().contains(page.main.frame.CWGraph2.marks().at(0)));
  }
}

}  // namespace
}  // namespace zephon
