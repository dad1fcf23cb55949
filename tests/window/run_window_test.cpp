#include "window/run_window.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <cstdio>

#include "window/bare_main.h"
#include "window/scenario.h"

namespace zephon::testing_support {
namespace {

constexpr int kCleanEnd = 42;

// A box, in it a question, in that a wait as of an exchange; then a question that comes after the end. True
// if all came back, the questions with their careful answer.
bool waitNested(Main& main, const WindowedProgram& window) {
  bool clear = true;
  window.loop.callAt(window.loop.now(), [&] {
    window.loop.callAt(window.loop.now(), [&] {
      std::puts("up");
      std::fflush(stdout);
      while (!main.ending) window.loop.sleepUntil(window.loop.now() + std::chrono::seconds(30));
    });
    clear = window.dialogs.yesNo("Clear?");
  });
  window.dialogs.message("The link was lost.", "Check the cable.");
  return main.ending && !clear && !window.dialogs.yesNo("Replace the file?");
}

}  // namespace

int runScenario(int& argc, char** argv) {
  return runWindow(argc, argv, [&](const WindowedProgram& window) {
    BareMain bare(window.loop);
    int closings = 0;
    bool clean = false;
    window.loop.callAt(window.loop.now() + fromMillis(20), [&] { clean = waitNested(bare.main, window); });
    const int status = window.show(bare.main, [&] { ++closings; });
    return status == 0 && closings == 1 && clean ? kCleanEnd : 1;
  });
}

TEST(RunWindow, ASignalClosesTheWindowWithinASecond) {
  for (const int signal : {SIGINT, SIGTERM}) {
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {kScenario});
    ASSERT_TRUE(program.waitForStarted());
    while (!program.canReadLine() && program.waitForReadyRead(20000)) {
    }
    ASSERT_EQ(program.readLine().trimmed(), "up");
    QElapsedTimer clock;
    clock.start();
    ::kill(static_cast<pid_t>(program.processId()), signal);
    ASSERT_TRUE(program.waitForFinished(20000));
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), kCleanEnd);
  }
}

}  // namespace zephon::testing_support
