#include <gtest/gtest.h>

#include <random>

#include "shell/tool.h"

// A user who presses anything at any time, on a line where anything can go wrong. Nothing may crash, no
// message may come but for a fault that was there, and in the end everything is quiet.

namespace zephon {
namespace {

using simulator::Fault;
using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;

class Monkey {
 public:
  Monkey(Tool& tool, unsigned seed) : tool_(tool), random_(seed) {}

  void act() {
    const auto& elements = tool_.main.elements.all();
    Element& element = *elements[below(elements.size())];
    if (auto* button = dynamic_cast<Button*>(&element)) button->click(mouse());
    if (auto* slider = dynamic_cast<Slider*>(&element)) slider->click();
    if (&element == &tool_.main.chart.chartIntervalSlide)
      tool_.main.chart.chartIntervalSlide.setValue(static_cast<double>(below(6)));
    if (auto* edit = dynamic_cast<NumEdit*>(&element)) edit->edit(static_cast<double>(below(320)));
    if (auto* date = dynamic_cast<DateEdit*>(&element)) date->edit(43000 + static_cast<double>(below(5000)));
    if (auto* text = dynamic_cast<TextBox*>(&element)) type(*text);
    if (auto* graph = dynamic_cast<Graph*>(&element)) dropCursor(*graph);
    if (below(50) == 0) tool_.main.formSize.width = static_cast<int>(below(2000));
    if (auto* list = dynamic_cast<Combo*>(&element))
      list->choose(static_cast<int>(below(list->items().size() + 1)) - 1);
  }

  double pause() {
    return below(4) == 0 ? static_cast<double>(below(4000)) : static_cast<double>(below(120));
  }

  Fault fault() {
    const std::size_t kinds = static_cast<std::size_t>(FaultKind::Corrupt) + 1;
    return {.kind = FaultKind(below(kinds)), .commands = 1 + static_cast<int>(below(6))};
  }

  std::size_t below(std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_);
  }

 private:
  MouseButton mouse() { return below(5) == 0 ? MouseButton::Right : MouseButton::Left; }
  void dropCursor(Graph& graph) {
    if (!graph.visible() || graph.cursors().empty()) return;
    const std::size_t cursor = below(graph.cursors().size());
    const double level = static_cast<double>(below(800)) - 400;
    graph.dropCursor(cursor, level, level, graph.cursors()[cursor].plot, {});
  }
  void type(TextBox& text) {
    text.click();
    text.type(std::string(below(12), static_cast<char>('!' + below(90))));
  }

  Tool& tool_;
  std::mt19937 random_;
};

// Actions arrive as timed calls, so they strike inside exchanges, pauses and message boxes.
void schedule(Tool& tool, Monkey& monkey, int actions, bool faults) {
  if (actions == 0 || tool.main.ending) return;
  tool.later(monkey.pause(), [&tool, &monkey, actions, faults] {
    schedule(tool, monkey, actions - 1, faults);  // first the next one: this one may take long
    if (faults && monkey.below(25) == 0) tool.device.addFault(monkey.fault());
    if (faults && monkey.below(25) == 0) tool.device.clearFaults();
    monkey.act();
  });
}

// The device's line and rating, and whether its cable has faults.
class MonkeyTest : public ::testing::TestWithParam<std::tuple<Line, int, bool>> {};

TEST_P(MonkeyTest, NothingIsAmissAfterTenThousandActions) {
  const auto& [line, rating, faults] = GetParam();
  simulator::Options options;
  options.seed = 7;
  Tool tool(makeProfile(line, rating), options);
  tool.dialogs.saveAnswer = tool.dialogs.openAnswer = tool.settings / "saved.csv";
  Monkey monkey(tool, 20240305);
  schedule(tool, monkey, 10'000, faults);
  tool.run(4 * 3600 * 1000.0);
  for (const std::string& text : tool.dialogs.texts()) EXPECT_TRUE(faults || text != tool.main.dict[46]);
  tool.device.clearFaults();
  FrameElements& f = tool.main.frame;
  for (Button* page :
       {&f.measBtn, &f.ScopeBtn, &f.ChartBtn, &f.outletsBtn, &f.dataBtn, &f.setupBtn, &f.comBtn})
    page->setValue(false);
  tool.run(10'000);
  EXPECT_TRUE(tool.idle());
  tool.main.frame.COMlbl.setCaption("1");
  tool.press(f.measBtn);  // and it still works
  tool.run(20'000);
  EXPECT_TRUE(tool.main.pages.measuring);
  EXPECT_EQ(tool.main.capture.capturedMode != 0, line == Line::Orvantis);
  schedule(tool, monkey, 10'000, faults);
  tool.later(static_cast<double>(monkey.below(100'000)), [&tool] { formUnload(tool.main); });
  tool.run(110'000);
  formUnload(tool.main);  // the window has closed in the middle of it, and the stack has unwound
  EXPECT_FALSE(tool.port().open || tool.main.exchange.Timer1.enabled());
  EXPECT_EQ(tool.line.strayCalls(), 0);
}

INSTANTIATE_TEST_SUITE_P(Lines, MonkeyTest,
                         ::testing::Combine(::testing::Values(Line::Orvantis, Line::Tessara),
                                            ::testing::Values(120, 240), ::testing::Bool()));

}  // namespace
}  // namespace zephon
