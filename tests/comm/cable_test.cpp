#include "comm/cable.h"

#include <gtest/gtest.h>

#include "platform/memory_line.h"
#include "platform/virtual_loop.h"
#include "support/fake_dialogs.h"
#include "support/usb_bench.h"

namespace zephon {
namespace {

using testing_support::FakeDialogs;
using testing_support::UsbBench;
using testing_support::WithoutRights;

struct Plugged {
  const char* name;
  const char* latency;
  const char* product = "6001";
  const char* vendor = "0403";
};

struct Check {
  std::vector<Plugged> cables;
  bool good;
  std::string text;  // as the page shows it
};

TEST(Cable, EveryOneOfOurKindHasTheLatency) {
  const Check checks[] = {
      {{}, true, "No cable of the conditioner's kind is plugged in."},
      {{{"ttyUSB0", "2"}}, true, "ttyUSB0: latency 2 ms, as it must be"},
      {{{"ttyUSB0", "16"}}, false, "ttyUSB0: latency 16 ms, but 2 ms are needed"},
      {{{"ttyUSB0", "1"}}, false, "ttyUSB0: latency 1 ms, but 2 ms are needed"},
      {{{"ttyUSB0", "16", "6015"}, {"ttyUSB1", "16", "6001", "067b"}},
       true,
       "No cable of the conditioner's kind is plugged in."},
      {{{"ttyUSB10", "2"}, {"ttyUSB2", "3"}},
       false,
       "ttyUSB2: latency 3 ms, but 2 ms are needed\nttyUSB10: latency 2 ms, as it must be"},
      {{{"ttyUSB0", ""}}, true, "ttyUSB0: its settings can't be read"},
      {{{"ttyUSB0", "2x"}}, true, "ttyUSB0: its settings can't be read"},
  };
  for (const Check& check : checks) {
    UsbBench usb;
    for (const Plugged& one : check.cables) usb.plug(one.name, one.latency, one.product, one.vendor);
    VirtualLoop loop;
    const LoopClock clock(loop, 0, 0);
    MemoryLine line(loop);
    FakeDialogs dialogs;
    Main main({loop, line, clock, dialogs, {}});
    main.around.folders.usbSerial = usb.folder();
    EXPECT_EQ(checkCOMsettings(main), check.good) << check.text;
    EXPECT_EQ(main.exchange.shortfall.empty(), check.good) << check.text;
    EXPECT_EQ(cablesText(usbCables(usb.folder()), {}), check.text);
  }
}

TEST(Cable, AllOfOurKindAreWrittenAndNoOther) {
  UsbBench usb;
  usb.plug("ttyUSB0", "16");
  usb.plug("ttyUSB1", "255");
  usb.plug("ttyUSB2", "16", "6015");
  EXPECT_EQ(configureCables(usb.folder(), {}), "");
  EXPECT_EQ(usb.latency("ttyUSB0"), "2\n");
  EXPECT_EQ(usb.latency("ttyUSB1"), "2\n");
  EXPECT_EQ(usb.latency("ttyUSB2"), "16\n");
  EXPECT_EQ(configureCables("/nonexistent", {}), "");
}

TEST(Cable, AValueThatDoesNotStickIsTold) {
  UsbBench usb;
  usb.plugForgetful("ttyUSB0");
  usb.plug("ttyUSB1", "16");
  EXPECT_EQ(configureCables(usb.folder(), {}),
            "ttyUSB0: the driver did not keep the value. Unplug the cable and plug it in again.");
  EXPECT_EQ(usb.latency("ttyUSB1"), "2\n");  // the others are set all the same
}

TEST(Cable, WithoutTheRightTheCommandForItIsTold) {
  UsbBench usb;
  usb.plug("ttyUSB0", "16");
  usb.openToAll();
  std::string advice;
  {
    const WithoutRights user;
    advice = configureCables(usb.folder(), {});
  }
  EXPECT_NE(advice.find("echo 2 | sudo tee " + usb.folder() + "/ttyUSB0/latency_timer"), std::string::npos)
      << advice;
  EXPECT_EQ(usb.latency("ttyUSB0"), "16\n");
}

}  // namespace
}  // namespace zephon
