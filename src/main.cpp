// The program: with a command line an unattended tool, without one the window.

#include <cstdio>
#include <string>

#include "platform/paths.h"
#include "platform/poll_loop.h"
#include "platform/posix_serial.h"
#include "platform/usb_cables.h"
#include "platform/wall_clock.h"
#include "shell/console_dialogs.h"
#include "shell/start.h"
#include "shell/unattended.h"
#ifdef ZEPHON_WITH_WINDOW
#include "window/run_window.h"
#endif

namespace {

using namespace zephon;

std::string commandLineOf(int argc, char** argv) {
  std::string line;
  for (int i = 1; i < argc; ++i) line += (i > 1 ? " " : "") + std::string(argv[i]);
  return line;
}

Folders systemFolders() {
  Folders folders;
  const std::string program = programFolder();
  folders.program = resourceFolder(program);
  const bool installed = folders.program != program;
  folders.config = !installed && canWrite(program) ? program : configFolder();
  folders.state = stateFolder();
  folders.desktop = desktopFolder();
  folders.usbSerial = kUsbSerialFolder;
  return folders;
}

int runUnattendedProgram(const std::string& commandLine) {
  PollLoop loop;
  PosixSerial serial;
  SystemClock clock;
  ConsoleDialogs dialogs;
  Main main({loop, serial, clock, dialogs, systemFolders()});
  const Started started = formLoad(main, commandLine);
  if (started == Started::Ended) return 0;
  if (started == Started::NoDictionary) return 1;
  const int status = runUnattended(main, commandLine);
  formUnload(main);
  return status;
}

#ifdef ZEPHON_WITH_WINDOW
int runWindowProgram(int argc, char** argv) {
  PosixSerial serial;
  SystemClock clock;
  return runWindow(argc, argv, [&](const WindowedProgram& window) {
    Main main({window.loop, serial, clock, window.dialogs, systemFolders()});
    if (formLoad(main, "") != Started::Form) return 1;
    const int status = window.show(main, [&] { formUnload(main); });
    formUnload(main);
    return status;
  });
}
#endif

}  // namespace

int main(int argc, char** argv) {
  const std::string commandLine = commandLineOf(argc, argv);
  if (!commandLine.empty()) return runUnattendedProgram(commandLine);
#ifdef ZEPHON_WITH_WINDOW
  return runWindowProgram(argc, argv);
#else
  std::fputs("zephon: built without a window\n", stderr);
  return 2;
#endif
}
