#pragma once

#include <functional>
#include <string>

#include "form/main.h"
#include "platform/posix_serial.h"
#include "platform/wall_clock.h"
#include "shell/console_dialogs.h"
#include "support/simulated_port.h"

namespace zephon::benchmarks {

// The started tool with the serial ports of a folder, on whatever loop it is given. Nothing of the user's is
// read or written.
class Tool {
 public:
  Tool(EventLoop& loop, Dialogs& dialogs, const std::string& ports);

 private:
  Folder settings_;
  PosixSerial serial_;
  SystemClock clock_;

 public:
  Main main;
};

// Shows no message.
class NoDialogs : public ConsoleDialogs {
 public:
  void message(const std::string& /*text*/, const std::string& /*advice*/) override {}
};

using Work = std::function<void(Main& main)>;

// Runs `work` on the tool without a window, over poll(2).
void runOnPoll(const std::string& ports, const Work& work);

// The same in the tool's window, drawn in memory. False, and nothing done, in a build without the window.
bool runInWindow(const std::string& ports, const Work& work);

// Opens the measurement page and stops its polling, so that passes can be run one by one. Ends the program
// when the device can't be reached.
void openMeasurementPage(Main& main);

}  // namespace zephon::benchmarks
