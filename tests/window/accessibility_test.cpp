// What a person hears who works the window by a screen reader and the keyboard.

#include <QDialog>
#include <QScrollArea>
#include <QTest>
#include <algorithm>
#include <set>

#include "window/card.h"
#include "window/page_rail.h"
#include "window/page_walk.h"
#include "window/qt_dialogs.h"
#include "window/qt_loop.h"

namespace zephon {
namespace {

using testing_support::PageWalk;

QAccessibleInterface* readerOf(QObject* widget) {
  return QAccessible::queryAccessibleInterface(widget);
}

std::string describe(QAccessibleInterface& node) {
  const QObject* object = node.object();
  return (object ? object->metaObject()->className() + (" " + object->objectName().toStdString()) : "?") +
         " role " + std::to_string(node.role()) + " \"" + node.text(QAccessible::Name).toStdString() + '"';
}

// What can be used, and of our own window what lies innermost, must say what it is. A scroll bar is named by
// what it scrolls.
void expectNamesAndRoles(QAccessibleInterface* top, const std::string& page) {
  const bool own = dynamic_cast<MainWindow*>(top->object());
  testing_support::visitAccessible(top, [&](QAccessibleInterface& node) {
    const bool shows = own && node.childCount() == 0 && node.role() != QAccessible::ScrollBar;
    const bool blank = node.role() == QAccessible::StaticText && node.text(QAccessible::Name).isEmpty();
    if (blank || (!shows && !node.state().focusable)) return;
    EXPECT_FALSE(node.text(QAccessible::Name).isEmpty()) << page << ": " << describe(node);
    for (const auto none : {QAccessible::NoRole, QAccessible::Client, QAccessible::Border})
      EXPECT_NE(node.role(), none) << page << ": " << describe(node);
  });
}

// From the first page button round to it again.
std::vector<QWidget*> tabOrder(QWidget& first) {
  std::vector<QWidget*> order;
  first.setFocus();
  QWidget* at = &first;
  for (int step = 0; order.empty() || (at != &first && step < 200); ++step) {
    if (order.empty() || order.back() != at) order.push_back(at);  // a date is walked through by its parts
    QTest::keyClick(at, Qt::Key_Tab);
    at = QApplication::focusWidget();
  }
  return order;
}

QRect placeOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

const QWidget& groupOf(const QWidget& widget) {
  const QWidget* group = &widget;
  while (group->parentWidget() && !dynamic_cast<const Card*>(group) &&
         !dynamic_cast<const PageRail*>(group)) {
    group = group->parentWidget();
  }
  return group->isWindow() ? widget : *group;
}

bool follows(const QRect& after, const QRect& before) {
  return after.top() >= before.bottom() - 2 || after.left() >= before.right() - 2;
}

class Accessibility : public testing::TestWithParam<simulator::Profile> {};

TEST_P(Accessibility, EveryControlHasANameARoleAndAPlaceInReadingOrder) {
  PageWalk tool(GetParam());
  ASSERT_TRUE(QTest::qWaitForWindowActive(&tool.window));
  int pages = 0;
  tool.walk([&](const std::string& page) {
    ++pages;
    expectNamesAndRoles(readerOf(&tool.window), page);
    const auto order = tabOrder(*tool.window.findChild<QWidget*>("measBtn"));
    for (QWidget* widget : tool.window.findChildren<QWidget*>()) {
      const bool wanted = widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
                          (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
      EXPECT_EQ(std::count(order.begin(), order.end(), widget), wanted ? 1 : 0)
          << page << ": " << describe(*readerOf(widget));
    }
    std::set<const QWidget*> groups;
    for (std::size_t i = 0; i < order.size(); ++i) {
      const QWidget& group = groupOf(*order[i]);
      const bool same = i > 0 && &group == &groupOf(*order[i - 1]);
      EXPECT_TRUE(same || groups.insert(&group).second) << page << ": left and entered again";
      if (i == 0) continue;
      const QWidget& after = same ? *order[i] : group;
      const QWidget& before = same ? *order[i - 1] : groupOf(*order[i - 1]);
      EXPECT_TRUE(follows(placeOf(after), placeOf(before)))
          << page << ": " << describe(*readerOf(order[i])) << " after " << describe(*readerOf(order[i - 1]));
    }
  });
  EXPECT_GE(pages, 8);
}

INSTANTIATE_TEST_SUITE_P(Devices, Accessibility, testing::ValuesIn(testing_support::allDevices()),
                         testing_support::deviceName);

class Heard : public testing::Test {
 protected:
  // Name, value and description, as they are read out.
  std::string heard(const Element& element) {
    auto* node = readerOf(tool.window.findChild<QWidget*>(QString::fromStdString(element.name())));
    if (!node) return "no " + element.name();
    QStringList said{node->text(QAccessible::Name), node->text(QAccessible::Value),
                     node->text(QAccessible::Description)};
    if (auto* value = node->valueInterface()) said.insert(1, value->currentValue().toString());
    said.removeAll(QString());
    said.removeDuplicates();
    return said.join(", ").toStdString();
  }
  PageWalk tool;
  Main& main = tool.main;
};

TEST_F(Heard, AValueIsToldWithWhatItIsOf) {
  MeasurementElements& m = main.measurement;
  tool.use(main.frame.measBtn, 5000);
  EXPECT_EQ(heard(m.VlnSlide), "RMS Line Voltage, " + m.VlnLbl.caption() + ", Normal");
  EXPECT_EQ(heard(m.EUtxt), "Energy Usage, " + m.EUtxt.text() + " kWh");
  EXPECT_EQ(heard(m.EnCostLbl), m.EnCostLbl.caption() + ", Energy cost");
  EXPECT_EQ(heard(m.SGrecTxt), "Surges, " + m.SGrecTxt.text() + ", Surge");
  EXPECT_NE(heard(m.recSlide).find("Power Outages "), std::string::npos) << heard(m.recSlide);
  EXPECT_EQ(heard(main.frame.linkLbl), main.frame.linkLbl.caption() + ", Link");

  tool.use(main.frame.ChartBtn, 5000);
  const Graph::Plot& plot = main.frame.CWGraph2.plots().front();
  const std::string graph = heard(main.frame.CWGraph2);
  EXPECT_EQ(graph.rfind("Graph, " + plot.legend + ": " + plot.annotation + ". ", 0), 0U) << graph;
  EXPECT_EQ(heard(main.chart.chartIntervalSlide), "Chart Interval (1 x sec), 1");

  tool.use(main.frame.setupBtn, 1000);
  EXPECT_EQ(heard(main.setup.OVcoNumEdit), "Over Voltage Shutdown (V), 150, 130 \u2013 160 V");
  tool.use(main.frame.dataBtn);
  tool.use(main.data.histDataBtn);
  tool.use(main.data.maxMinHistBtn);
  EXPECT_NE(heard(main.frame.CWGraph2).find(" \u2013 "), std::string::npos) << heard(main.frame.CWGraph2);
}

TEST(HeardBoxes, EveryBoxIsNamedToItsLastControl) {
  QtLoop loop;
  QtDialogs dialogs;
  const FileQuestion question{"/", "Report 1", {{"PDF (*.pdf)", "pdf"}}};
  const std::function<void()> boxes[] = {
      [&] { dialogs.message("The link was lost.", "Check the cable."); },
      [&] { dialogs.message(std::string(20, '\n'), {}); },
      [&] { dialogs.yesNo("Clear?"); },
      [&] { dialogs.okCancel("Replace?", "It exists."); },
      [&] { dialogs.prompt("ID", "New ID", ""); },
      [&] { dialogs.openFile(question); },
      [&] { dialogs.saveFile(question); },
  };
  for (const auto& show : boxes) {
    bool seen = false;
    loop.callAt(loop.now() + fromMillis(10), [&] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      seen = true;
      expectNamesAndRoles(readerOf(box), box->windowTitle().toStdString());
      box->reject();
    });
    show();
    EXPECT_TRUE(seen);
  }
}

}  // namespace
}  // namespace zephon
