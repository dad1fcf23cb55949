#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTreeView>
#include <filesystem>

#include "shell/tool.h"
#include "window/graph_canvas.h"
#include "window/main_window.h"

// The data page as a user works it: the whole tool with its window, and a simulated device or none.
namespace zephon {
namespace {

using testing_support::Tool;

simulator::Options busySite(simulator::Story story = simulator::Story::Lively) {
  simulator::Options options;
  options.site = story;
  options.pastSeconds = 5 * 86400;
  options.recordingHours = 2;
  return options;
}

class Page : public Tool {
 public:
  explicit Page(const simulator::Profile& profile = {}, bool pluggedIn = true,
                const simulator::Options& site = busySite())
      : Tool(profile, site) {
    if (!pluggedIn) line.detach(1);
    window.resize(1024, 600);
    window.show();
    press(main.frame.dataBtn);
    settle();
  }

  static void settle() {
    for (int pass = 0; pass < 5; ++pass) QApplication::processEvents();
  }
  template <class Widget>
  Widget* find(const char* name) {
    return dynamic_cast<Widget*>(window.findChild<QWidget*>(QString::fromLatin1(name)));
  }
  // All that the tree's widget can show, a line a node.
  std::string tree() { return lines(*find<QTreeView>("TreeView1")->model(), {}); }
  // What the graph shows of its points, and how they lie.
  std::string graph() {
    const auto* canvas = find<GraphCanvas>("canvas");
    std::string text;
    for (std::size_t i = 0; canvas && i < canvas->lines(); ++i) {
      bool found = false;
      const QCPRange values = canvas->line(i).getValueRange(found);
      text += std::to_string(canvas->line(i).size()) + ' ' + std::to_string(values.lower) + ' ' +
              std::to_string(values.upper) + '\n';
    }
    return text;
  }
  bool sees(const char* name) {
    const auto* widget = find<QWidget>(name);
    return widget && widget->isVisible();
  }
  bool hints(const char* text) {
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (label->isVisible() && label->text().startsWith(QLatin1String(text))) return true;
    }
    return false;
  }

  MainWindow window{main, [] {}};

 private:
  static std::string lines(const QAbstractItemModel& model, const QModelIndex& parent) {
    std::string text;
    for (int row = 0; row < model.rowCount(parent); ++row) {
      const QModelIndex index = model.index(row, 0, parent);
      text += model.data(index).toString().toStdString() + '\n' + lines(model, index);
    }
    return text;
  }
};

struct LogCase {
  const char* name;
  Button DataElements::*button;
  bool chart;
};
const LogCase kLogs[] = {{"events", &DataElements::tsDataBtn, false},
                         {"history", &DataElements::histDataBtn, false},
                         {"chart", &DataElements::cmDataBtn, true}};

class DataPage : public testing::TestWithParam<simulator::Line> {};

TEST_P(DataPage, ShowsEachLogAndShowsItAgainFromItsFiles) {
  const TempFolder folder;
  simulator::Profile profile;
  profile.line = GetParam();
  Page page(profile);
  EXPECT_TRUE(page.hints("No log is open"));
  for (const LogCase& log : kLogs) {
    if (!(page.main.data.*log.button).visible()) continue;
    page.press(page.main.data.*log.button);
    page.settle();
    const std::string shown = log.chart ? page.graph() : page.tree();
    EXPECT_GT(shown.size(), 30U) << log.name;
    EXPECT_EQ(page.sees("TreeView1"), !log.chart) << log.name;
    EXPECT_EQ(page.sees("CWGraph2"), log.chart) << log.name;
    EXPECT_FALSE(page.hints("No log"));
    for (const bool raw : {false, true}) {
      if (raw && (log.chart || page.main.logs.rawLogBuffer.empty())) continue;
      const std::string path = folder / (std::string(log.name) + (raw ? ".dat" : ".csv"));
      page.dialogs.saveAnswer = path;
      if (raw) page.main.frame.saveBtn.click(MouseButton::Right);
      page.press(page.main.frame.saveBtn);
      if (raw) page.main.frame.saveBtn.click(MouseButton::Right);
      ASSERT_TRUE(std::filesystem::exists(path)) << path;

      Page again(profile, false);  // a second start, without a device
      again.dialogs.openAnswer = path;
      again.press(again.main.data.*log.button);
      again.settle();
      EXPECT_TRUE((log.chart ? again.graph() : again.tree()) == shown) << path;
      EXPECT_EQ(again.sees(log.chart ? "CWGraph2" : "TreeView1"), true) << path;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Lines, DataPage,
                         testing::Values(simulator::Line::Orvantis, simulator::Line::Tessara),
                         [](const auto& each) {
                           return each.param == simulator::Line::Orvantis ? "First" : "Second";
                         });

TEST(DataPageViews, TheHistorysGraphTakesTheTreesPlaceAndFollowsItsButtons) {
  Page page;
  DataElements& d = page.main.data;
  page.press(d.histDataBtn);
  page.settle();
  page.press(d.maxMinHistBtn);
  page.settle();
  EXPECT_TRUE(page.sees("CWGraph2") && !page.sees("TreeView1"));
  const auto* canvas = page.find<GraphCanvas>("canvas");
  ASSERT_EQ(canvas->lines(), 4U);
  const QCPRange before = canvas->xAxis->range();
  page.press(d.vMaxBtn);
  page.settle();
  EXPECT_FALSE(canvas->line(0).visible());
  EXPECT_EQ(canvas->xAxis->range(), before);
  page.press(d.maxMinHistBtn);
  page.settle();
  EXPECT_TRUE(page.sees("TreeView1") && !page.sees("CWGraph2"));
}

// Clicks the finding of a slot in the list.
void choose(Page& page, std::size_t slot) {
  auto* list = page.find<QListWidget>("findingsList");
  ASSERT_TRUE(list && list->isVisible());
  const auto found = list->findItems(QString::fromStdString(page.main.dict[215 + slot]), Qt::MatchContains);
  ASSERT_EQ(found.size(), 1) << slot;
  list->scrollToItem(found[0]);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(found[0]).center());
  page.settle();
}

TEST(DataPageViews, AFindingLeadsToItsRowsWhateverTheUserLookedAtSince) {
  constexpr std::size_t kHighLoad = 3, kCurrentAtGoodVolts = 29;  // raised by the same rows
  Page page({}, true, busySite(simulator::Story::OverloadedCircuit));
  page.press(page.main.data.histDataBtn);
  page.press(page.main.frame.expertBtn);
  page.settle();
  auto* tree = page.find<QTreeView>("TreeView1");
  for (const std::size_t slot : {kHighLoad, kCurrentAtGoodVolts, kCurrentAtGoodVolts}) {
    choose(page, slot);
    const auto picked = tree->selectionModel()->selectedIndexes();
    ASSERT_EQ(picked.size(), static_cast<qsizetype>(page.main.findings.rows[slot].size()));
    ASSERT_GT(picked.size(), 1);
    EXPECT_TRUE(tree->viewport()->rect().intersects(tree->visualRect(picked[0])));
    tree->scrollToBottom();
    EXPECT_FALSE(tree->viewport()->rect().intersects(tree->visualRect(picked[0])));
    if (slot == kHighLoad) QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, QPoint(60, 5));
  }
  page.press(page.main.data.maxMinHistBtn);
  page.settle();
  const auto* canvas = page.find<GraphCanvas>("canvas");
  for (const std::size_t slot : {kHighLoad, kCurrentAtGoodVolts, kCurrentAtGoodVolts}) {
    const auto seesFirst = [&] {
      return canvas->xAxis->range().contains(page.main.frame.CWGraph2.marks().at(0));
    };
    QTest::keyClick(page.find<QWidget>("CWGraph2"), Qt::Key_L);  // the last hour
    page.settle();
    EXPECT_FALSE(seesFirst());
    choose(page, slot);
    EXPECT_TRUE(seesFirst());
  }
}

}  // namespace
}  // namespace zephon
