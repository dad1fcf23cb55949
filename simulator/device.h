#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string>

#include "simulator/chart_memory.h"
#include "simulator/device_clock.h"
#include "simulator/energy_meter.h"
#include "simulator/event.h"
#include "simulator/event_log.h"
#include "simulator/history_log.h"
#include "simulator/limits.h"
#include "simulator/log_writer.h"
#include "simulator/memory_image.h"
#include "simulator/options.h"
#include "simulator/profile.h"
#include "simulator/scope_sampler.h"
#include "simulator/site.h"
#include "simulator/zone.h"

namespace zephon::simulator {

// Option settings of a first-line device; the second line only has the first.
struct Switches {
  bool autoTransmit = false;
  bool chartMemory = false;       // its recording runs
  bool groundDetection = true;    // a neutral-to-ground fault shuts the outlets off
  bool overloadShutdown = false;  // an overload of ten seconds shuts the outlets off
  bool powerFailHold = false;     // the outlets stay off after an outage
};

// The device behind its serial port: its registers, and what the site does to them as time passes. Time is in
// seconds since the loop's start and is moved on by whoever asks, so an idle device costs nothing.
//
// It looks at the line every minute and at each moment when a disturbance starts or ends, whenever it is
// asked: what it counts and logs does not depend on who reads it how often.
class Device {
 public:
  Device(const Profile& profile, const Options& options);
  Device(const Device&) = delete;
  Device& operator=(const Device&) = delete;

  const Profile& profile() const { return profile_; }
  Site& site() { return site_; }

  // Time passes up to `seconds`. An earlier time changes nothing.
  void advanceTo(double seconds);
  // After a change from outside (a write, a held value): the device looks at the line now.
  void look();

  // What the meters see now.
  SiteValues values() const;
  void hold(const Held& held);
  void release() { hold({}); }

  LimitRegisters registers;  // first line
  MemoryImage image;         // second line
  Switches switches;
  std::string userId;
  std::uint8_t battery = 0xFA;  // of 256 for 3 V
  bool centreTapped = false;    // wiring of a 240 V second-line device: 180 degrees, not 120
  Limits limits() const;

  // Event counts of a first-line device; a second-line device tells those of its memory image.
  std::uint32_t count(Event event) const { return counts_[static_cast<std::size_t>(event)]; }
  void setCount(Event event, std::uint32_t count) { counts_[static_cast<std::size_t>(event)] = count; }
  void clearCounts();
  std::int64_t secondsSinceEvent() const;

  // The logs of a first-line device.
  EventLog events;
  HistoryLog history;
  ChartMemory chart;
  std::string historyFrame() const { return history.frame(now_, clock()); }
  void clearHistory();
  void startChart();

  // What a scope command brings now, first line.
  std::string scopeBlock(const ScopeKind& kind);

  // Outlets. The letters: '0' off, '1' on, 'C' cycling, 'V' off because the voltage lies or lay beyond a
  // shutdown point and is not back at the restore points, 'G' off for a neutral-to-ground fault, and whatever
  // fault was forced.
  void switchOutlets(bool on);
  void cycleOutlets();
  void forceFault(char letter) { forcedFault_ = letter; }  // 0 ends it
  char outletLetter() const;

  std::int64_t clock() const { return clock_.at(now_); }  // universal time as the device believes it
  void setClock(std::int64_t unixSeconds);

  double kilowattHours() const { return energy_.total(now_); }
  std::int64_t energySince() const { return energySince_; }
  void setEnergy(double kilowattHours);  // counting from now

  // The next count of a second-line converter whose input lies at `mean`: its last bit dithers, so that an
  // average over many is true.
  int sample(double mean);

 private:
  static constexpr double kNever = std::numeric_limits<double>::infinity();

  void step(double seconds);
  double nextOwnMoment() const;
  void takeDueSample();
  void watchVoltage(const SiteValues& seen);
  void watchLoad(const SiteValues& seen);
  void shutForOverload();
  void watchSurges(double from);
  void recordZone(Zone before, Zone next, const SiteValues& seen);
  void record(Event event, const SiteValues& seen);
  bool firstLine() const { return profile_.line == Line::Orvantis; }
  bool cycling() const { return now_ < cycleEnd_; }
  char letter(const SiteValues& line) const;
  SiteValues lineValues() const;  // with what is held, before the outlets
  SiteValues throughOutlets(SiteValues line) const;

  Profile profile_;
  Options options_;
  Site site_;
  Held held_;
  double now_;

  Zone zone_ = Zone::Normal;
  bool shutdown_ = false;
  bool wantOn_ = true;
  double cycleEnd_;
  char forcedFault_ = 0;
  bool overloaded_ = false;
  double overloadStart_ = 0;
  double restartAt_ = kNever;  // somebody switches the outlets on again

  std::array<std::uint32_t, kEvents> counts_{};
  double lastEvent_;

  ScopeSampler scope_;
  LogWriter writer_{events, history, chart};
  DeviceClock clock_;
  EnergyMeter energy_;
  std::int64_t energySince_ = 0;
  double dither_ = 0;
};

}  // namespace zephon::simulator
