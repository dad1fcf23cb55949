#include <gtest/gtest.h>

#include <cerrno>

#include "shell/connection.h"
#include "shell/tool.h"
#include "support/usb_bench.h"

// The port's page: the search for a conditioner and the settings of the cable.

namespace zephon {
namespace {

using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;
using testing_support::UsbBench;
using testing_support::WithoutRights;

// A device of another kind: says `text` every so often, asked or not, at the speed of the first line or of
// the second.
class Babbler : public LinePeer {
 public:
  Babbler(EventLoop& loop, std::string text, double everyMs, int baud)
      : text_(std::move(text)), timer_(loop), baud_(baud) {
    timer_.setInterval(everyMs);
    timer_.onTick = [this] { say(text_, baud_); };
    timer_.setEnabled(true);
  }
  void hear(std::string_view bytes, int baud) override {
    heard_ += bytes;
    if (echoes) say(bytes, baud);
  }
  bool echoes = false;
  const std::string& heard() const { return heard_; }

 private:
  std::string text_;
  std::string heard_;
  Timer timer_;
  int baud_;
};

class ComPage : public ::testing::Test {
 protected:
  ComPage() {
    tool.line.detach(1);
    tool.press(tool.main.frame.comBtn);
  }
  const std::string& caption() const { return page.detectComBtn.caption(); }
  const std::string& text(std::size_t key) const { return tool.main.dict[key]; }
  void expectAtRest() {
    EXPECT_TRUE(tool.idle());
    for (int number = 1; number <= 256; ++number) EXPECT_FALSE(tool.line.isOpen(number)) << number;
    EXPECT_FALSE(page.detectComBtn.value());
    EXPECT_TRUE(page.detectComBtn.enabled());
    EXPECT_TRUE(page.configComBtn.enabled());
    EXPECT_FALSE(page.searchProgSlide.visible());
    EXPECT_EQ(tool.line.strayCalls(), 0);
  }

  Tool tool;
  ComElements& page = tool.main.com;
};

TEST_F(ComPage, FindsEitherLineOnAnyNumber) {
  const struct {
    Line line;
    int number;
    const char* who;
  } cases[] = {{Line::Orvantis, 1, "COM1: Orvantis PCS, firmware 1.KD1, chip 4C.5A.17, ID ZEPHON SIM"},
               {Line::Tessara, 12, "COM12: Tessara PCS, firmware 2.00, chip 2B.81.E6, ID "},
               {Line::Orvantis, 256, "COM256: Orvantis PCS, firmware 1.KD1"}};
  for (const auto& each : cases) {
    simulator::Conditioner device(tool.loop, makeProfile(each.line), testing_support::World::quiet());
    tool.line.attach(&device, each.number);
    tool.press(page.detectComBtn);
    EXPECT_EQ(caption(), text(43));
    EXPECT_EQ(page.comNumEdit.value(), each.number);
    EXPECT_TRUE(page.portFoundLbl.caption().starts_with(each.who)) << page.portFoundLbl.caption();
    EXPECT_EQ(tool.main.link.modelLine, each.line == Line::Tessara ? 1 : 0);
    EXPECT_EQ(tool.main.frame.COMlbl.caption(), "1");  // saving it is another step
    expectAtRest();
    tool.line.detach(each.number);
  }
  EXPECT_TRUE(tool.dialogs.shown().empty());
}

TEST_F(ComPage, NumbersThatLeadNowhereCostNoTime) {
  const double start = tool.nowMs();
  tool.press(page.detectComBtn);
  EXPECT_EQ(caption(), text(42));
  EXPECT_LT(tool.nowMs() - start, 1);
  EXPECT_EQ(tool.main.link.commPort, 256);
  EXPECT_EQ(page.portFoundLbl.caption(), "No COM number leads to a port: plug in the cable.");
  expectAtRest();
  tool.press(tool.main.frame.comBtn);
  tool.press(tool.main.frame.comBtn);
  EXPECT_EQ(caption(), text(39));
  EXPECT_EQ(page.portFoundLbl.caption(), "");
}

TEST_F(ComPage, ForeignDevicesAndPortsInUseArePassedOver) {
  Babbler ones(tool.loop, "1111", 3, 115200);
  Babbler position(tool.loop, "$GPGGA,0930,4807.038,N\r\n", 20, 9600);
  Babbler modem(tool.loop, "", 1000, 115200);
  modem.echoes = true;
  tool.line.attach(&ones, 2);
  tool.line.attach(&position, 3);
  tool.line.attach(&modem, 4);
  tool.line.attach(&modem, 5);
  tool.line.attach(&tool.device, 7);
  tool.press(page.detectComBtn);
  EXPECT_EQ(page.comNumEdit.value(), 7) << page.portFoundLbl.caption();
  EXPECT_EQ(modem.heard(), "gNrgNr");
  expectAtRest();
  tool.line.detach(7);
  tool.line.failNext(MemoryLine::Call::Open, ENOENT);
  tool.line.failNext(MemoryLine::Call::Open, EBUSY);
  tool.line.failNext(MemoryLine::Call::SetState, EIO, 2);
  tool.press(page.detectComBtn);
  EXPECT_EQ(caption(), text(42));
  EXPECT_EQ(page.portFoundLbl.caption(),
            "COM2: Device or resource busy\nCOM3: Input/output error\nCOM4: no conditioner answers\nCOM5: no "
            "conditioner answers");
  expectAtRest();
}

// A second press, another page, or the window's end, at whatever moment.
TEST_F(ComPage, StopsAtOnceWheneverItIsStopped) {
  Babbler silent(tool.loop, "", 1000, 115200);
  for (const int number : {1, 9}) tool.line.attach(&silent, number);
  tool.line.attach(&tool.device, 200);
  FrameElements& f = tool.main.frame;
  for (Button* stopper : {&page.detectComBtn, &f.comBtn, &f.dataBtn}) {
    for (double moment = 0.05; moment < 900; moment *= 1.3) {
      double returned = 0;
      if (!f.comBtn.value()) f.comBtn.setValue(true);
      page.comNumEdit.setValue(77);
      tool.later(moment, [&] { stopper->click(); });
      tool.later(moment + 0.001, [&] { returned = page.detectComBtn.value() ? 1 : 2; });
      page.detectComBtn.click();
      const bool foundBefore = page.comNumEdit.value() == 200;
      tool.run(2000);
      ASSERT_TRUE(foundBefore || returned == 2) << stopper->name() << " " << moment;
      ASSERT_TRUE(foundBefore || caption() == text(39)) << stopper->name() << " " << moment << caption();
      f.dataBtn.setValue(false);
      page.detectComBtn.setValue(false);
      tool.run(100);
      expectAtRest();
    }
  }
}

TEST_F(ComPage, AConnectionMadeWhileTheSearchUnwindsStands) {
  Babbler silent(tool.loop, "", 1000, 115200);
  for (int number = 1; number < 60; ++number) tool.line.attach(&silent, number);
  tool.line.attach(&tool.device, 1);
  tool.device.addFault({.kind = simulator::FaultKind::Silent, .only = "gN", .commands = 1});
  tool.later(500, [&] { tool.press(tool.main.frame.measBtn); });
  tool.press(page.detectComBtn);
  tool.run(3000);
  EXPECT_TRUE(tool.main.pages.measuring);
  EXPECT_TRUE(tool.main.link.identified);
  EXPECT_TRUE(tool.dialogs.shown().empty());
}

TEST_F(ComPage, TheCablesAreShownSetAndTold) {
  EXPECT_EQ(page.cableLbl.caption(), "No cable of the conditioner's kind is plugged in.");
  UsbBench usb;
  usb.plug("ttyUSB0", "16");
  usb.openToAll();
  tool.main.around.folders.usbSerial = usb.folder();
  tool.line.attach(&tool.device, 1);
  EXPECT_TRUE(connectSub(tool.main));
  EXPECT_EQ(tool.dialogs.texts(), std::vector{text(68)});
  EXPECT_TRUE(tool.dialogs.shown()[0].detail.starts_with("ttyUSB0: latency 16 ms, but 2 ms are needed"));
  disconnectSub(tool.main);
  tool.dialogs.forget();
  {
    const WithoutRights user;
    tool.press(page.configComBtn);
  }
  EXPECT_EQ(tool.dialogs.texts(), std::vector{text(44)});
  EXPECT_EQ(page.configComBtn.caption(), text(40));
  EXPECT_EQ(page.cableLbl.caption(), "ttyUSB0: latency 16 ms, but 2 ms are needed");
  UsbBench mine;
  mine.plug("ttyUSB0", "16");
  tool.main.around.folders.usbSerial = mine.folder();
  tool.press(page.configComBtn);
  EXPECT_EQ(page.configComBtn.caption(), text(31));
  EXPECT_EQ(page.cableLbl.caption(), "ttyUSB0: latency 2 ms, as it must be");
  tool.dialogs.forget();
  EXPECT_TRUE(connectSub(tool.main));
  EXPECT_TRUE(tool.dialogs.shown().empty());
}

}  // namespace
}  // namespace zephon
