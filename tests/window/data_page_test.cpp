#include <QListWidget>
#include <QTreeView>

#include "window/tool_window.h"

// The data page as a user works it.
namespace zephon {
namespace {

struct Page : testing_support::ToolWindow {
  explicit Page(simulator::Story story) : ToolWindow({}, "EN", testing_support::busySite(story)) {
    use(main.frame.dataBtn);
  }
  // Clicks the finding of a slot in the list.
  void choose(std::size_t slot) {
    auto* list = find<QListWidget>("findingsList");
    ASSERT_TRUE(list && list->isVisible());
    const auto found = list->findItems(QString::fromStdString(main.dict[215 + slot]), Qt::MatchContains);
    ASSERT_EQ(found.size(), 1) << slot;
    list->scrollToItem(found[0]);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(found[0]).center());
    testing_support::settle();
  }
  // What stands in the middle of the page.
  std::string middle() {
    std::string names;
    for (const char* name : {"TreeView1", "CWGraph2"}) {
      if (find(name) && find(name)->isVisible()) names += name;
    }
    return names;
  }
  DataElements& d = main.data;
};

TEST(DataPageWindow, ShowsEachLogInItsPlace) {
  Page page(simulator::Story::Lively);
  for (Button* log : {&page.d.tsDataBtn, &page.d.histDataBtn}) {
    page.use(*log);
    EXPECT_EQ(page.middle(), "TreeView1");
  }
  page.use(page.d.maxMinHistBtn);
  EXPECT_EQ(page.middle(), "CWGraph2") << "in the tree's place";
  ASSERT_EQ(page.canvas().lines(), 4U);
  page.use(page.d.vMaxBtn);
  EXPECT_FALSE(page.canvas().line(0).visible());
  page.use(page.d.maxMinHistBtn);
  EXPECT_EQ(page.middle(), "TreeView1");
  page.use(page.d.cmDataBtn);
  EXPECT_EQ(page.middle(), "CWGraph2");
  EXPECT_EQ(page.canvas().line(0).size(), page.main.logs.chartData.size());
}

TEST(DataPageWindow, FindingsLeadToTheirRowsWhateverTheUserLookedAtSince) {
  constexpr std::size_t kHighLoad = 3, kCurrentAtGoodVolts = 29;  // raised by the same rows
  Page page(simulator::Story::OverloadedCircuit);
  page.use(page.d.histDataBtn);
  page.use(page.main.frame.expertBtn);
  auto* tree = page.find<QTreeView>("TreeView1");
  for (const std::size_t slot : {kHighLoad, kCurrentAtGoodVolts, kCurrentAtGoodVolts}) {
    page.choose(slot);
    const auto picked = tree->selectionModel()->selectedIndexes();
    ASSERT_EQ(picked.size(), static_cast<qsizetype>(page.main.findings.rows[slot].size()));
    ASSERT_GT(picked.size(), 1);
    EXPECT_TRUE(tree->viewport()->rect().intersects(tree->visualRect(picked[0])));
    EXPECT_TRUE(tree->currentIndex() == picked[0]);
    tree->scrollToTop();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, QPoint(60, 5));
    EXPECT_LE(tree->selectionModel()->selectedIndexes().size(), 1);
  }
  page.use(page.d.maxMinHistBtn);
  QCPAxis& time = *page.canvas().xAxis;
  for (const std::size_t slot : {kHighLoad, kCurrentAtGoodVolts, kCurrentAtGoodVolts}) {
    time.setRange(1, 2);
    page.choose(slot);
    EXPECT_TRUE(time.range().contains(page.main.frame.CWGraph2.marks().at(0)));
  }
  time.setRange(1, 2);
  QTest::keyClick(page.find("findingsList"), Qt::Key_Return);
  testing_support::settle();
  EXPECT_TRUE(time.range().contains(page.main.frame.CWGraph2.marks().at(0)));
}

}  // namespace
}  // namespace zephon
