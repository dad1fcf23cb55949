#include <gtest/gtest.h>

#include <QTreeView>
#include <functional>

#include "platform/posix_serial.h"
#include "shell/start.h"
#include "support/fake_dialogs.h"
#include "support/running_simulator.h"
#include "window/hands.h"
#include "window/main_window.h"
#include "window/qt_loop.h"

// The window on the simulator's real pseudo-terminal: what it brings and saves, a second start reads back.

namespace zephon {
namespace {

using testing_support::comesTrue;
using testing_support::RunningSimulator;

using D = DataElements;
constexpr std::pair<Button D::*, const char*> kLogs[] = {
    {&D::tsDataBtn, "events"}, {&D::histDataBtn, "history"}, {&D::cmDataBtn, "chart"}};

// A start of the tool, with the data page open.
struct Start {
  Start(const std::string& ports, const TempFolder& home) : serial({ports, {}}) {
    main.around.folders.config = home / "";
    formLoad(main, "");
    window.show();
    main.frame.dataBtn.click();
    testing_support::settle();
  }
  ~Start() { formUnload(main); }

  void save(const std::string& path, bool raw) {
    Button& button = main.frame.saveBtn;
    if (raw != (button.caption() == "Raw")) button.click(MouseButton::Right);
    dialogs.saveAnswer = path;
    button.click();
  }
  void open(Button& log, const std::string& path) {
    dialogs.openAnswer = path;
    log.click();
    testing_support::settle();
  }
  // What the tree says, row by row, or the points of the plots.
  std::string seen() {
    if (!main.data.TreeView1.visible()) {
      std::string points;
      for (const Graph::Plot& plot : main.frame.CWGraph2.plots()) {
        for (std::size_t i = 0; i < plot.data->size(); ++i) points += std::to_string(plot.data->y(i)) + ' ';
      }
      return points;
    }
    std::string rows;
    const auto* view = window.findChild<QTreeView*>("TreeView1");
    const std::function<void(const QModelIndex&)> tell = [&](const QModelIndex& at) {
      rows += at.data().toString().toStdString() + '\n';
      for (int i = 0; i < view->model()->rowCount(at); ++i) tell(view->model()->index(i, 0, at));
    };
    tell({});
    return rows;
  }

  QtLoop loop;
  PosixSerial serial;
  SystemClock clock;
  testing_support::FakeDialogs dialogs;
  Main main{Surroundings{loop, serial, clock, dialogs, Folders{ZEPHON_RESOURCES, "", "", ""}}};
  MainWindow window{main, [] {}};
};

TEST(LogsPty, EachLogIsTheSameAgainFromItsFiles) {
  const TempFolder home;
  std::string brought[std::size(kLogs)];
  {
    RunningSimulator simulator({"--recording-hours", "4"});
    ASSERT_TRUE(comesTrue([&] { return simulator.linked(); }));
    Start first(simulator.ports(), home);
    ASSERT_TRUE(first.main.link.connected);
    for (std::size_t i = 0; i < std::size(kLogs); ++i) {
      const auto& [log, name] = kLogs[i];
      (first.main.data.*log).click();
      testing_support::settle();
      brought[i] = first.seen();
      EXPECT_GT(brought[i].size(), 10'000U) << name;
      first.save(home / (std::string(name) + ".csv"), false);
      first.save(home / (std::string(name) + ".dat"), true);
    }
  }
  Start second(home / "no ports", home);
  ASSERT_FALSE(second.main.link.connected);
  for (std::size_t i = 0; i < std::size(kLogs); ++i) {
    for (const char* form : {".csv", ".dat"}) {
      if (kLogs[i].first == &D::cmDataBtn && form[1] == 'd') continue;  // is written, never read
      second.open(second.main.data.*kLogs[i].first, home / (kLogs[i].second + std::string(form)));
      EXPECT_TRUE(second.seen() == brought[i]) << kLogs[i].second << form;
    }
  }
}

}  // namespace
}  // namespace zephon
