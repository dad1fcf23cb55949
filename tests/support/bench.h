#pragma once

#include <algorithm>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "comm/mod_comm.h"
#include "platform/memory_line.h"
#include "platform/virtual_loop.h"
#include "platform/wall_clock.h"
#include "protocol/exchange.h"
#include "simulator/conditioner.h"
#include "support/fake_dialogs.h"

// The world of a driver's test: virtual time, an in-memory line, dialogs answered beforehand and the form's
// state on top of them. World has the simulated device at the far end of COM1, of the first line and 120 V
// unless it is told otherwise; Script has a ScriptedPeer there. Only the watchdog is wired: a test calls the
// wiring of what it is about.
namespace zephon::testing_support {

inline std::vector<std::string> englishDictionary() {
  std::vector<std::string> entries;
  std::ifstream file(ZEPHON_RESOURCES "/EN.dictionary");
  for (std::string line; std::getline(file, line);) entries.push_back(line);
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

  // Opens COM1 at the speed of the model line, as a connection does.
  void openPort() {
    const std::string baud = main.link.modelLine == 1 ? "9600" : "115200";
    const Port port = portOf(main);
    main.link.connected = CommOpen(port, 1, "COM1", "baud=" + baud + " parity=N data=8 stop=1") == 0;
    for (const auto pin : {kLineRts, kLineDtr}) CommSetLine(port, 1, pin, true);
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

// With the simulated device at a quiet site, where nothing is counted unless the test asks for it. The link
// stands as after a connection, without a byte having been sent.
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

  // The commands heard since the start or device.clearLog(), data bytes behind them, and how often one was.
  std::vector<std::string> commands() const {
    std::vector<std::string> all;
    for (const simulator::Heard& one : device.heard()) all.push_back(one.command + one.data);
    return all;
  }
  std::ptrdiff_t asked(const std::string& command) const { return std::ranges::count(commands(), command); }

  simulator::Conditioner device;
};

// A far end for exact byte cases: whenever a write is exactly a known command it says the reply that was
// ordered for it, a while later. Everything else is heard in silence. Like a device, it loses what it has not
// said yet when the line is purged.
class ScriptedPeer : public LinePeer {
 public:
  explicit ScriptedPeer(EventLoop& loop) : loop_(loop) {}

  // Replies to one command queue up; the last one is given again and again. An empty reply is silence.
  void answer(const std::string& command, std::string reply, double afterMs = 1) {
    replies_[command].all.push_back({std::move(reply), afterMs});
  }
  // Forgets the replies to a command: silence from now on.
  void silence(const std::string& command) { replies_.erase(command); }

  // The writes heard, one entry each, in order.
  const std::vector<std::string>& heard() const { return heard_; }

  void hear(std::string_view bytes, int baud) override {
    heard_.emplace_back(bytes);
    const auto found = replies_.find(heard_.back());
    if (found == replies_.end()) return;
    auto& [all, next] = found->second;
    const std::size_t given = std::min(next, all.size() - 1);
    next = given + 1;
    const Reply reply = all[given];
    pending_.push_back(loop_.callAt(loop_.now() + fromMillis(reply.afterMs),
                                    [this, reply, baud] { say(reply.bytes, baud); }));
  }
  void linePurged() override {
    for (const EventLoop::CallId call : pending_) loop_.cancel(call);
    pending_.clear();
  }

 private:
  struct Reply {
    std::string bytes;
    double afterMs = 0;
  };
  struct Replies {
    std::vector<Reply> all;
    std::size_t next = 0;
  };

  EventLoop& loop_;
  std::map<std::string, Replies> replies_;
  std::vector<std::string> heard_;
  std::vector<EventLoop::CallId> pending_;
};

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
