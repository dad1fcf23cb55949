// What a person hears who works the window by a screen reader and the keyboard.

#include <algorithm>
#include <set>

#include "window/card.h"
#include "window/heard.h"
#include "window/page_rail.h"
#include "window/tool_window.h"

namespace zephon {
namespace {

using testing_support::describe;
using testing_support::ToolWindow;

QAccessibleInterface* readerOf(QObject* widget) {
  return QAccessible::queryAccessibleInterface(widget);
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
  ToolWindow tool(GetParam());
  ASSERT_TRUE(QTest::qWaitForWindowActive(&tool.window));
  int pages = 0;
  tool.walk([&](const std::string& page) {
    ++pages;
    testing_support::expectNamesAndRoles(readerOf(&tool.window), page, true);
    const auto order = tabOrder(*tool.find("measBtn"));
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

// Name, value and description, as they are read out.
std::string heard(ToolWindow& tool, const Element& element) {
  auto* node = readerOf(tool.find(element.name()));
  if (!node) return "no " + element.name();
  QStringList said{node->text(QAccessible::Name), node->text(QAccessible::Value),
                   node->text(QAccessible::Description)};
  if (auto* value = node->valueInterface()) said.insert(1, value->currentValue().toString());
  said.removeAll(QString());
  said.removeDuplicates();
  return said.join(", ").toStdString();
}

TEST(Heard, AValueIsToldWithWhatItIsOf) {
  ToolWindow tool;
  MeasurementElements& m = tool.main.measurement;
  FrameElements& f = tool.main.frame;
  tool.use(f.measBtn, 5000);
  EXPECT_EQ(heard(tool, m.VlnSlide), "RMS Line Voltage, " + m.VlnLbl.caption() + ", Normal");
  EXPECT_EQ(heard(tool, m.EUtxt), "Energy Usage, " + m.EUtxt.text() + " kWh");
  EXPECT_NE(heard(tool, m.recSlide).find("Power Outages "), std::string::npos) << heard(tool, m.recSlide);
  tool.use(f.ChartBtn, 5000);
  const Graph::Plot& plot = f.CWGraph2.plots().front();
  const std::string graph = heard(tool, f.CWGraph2);
  EXPECT_EQ(graph.rfind("Graph, " + plot.legend + ": " + plot.annotation + ". ", 0), 0U) << graph;
  tool.use(f.setupBtn, 1000);
  EXPECT_EQ(heard(tool, tool.main.setup.OVcoNumEdit), "Over Voltage Shutdown (V), 150, 130 \u2013 160 V");
}

}  // namespace
}  // namespace zephon
