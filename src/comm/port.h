#pragma once

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

}  // namespace zephon
