#pragma once

#include <string>

#include "form/link.h"
#include "platform/event_loop.h"
#include "platform/serial_device.h"

namespace zephon {

// What a call of the port layer touches: the table, the devices behind it, and the loop that turns meanwhile.
struct Port {
  PortTable& table;
  SerialDevice& serial;
  EventLoop& loop;
};

// What the link's port is called: "COM3".
inline std::string portName(const Link& link) {
  return "COM" + std::to_string(link.commPort);
}

}  // namespace zephon
