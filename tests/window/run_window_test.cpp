#include "window/run_window.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <cstdio>
#include <string>

#include "window/bare_main.h"
#include "window/scenarios.h"

namespace zephon::testing_support {
namespace {

constexpr int kCleanEnd = 42;

void say(const char* word) {
  std::puts(word);
  std::fflush(stdout);
}

// Deep in an exchange: two waits, one inside the other.
void waitNested(Main& main, EventLoop& loop, int depth) {
  if (depth == 0) say("up");
  if (depth > 0) loop.callAt(loop.now(), [&main, &loop, depth] { waitNested(main, loop, depth - 1); });
  while (!main.ending) loop.sleepUntil(loop.now() + std::chrono::seconds(30));
}

// A box in a box, and a question that comes after the end: each takes its careful answer.
void askNested(Main& main, const WindowedProgram& window, bool& careful) {
  window.loop.callAt(window.loop.now(), [&] {
    window.loop.callAt(window.loop.now(), [] { say("up"); });
    careful = !window.dialogs.yesNo("Clear?");
  });
  window.dialogs.message("The link was lost.", "Check the cable.");
  careful = careful && main.ending && !window.dialogs.yesNo("Replace the file?");
}

}  // namespace

// Ends with kCleanEnd if the window closed once, everything that waited came back, and the boxes were
// answered with care.
int runScenario(int& argc, char** argv) {
  const std::string name = argv[2];
  return runWindow(argc, argv, [&](const WindowedProgram& window) {
    BareMain bare(window.loop);
    int closings = 0;
    bool returned = false;
    bool careful = name != "box";
    window.loop.callAt(window.loop.now() + fromMillis(20), [&] {
      if (name == "wait") waitNested(bare.main, window.loop, 1);
      if (name == "box") askNested(bare.main, window, careful);
      returned = true;
    });
    const int status = window.show(bare.main, [&] { ++closings; });
    return status == 0 && closings == 1 && returned && careful && bare.main.ending ? kCleanEnd : 1;
  });
}

namespace {

struct Ending {
  const char* scenario;
  int signal;
};

class RunWindow : public testing::TestWithParam<Ending> {};

TEST_P(RunWindow, ASignalClosesTheWindowWithinASecond) {
  QProcess program;
  program.start(QCoreApplication::applicationFilePath(), {kScenario, GetParam().scenario});
  ASSERT_TRUE(program.waitForStarted());
  while (!program.canReadLine() && program.waitForReadyRead(20000)) {
  }
  ASSERT_EQ(program.readLine().trimmed(), "up");
  QElapsedTimer clock;
  clock.start();
  ::kill(static_cast<pid_t>(program.processId()), GetParam().signal);
  ASSERT_TRUE(program.waitForFinished(20000));
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(program.exitCode(), kCleanEnd);
}

INSTANTIATE_TEST_SUITE_P(Scenarios, RunWindow,
                         testing::Values(Ending{"wait", SIGINT}, Ending{"box", SIGTERM}),
                         [](const auto& each) { return std::string(each.param.scenario); });

}  // namespace
}  // namespace zephon::testing_support
