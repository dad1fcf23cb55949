#pragma once

#include <functional>

#include "platform/event_loop.h"
#include "screen/dialogs.h"

namespace zephon {

struct Main;

// What the program finds in a window: the loop and the boxes that its Main is built on, and the window
// itself, shown once the Main stands. `show` runs the program until the window has closed and every call that
// waited in it has come back, and gives the program's exit code. `closing` runs when the window closes, after
// Main::ending is set.
struct WindowedProgram {
  EventLoop& loop;
  Dialogs& dialogs;
  std::function<int(Main& main, const std::function<void()>& closing)> show;
};

// Makes the application and runs `program` in it; SIGTERM and SIGINT close the window. The result is that of
// `program`. `argc` and `argv` must live as long as the call.
int runWindow(int& argc, char** argv, const std::function<int(const WindowedProgram&)>& program);

}  // namespace zephon
