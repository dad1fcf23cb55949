#include "window/tree_view.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QTreeView>
#include <memory>

#include "logs/event_tree.h"
#include "logs/history_tree.h"
#include "window/colours.h"
#include "window/hands.h"

namespace zephon {
namespace {

class TreeViewTest : public testing::Test {
 protected:
  TreeViewTest() {
    for (int key = 0; key <= 270; ++key) dict.push_back("k" + std::to_string(key));
    view->resize(400, 300);
    view->show();
  }
  QTreeView& tree() { return *dynamic_cast<QTreeView*>(view.get()); }
  QModelIndex child(std::initializer_list<int> path) {
    QModelIndex index;
    for (const int row : path) index = tree().model()->index(row, 0, index);
    return index;
  }
  QString text(const QModelIndex& index) { return tree().model()->data(index).toString(); }

  std::vector<std::string> dict;
  ElementList list;
  Tree element{list, "TreeView1"};
  std::unique_ptr<QWidget> view{drawTree(element, nullptr)};
};

TEST_F(TreeViewTest, ShowsTheSourceOpenAtItsYears) {
  LogTable<12> rows;  // one every half hour
  for (int i = 0; i < 6911; ++i) {
    rows.push_back({13, i / 48 % 30 + 1.0, i / 48 / 30 + 1.0, i % 48 / 2 * 1.0, i % 2 * 30.0, 0, 100, 200,
                    120, 125, 110, i * 1.0});
  }
  element.setSource(std::make_shared<HistoryTree>(rows, dict));
  const QAbstractItemModelTester consistent(tree().model(),
                                            QAbstractItemModelTester::FailureReportingMode::Fatal);
  testing_support::settle();
  EXPECT_EQ(tree().model()->rowCount(), 1);
  EXPECT_TRUE(tree().isExpanded(child({0})) && !tree().isExpanded(child({0, 0})));
  EXPECT_EQ(text(child({0})), "2013");
  EXPECT_EQ(text(child({0, 3, 29, 47})), "23:30:00 - 00:00:00");
  EXPECT_EQ(text(child({0, 0, 0, 1, 5})), "k87 1 (ARMS)");
  EXPECT_TRUE(tree().currentIndex() == child({0})) << "where the keyboard begins";
  element.clear();
  EXPECT_EQ(tree().model()->rowCount(), 0);
}

TEST_F(TreeViewTest, ColoursItsEventsSoThatTheyCanBeRead) {
  const LogTable<8> events = {{13, 1, 1, 0, 0, 0, 1, 0}, {13, 1, 1, 0, 0, 1, 129, 0}};
  element.setSource(std::make_shared<EventTree>(events, LegendColours{0x00E0E0}, dict));
  const auto* model = tree().model();
  const QModelIndex first = child({0, 0, 0, 0});
  const QColor ground = tree().palette().base().color();
  const QImage disc = model->data(first, Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
  const QColor shape = disc.pixelColor(disc.width() / 2, disc.height() / 2);
  EXPECT_EQ(shape.hue(), QColor(0xE0, 0xE0, 0).hue());
  EXPECT_GE(contrast(shape, ground), kShapeContrast);
  EXPECT_GE(contrast(model->data(first, Qt::ForegroundRole).value<QColor>(), ground), kTextContrast);
  EXPECT_FALSE(model->data(child({0, 0, 0, 1}), Qt::ForegroundRole).isValid());
}

}  // namespace
}  // namespace zephon
