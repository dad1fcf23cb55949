#pragma once

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "comm/mod_comm.h"
#include "platform/memory_line.h"
#include "platform/virtual_loop.h"
#include "platform/wall_clock.h"
#include "protocol/exchange.h"
#include "simulator/conditioner.h"
#include "support/fake_dialogs.h"
#include "support/scripted_peer.h"

// The world of a driver's test: virtual time, an in-memory line, dialogs answered beforehand and the form's
// state on top of them. World has the simulated device at the far end of COM1, Script a ScriptedPeer. Derive
// a fixture from either, or make one on the stack:
//
//   World world;                                     // a first-line device, 120 V, newest firmware
//   world.device.hold({.volts = 118.5});
//   world.stay(Page::Measurement);
//   EXPECT_TRUE(getVLNrms(world.main));
//
// Nothing is wired but the watchdog: a test calls the wiring of what it is about.
namespace zephon::testing_support {

// The entries of the English language file; "text 0", "text 1", ... without the file.
inline std::vector<std::string> englishDictionary() {
  std::vector<std::string> entries;
  std::ifstream file(ZEPHON_RESOURCES "/EN.dictionary");
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    entries.push_back(line);
  }
  for (std::size_t key = entries.size(); key <= 270; ++key) entries.push_back("text " + std::to_string(key));
  return entries;
}

class Bench {
 public:
  static constexpr std::int64_t kUnixStart = 1709649000;  // 2024-03-05 14:30:00 universal time
  static constexpr int kMinutesEast = -300;               // five hours west: 09:30:00 local time

  Bench() {
    wireWatchdog(main);
    main.dict = englishDictionary();
    for (std::size_t i = 0; i < kFindingSlots; ++i) main.findings.findingTexts[i] = main.dict[215 + i];
  }
  virtual ~Bench() = default;

  // Opens COM1 at the speed of the model line, as a connection does. The port's status: 0 is success.
  std::int32_t openPort() {
    const std::string baud = main.link.modelLine == 1 ? "9600" : "115200";
    const std::int32_t status =
        CommOpen(portOf(main), main.link.commPort, "COM" + std::to_string(main.link.commPort),
                 "baud=" + baud + " parity=N data=8 stop=1");
    CommSetLine(portOf(main), main.link.commPort, kLineRts, true);
    CommSetLine(portOf(main), main.link.commPort, kLineDtr, true);
    main.link.connected = status == 0;
    return status;
  }

  // The user is on this page from now on: its flag is set and a new visit begins. Page::None leaves them all.
  void stay(Page page) {
    Pages& p = main.pages;
    p.scopeOn = page == Page::Scope;
    p.chartOn = page == Page::Chart;
    p.setupOn = page == Page::Setup;
    p.measuring = page == Page::Measurement;
    p.outletsOn = page == Page::Outlets;
    p.dataOn = p.dataPageActive = page == Page::Data;
    p.comOn = page == Page::Com;
    p.wanted = {page, ++p.visits};
  }

  double nowMs() const { return Millis(loop.now()).count(); }
  void run(double milliseconds) { loop.advance(fromMillis(milliseconds)); }
  // Something that happens so much later, in the middle of whatever then runs.
  void later(double milliseconds, std::function<void()> what) {
    loop.callAt(loop.now() + fromMillis(milliseconds), std::move(what));
  }

  // What was written to the port since the start or line.forgetWritten(), one entry a write.
  std::vector<std::string> writes() const {
    std::vector<std::string> all;
    for (const MemoryLine::Written& one : line.written()) all.push_back(one.bytes);
    return all;
  }

  VirtualLoop loop;
  LoopClock clock{loop, kUnixStart, kMinutesEast};
  MemoryLine line{loop};
  FakeDialogs dialogs;
  Main main{Surroundings{loop, line, clock, dialogs, Folders{ZEPHON_RESOURCES, "", "", ""}}};
};

// With the simulated device. The port is open and the link stands as after a connection, without a byte
// having been sent. The site is quiet: nothing is counted unless the test asks for it.
class World : public Bench {
 public:
  explicit World(const simulator::Profile& profile = {}, simulator::Options options = quiet())
      : device(loop, profile, options) {
    line.attach(&device, main.link.commPort);
    Link& link = main.link;
    link.modelLine = profile.line == simulator::Line::Tessara ? 1 : 0;
    link.firmwareVersion = profile.version();
    link.nominalVolts = static_cast<std::int16_t>(profile.rating);
    link.ratedVolts = link.nominalVolts;
    link.yOrCTflag = link.modelLine == 1 && profile.rating == 240 && device.device().centreTapped;
    openPort();
  }
  ~World() override { line.detach(main.link.commPort); }

  static simulator::Options quiet() {
    simulator::Options options;
    options.disturbances = false;
    return options;
  }

  // The commands that the device has heard since the start or device.clearLog(), data bytes behind them, and
  // how often it has heard one.
  std::vector<std::string> commands() const {
    std::vector<std::string> all;
    for (const simulator::Heard& one : device.heard()) all.push_back(one.command + one.data);
    return all;
  }
  std::ptrdiff_t asked(const std::string& command) const {
    const auto all = commands();
    return std::count(all.begin(), all.end(), command);
  }

  simulator::Conditioner device;
};

// With a ScriptedPeer, the port open at the speed of the model line.
class Script : public Bench {
 public:
  explicit Script(std::int16_t modelLine = 0) {
    main.link.modelLine = modelLine;
    main.link.nominalVolts = main.link.ratedVolts = 120;
    line.attach(&peer, main.link.commPort);
    openPort();
  }
  ~Script() override { line.detach(main.link.commPort); }

  ScriptedPeer peer{loop};
};

}  // namespace zephon::testing_support
