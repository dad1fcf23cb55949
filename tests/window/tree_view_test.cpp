#include "window/tree_view.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QTest>
#include <QTreeView>
#include <memory>

#include "logs/event_tree.h"
#include "logs/history_tree.h"
#include "window/colours.h"

namespace zephon {
namespace {

std::vector<std::string> dictionary() {
  std::vector<std::string> dict;
  for (int key = 0; key <= 270; ++key) dict.push_back("k" + std::to_string(key));
  return dict;
}

// A row every half hour.
LogTable<12> history(std::size_t rows) {
  LogTable<12> table;
  for (std::size_t i = 0; i < rows; ++i) {
    const double day = static_cast<double>(i / 48);
    table.push_back({13 + std::floor(day / 360), std::fmod(day, 30) + 1,
                     std::fmod(std::floor(day / 30), 12) + 1, static_cast<double>(i % 48 / 2),
                     static_cast<double>(i % 2 * 30), 0, 100, 200, 120, 125, 110, static_cast<double>(i)});
  }
  return table;
}

class TreeViewTest : public testing::Test {
 protected:
  TreeViewTest() {
    view->resize(400, 300);
    view->show();
    settle();
  }
  static void settle() {
    for (int pass = 0; pass < 3; ++pass) QApplication::processEvents();
  }
  QTreeView& tree() { return *dynamic_cast<QTreeView*>(view.get()); }
  QString text(const QModelIndex& index) { return tree().model()->data(index).toString(); }
  QModelIndex child(std::initializer_list<int> path) {
    QModelIndex index;
    for (const int row : path) index = tree().model()->index(row, 0, index);
    return index;
  }

  ElementList list;
  Tree element{list, "TreeView1"};
  std::unique_ptr<QWidget> view{drawTree(element, nullptr)};
};

TEST_F(TreeViewTest, ShowsTheSourceOpenAtItsYears) {
  const LogTable<12> rows = history(6911);
  element.setSource(std::make_shared<HistoryTree>(rows, dictionary()));
  const QAbstractItemModelTester consistent(tree().model(),
                                            QAbstractItemModelTester::FailureReportingMode::Fatal);
  settle();
  EXPECT_EQ(tree().model()->rowCount(), 1);
  EXPECT_TRUE(tree().isExpanded(child({0})) && !tree().isExpanded(child({0, 0})));
  EXPECT_EQ(text(child({0})), "2013");
  EXPECT_EQ(text(child({0, 3, 29, 47})), "23:30:00 - 00:00:00");
  EXPECT_EQ(text(child({0, 0, 0, 1, 5})), "k87 1 (ARMS)");

  ASSERT_TRUE(tree().currentIndex() == child({0}));
  for (const auto key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down}) QTest::keyClick(&tree(), key);
  EXPECT_EQ(text(tree().currentIndex()), "1");
}

TEST_F(TreeViewTest, OpensAndPicksOutWhatTheElementSelects) {
  const LogTable<12> rows = history(6911);
  const auto source = std::make_shared<HistoryTree>(rows, dictionary());
  element.setSource(source);
  std::vector<TreeNode> wanted;
  for (std::size_t row = 3000; row < 6000; row += 7) wanted.push_back(*source->nodeOfRow(row));
  element.select(wanted);
  settle();
  const QModelIndexList picked = tree().selectionModel()->selectedIndexes();
  ASSERT_EQ(picked.size(), static_cast<qsizetype>(wanted.size()));
  EXPECT_TRUE(tree().viewport()->rect().intersects(tree().visualRect(picked.first())));
  EXPECT_TRUE(tree().currentIndex() == picked.first());
  element.select({});
  EXPECT_FALSE(tree().selectionModel()->hasSelection());

  element.clear();
  EXPECT_EQ(tree().model()->rowCount(), 0);
}

TEST_F(TreeViewTest, ColoursItsEventsSoThatTheyCanBeRead) {
  const LogTable<8> events = {{13, 1, 1, 0, 0, 0, 1, 0}, {13, 1, 1, 0, 0, 1, 129, 0}};
  element.setSource(std::make_shared<EventTree>(events, LegendColours{0x00E0E0}, dictionary()));
  const auto* model = tree().model();
  const QImage disc =
      model->data(child({0, 0, 0, 0}), Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
  const QColor shape = disc.pixelColor(disc.width() / 2, disc.height() / 2);
  EXPECT_EQ(shape.hue(), QColor(0xE0, 0xE0, 0).hue());
  EXPECT_GE(contrast(shape, tree().palette().base().color()), kShapeContrast);
  const auto ink = model->data(child({0, 0, 0, 0}), Qt::ForegroundRole).value<QColor>();
  EXPECT_GE(contrast(ink, tree().palette().base().color()), kTextContrast) << "pale yellow on white";
  EXPECT_FALSE(model->data(child({0, 0, 0, 1}), Qt::ForegroundRole).isValid());
}

}  // namespace
}  // namespace zephon
