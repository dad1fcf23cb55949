#include <gtest/gtest.h>

#include <cerrno>

#include "shell/connection.h"
#include "shell/tool.h"
#include "support/usb_bench.h"

// The port's page: the search for a conditioner and the settings of the cable.

namespace zephon {
namespace {

using simulator::Line;
using testing_support::Tool;
using testing_support::UsbBench;

// A device of another kind: says `text` every so often, and what it hears at once if it is one that echoes.
struct Babbler : LinePeer {
  Babbler(EventLoop& loop, std::string text, int baud) : timer(loop) {
    timer.setInterval(5);
    timer.onTick = [this, text = std::move(text), baud] { say(text, baud); };
    timer.setEnabled(true);
  }
  void hear(std::string_view bytes, int baud) override {
    heard += bytes;
    say(bytes, baud);
  }
  Timer timer;
  std::string heard;
};

class ComPage : public ::testing::Test {
 protected:
  ComPage() {
    tool.line.detach(1);
    tool.press(tool.main.frame.comBtn);
  }
  const std::string& caption() const { return page.detectComBtn.caption(); }
  const std::string& found() const { return page.portFoundLbl.caption(); }
  const std::string& text(std::size_t key) const { return tool.main.dict[key]; }
  void expectAtRest() {
    EXPECT_TRUE(tool.idle() && tool.line.opens() == tool.line.closes());
    EXPECT_TRUE(!page.detectComBtn.value() && page.configComBtn.enabled() && !page.searchProgSlide.visible());
    EXPECT_EQ(tool.line.strayCalls(), 0);
  }

  Tool tool;
  ComElements& page = tool.main.com;
};

TEST_F(ComPage, FindsEitherLineOnAnyNumberAndNamesIt) {
  const std::tuple<Line, int, const char*> cases[] = {
      {Line::Orvantis, 1, "COM1: Orvantis PCS, firmware 1.KD1, chip 4C.5A.17, ID ZEPHON SIM"},
      {Line::Tessara, 12, "COM12: Tessara PCS, firmware 2.00, chip 2B.81.E6, ID "},
      {Line::Orvantis, 256, "COM256: Orvantis PCS, firmware 1.KD1"}};
  for (const auto& [line, number, who] : cases) {
    simulator::Conditioner device(tool.loop, simulator::makeProfile(line));
    tool.line.attach(&device, number);
    tool.press(page.detectComBtn);
    EXPECT_EQ(caption(), text(43));
    EXPECT_EQ(page.comNumEdit.value(), number);
    EXPECT_TRUE(found().starts_with(who)) << found();
    expectAtRest();
    tool.line.detach(number);
  }
}

TEST_F(ComPage, ForeignDevicesAndPortsInUseArePassedOver) {
  Babbler ones(tool.loop, "1111", 115200);
  Babbler position(tool.loop, "$GPGGA,0930,4807.038,N\r\n", 9600);
  Babbler modem(tool.loop, "", 9600);
  tool.line.attach(&ones, 2);
  tool.line.attach(&position, 3);
  tool.line.attach(&modem, 4);
  tool.line.attach(&tool.device, 7);
  tool.press(page.detectComBtn);
  EXPECT_EQ(page.comNumEdit.value(), 7) << found();
  EXPECT_EQ(modem.heard, "gNr");
  expectAtRest();
  tool.line.detach(7);
  for (const int error : {ENOENT, EBUSY}) tool.line.failNext(MemoryLine::Call::Open, error);
  tool.line.failNext(MemoryLine::Call::SetState, EIO, 2);
  tool.press(page.detectComBtn);
  EXPECT_EQ(found(), "COM2: Device or resource busy\nCOM3: Input/output error\nCOM4: no conditioner answers");
  expectAtRest();
}

// A second press or another page, at whatever moment.
TEST_F(ComPage, StopsAtOnceWheneverItIsStopped) {
  Babbler silent(tool.loop, "", 115200);
  for (const int number : {1, 9}) tool.line.attach(&silent, number);
  tool.line.attach(&tool.device, 200);
  FrameElements& f = tool.main.frame;
  for (Button* stopper : {&page.detectComBtn, &f.comBtn, &f.dataBtn}) {
    for (double moment = 0.05; moment < 900; moment *= 1.3) {
      f.comBtn.setValue(true);
      page.comNumEdit.setValue(77);
      bool stopped = false;
      tool.later(moment, [&] { stopper->click(); });
      tool.later(moment + 0.001, [&] { stopped = !tool.main.link.searching && caption() == text(39); });
      page.detectComBtn.click();
      const bool wasOver = page.comNumEdit.value() == 200;
      tool.run(2000);
      ASSERT_TRUE(wasOver || stopped) << stopper->name() << " " << moment;
      f.dataBtn.setValue(false);
      page.detectComBtn.setValue(false);
      tool.run(100);
      expectAtRest();
    }
  }
}

TEST_F(ComPage, ASlowCableIsToldAndSet) {
  UsbBench usb;
  usb.plug("ttyUSB0", "16");
  usb.plugForgetful("ttyUSB1");
  tool.main.around.folders.usbSerial = usb.folder();
  tool.line.attach(&tool.device, 1);
  EXPECT_TRUE(connectSub(tool.main));
  disconnectSub(tool.main);
  tool.press(page.configComBtn);
  EXPECT_EQ(tool.dialogs.texts(), (std::vector{text(68), text(44)}));
  EXPECT_TRUE(tool.dialogs.shown()[0].detail.starts_with("ttyUSB0: latency 16 ms"));
  usb.unplug("ttyUSB1");
  tool.press(page.configComBtn);
  EXPECT_EQ(page.configComBtn.caption(), text(31));
  EXPECT_TRUE(connectSub(tool.main));
  EXPECT_EQ(tool.dialogs.shown().size(), 2U);
}

}  // namespace
}  // namespace zephon
