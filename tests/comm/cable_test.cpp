#include "comm/cable.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/memory_line.h"
#include "platform/virtual_loop.h"
#include "support/fake_dialogs.h"
#include "support/usb_bench.h"

namespace zephon {
namespace {

using testing_support::UsbBench;

bool passesCheck(const UsbBench& usb) {
  VirtualLoop loop;
  const LoopClock clock(loop, 0, 0);
  MemoryLine line(loop);
  testing_support::FakeDialogs dialogs;
  Main main({loop, line, clock, dialogs, {}});
  main.around.folders.usbSerial = usb.folder();
  const bool passed = checkCOMsettings(main);
  EXPECT_EQ(main.exchange.shortfall.empty(), passed);
  return passed;
}

struct Plugged {
  const char* name;
  const char* latency;
  const char* product = "6001";
  const char* vendor = "0403";
};

TEST(Cable, EveryOneOfOurKindHasTheLatency) {
  const std::string none = "No cable of the conditioner's kind is plugged in.";
  const std::tuple<std::vector<Plugged>, bool, std::string> cases[] = {
      {{}, true, none},
      {{{"ttyUSB0", "1"}}, false, "ttyUSB0: latency 1 ms, but 2 ms are needed"},
      {{{"ttyUSB0", "16", "6015"}, {"ttyUSB1", "16", "6001", "067b"}}, true, none},
      {{{"ttyUSB10", "2"}, {"ttyUSB2", "16"}},
       false,
       "ttyUSB2: latency 16 ms, but 2 ms are needed\nttyUSB10: latency 2 ms, as it must be"},
      {{{"ttyUSB0", "2x"}}, true, "ttyUSB0: its settings can't be read"}};
  for (const auto& [cables, good, text] : cases) {
    UsbBench usb;
    for (const Plugged& one : cables) usb.plug(one.name, one.latency, one.product, one.vendor);
    EXPECT_EQ(passesCheck(usb), good) << text;
    EXPECT_EQ(cablesText(usbCables(usb.folder()), {}), text);
  }
}

TEST(Cable, AllOfOurKindAreWrittenAndNoOther) {
  UsbBench usb;
  usb.plugForgetful("ttyUSB0");
  usb.plug("ttyUSB1", "255");
  usb.plug("ttyUSB2", "16", "6015");
  EXPECT_EQ(configureCables(usb.folder(), {}),
            "ttyUSB0: the driver did not keep the value. Unplug the cable and plug it in again.");
  EXPECT_EQ(usb.latency("ttyUSB1") + usb.latency("ttyUSB2"), "2\n16\n");
}

// As an ordinary user, also where the tests are run by root.
TEST(Cable, WithoutTheRightTheCommandForItIsTold) {
  UsbBench usb;
  usb.plug("ttyUSB0", "16");
  usb.openToAll();
  std::filesystem::permissions(usb.latencyFile("ttyUSB0"), std::filesystem::perms(0444));
  const uid_t before = ::geteuid();
  ASSERT_EQ(::seteuid(before == 0 ? 65534 : before), 0);
  const std::string advice = configureCables(usb.folder(), {});
  ASSERT_EQ(::seteuid(before), 0);
  EXPECT_NE(advice.find("echo 2 | sudo tee " + usb.latencyFile("ttyUSB0")), std::string::npos) << advice;
  EXPECT_EQ(usb.latency("ttyUSB0"), "16\n");
}

}  // namespace
}  // namespace zephon
