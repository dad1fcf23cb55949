#pragma once

#include <functional>
#include <string>

#include "platform/event_loop.h"
#include "platform/serial_device.h"
#include "platform/wall_clock.h"
#include "screen/dialogs.h"

namespace zephon {

// The folders that the tool reads and writes, each without a separator at its end.
struct Folders {
  std::string program;         // dictionaries, fonts, pictures
  std::string config;          // config.txt: the program's folder or, where that can't be written, the user's
  std::string state;           // journals of unsaved recordings
  std::string desktop;         // where file dialogs start; empty for none
  std::string usbSerial = {};  // where the system lists its USB-to-serial cables; empty: none are known
};

// What the tool asks of the world around it.
struct Surroundings {
  EventLoop& loop;
  SerialDevice& serial;
  const WallClock& clock;
  Dialogs& dialogs;
  Folders folders;
  // How the desktop names a key such as "Ctrl+1" in the language in use; empty: the keys' own names stand.
  std::function<std::string(const std::string& key)> keyName = {};
};

}  // namespace zephon
