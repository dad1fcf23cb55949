// The simulator as a program, at the far end of a real pseudo-terminal.

#include <gtest/gtest.h>

#include <algorithm>

#include "support/running_simulator.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

using Running = testing_support::RunningSimulator;
using testing_support::comesTrue;
using testing_support::kSimulator;

TEST(Program, ServesAPortThatIsOpenedManyTimesAtItsOwnSpeed) {
  Running simulator({"--firmware", "1.JD1"});
  ASSERT_TRUE(comesTrue([&] { return simulator.linked(); }));
  for (int i = 0; i < 5; ++i) EXPECT_EQ(simulator.ask("gN", 4, 115200), "1JD1");
  EXPECT_EQ(simulator.ask("gN", 4, 9600, milliseconds(100)), "");
}

TEST(Program, SignalsEndItAndRemoveItsLink) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    Running simulator({"--port", "12"});
    ASSERT_TRUE(comesTrue([&] { return simulator.linked("COM12"); }));
    EXPECT_EQ(simulator.stop(signal), 0);
    EXPECT_TRUE(fs::is_empty(simulator.ports()));
  }
}

TEST(Program, ABadCommandLineIsOneLineAndStatusTwo) {
  const std::string bad[] = {"--loud",       "--port",           "--port 0",         "--port 257",
                             "--seed -1",    "--fault loud",     "--firmware 12",    "--site-volts 0",
                             "--past 201",   "--site moon",      "--chart-memory 3", "--waveform moon",
                             "--hold volts", "--outlet-fault 1", "--ports ''",       ""};
  TempFolder folder;
  for (const std::string& words : bad) {
    const std::string command = "unset ZEPHON_PORTS; " + kSimulator + " " + words + " >" + (folder / "out") +
                                " 2>" + (folder / "error");
    const int status = std::system(command.c_str());
    EXPECT_EQ(WEXITSTATUS(status), 2) << words;
    const std::string error = folder.get("error");
    EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 1) << words;
    EXPECT_EQ(folder.get("out"), "") << words;
  }
}

TEST(Program, LeavesAFileThatIsNoLinkAlone) {
  TempFolder folder;
  folder.put("COM1", "mine");
  const std::string command = kSimulator + " --ports " + (folder / "") + " 2>/dev/null";
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
  EXPECT_EQ(folder.get("COM1"), "mine");
}

}  // namespace
}  // namespace zephon
