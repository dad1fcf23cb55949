#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "shell/tool.h"
#include "window/hands.h"
#include "window/main_window.h"

namespace zephon::testing_support {

// A site with something in all its logs.
inline simulator::Options busySite(simulator::Story story = simulator::Story::Lively) {
  simulator::Options options;
  options.site = story;
  options.pastSeconds = 5 * 86400;
  options.recordingHours = 2;
  return options;
}

// The whole tool with its window and a simulated device, in virtual time.
struct ToolWindow : Tool {
  explicit ToolWindow(const simulator::Profile& profile = {}, const std::string& language = "EN",
                      const simulator::Options& site = busySite())
      : Tool(profile, site, language) {
    window.resize(1024, 600);
    window.show();
    settle();
  }

  // Time goes on, and what there is then is drawn.
  void pass(double milliseconds) {
    run(milliseconds);
    settle();
  }
  // Presses a button of the form, if it is there, and lets the device answer.
  void use(Button& button, double milliseconds = 0) {
    if (!button.visible() || !button.enabled()) return;
    press(button);
    pass(milliseconds);
  }
  // Calls `look` with each thing that can be on the screen, and its name.
  void walk(const std::function<void(const std::string& page)>& look);

  template <class Widget = QWidget>
  Widget* find(const std::string& name) {
    return dynamic_cast<Widget*>(window.findChild<QWidget*>(QString::fromStdString(name)));
  }
  GraphCanvas& canvas() { return *find<GraphCanvas>("canvas"); }
  std::string readings() { return find<QLabel>("readings")->text().toStdString(); }
  void key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(find("CWGraph2"), key, held);
    settle();
  }

  MainWindow window{main, [] {}};
};

// From the start page on, whatever page is open.
inline void ToolWindow::walk(const std::function<void(const std::string& page)>& look) {
  FrameElements& f = main.frame;
  DataElements& d = main.data;
  const struct {
    const char* page;
    Button* button;
    double milliseconds;
  } steps[] = {{"start", nullptr, 0},
               {"port", &f.comBtn, 0},
               {"", &f.comBtn, 0},
               {"measurement", &f.measBtn, 5000},
               {"scope", &f.ScopeBtn, 2000},
               {"chart", &f.ChartBtn, 5000},
               {"outlets", &f.outletsBtn, 2000},
               {"data", &f.dataBtn, 500},
               {"events", &d.tsDataBtn, 0},
               {"findings", &f.expertBtn, 0},
               {"history", &d.histDataBtn, 0},
               {"graph", &d.maxMinHistBtn, 0},
               {"memory", &d.cmDataBtn, 0},
               {"setup", &f.setupBtn, 1000}};
  for (Button* page : {&f.measBtn, &f.ScopeBtn, &f.ChartBtn, &f.outletsBtn, &f.dataBtn, &f.setupBtn}) {
    if (page->value()) use(*page);
  }
  for (const auto& step : steps) {
    if (step.button && !(step.button->visible() && step.button->enabled())) continue;
    if (step.button) use(*step.button, step.milliseconds);
    if (*step.page) look(step.page);
  }
}

// The first line, and the two ratings of the second, which differ in what can be set up.
inline std::vector<simulator::Profile> allDevices() {
  return {simulator::makeProfile(simulator::Line::Orvantis), simulator::makeProfile(simulator::Line::Tessara),
          simulator::makeProfile(simulator::Line::Tessara, 240)};
}

inline std::string deviceName(const testing::TestParamInfo<simulator::Profile>& device) {
  const bool first = device.param.line == simulator::Line::Orvantis;
  return (first ? "Orvantis" : "Tessara") + std::to_string(device.param.rating);
}

}  // namespace zephon::testing_support
