#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/serial_device.h"

namespace zephon {

// One port of the table. Ids run from 1 to 256 and are the COM numbers; id N is entry N - 1.
struct PortRecord {
  SerialHandle handle = 0;  // stays after a close
  bool open = false;
  LineState dcb;  // the line settings, as read and changed by CommOpen
};

// The port layer's last failure: the system's error number, -1 for "Port in use.", or the run-time error
// number; the operation that failed; the error in words.
struct CommError {
  std::int32_t code = 0;
  std::string source;
  std::string message;
};

struct PortTable {
  std::array<PortRecord, 256> ports;
  CommError lastCommError;
};

// The link to the conditioner.
struct Link {
  PortTable table;
  std::int16_t commPort = 1;      // COM number and port id
  int lossesTold = 0;             // how often the user was told that the link is lost
  bool openFailed = false;        // the last attempt ended at the port itself, and the user has been told
  bool searching = false;         // the ports are being searched for a conditioner
  bool identified = false;        // connectSub went through: identity and rating are this device's
  bool connected = false;         // the link is up and the device is identified
  std::int16_t modelLine = 0;     // 0 Orvantis, 1 Tessara; survives a disconnect
  std::string firmwareVersion;    // "1.KD1" on the first line, "1*14" on the second
  std::string chipID;             // "01.A2.FF"
  std::string userID;             // the device's name, up to 10 characters
  std::int16_t nominalVolts = 0;  // 120 or 240: what the device is rated for
  std::int16_t ratedVolts = 0;    // the same at connection; the analysis may correct it
  bool yOrCTflag = false;         // second line: wired 120/240 with a center tap
};

}  // namespace zephon
