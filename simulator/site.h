#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "simulator/story.h"

namespace zephon::simulator {

// What the meters see at one moment, in engineering units.
struct SiteValues {
  double volts = 0;               // line to neutral, RMS
  double amps = 0;                // RMS
  double watts = 0;               // average
  double neutralGroundVolts = 0;  // RMS
  double hertz = 0;
  double powerFactor = 1;      // watts over volt-amperes
  char reactive = ' ';         // 'C' capacitive, 'L' inductive, ' ' neither
  double crestFactor = 1.414;  // peak over RMS volts

  double peakVolts() const { return volts * crestFactor; }
};

// Values that a test or a demo pins; the others go on moving, but held volts hold off all disturbances. Watts
// that are not held themselves follow from volts, amps and power factor.
struct Held {
  std::optional<double> volts = {};
  std::optional<double> amps = {};
  std::optional<double> watts = {};
  std::optional<double> neutralGroundVolts = {};
  std::optional<double> hertz = {};
  std::optional<double> powerFactor = {};
  std::optional<char> reactive = {};
  std::optional<double> crestFactor = {};
};

// The mains and the load at one place: a function of its random number and the time alone, so that any
// moment, past ones included, can be asked for in any order and is always the same.
class Site {
 public:
  struct Place {
    std::uint64_t seed = 1;
    double volts = 120;
    double hertz = 60;
    std::int64_t unixStart = 0;  // universal time at second 0: the load follows the hour of the day
    bool disturbances = true;
    Story story = Story::Lively;
    double rating = 120;  // of the device, for disturbances that are told by it
  };

  explicit Site(const Place& place);

  const Manner& manner() const { return *manner_; }

  // At `seconds` since the start, all outlets on; without its disturbances if they are not wanted.
  SiteValues at(double seconds, bool disturbed = true) const;

  // The disturbances that start from `from` up to, not including, `to`, in order.
  std::vector<Disturbance> disturbances(double from, double to) const;

  // The first moment after `seconds` at which a disturbance starts or ends, but none later than `horizon`.
  double nextChange(double seconds, double horizon) const;

  // Adds a disturbance of one's own.
  void add(const Disturbance& disturbance) { added_.push_back(disturbance); }

 private:
  // What a moment is told by: the place in the random numbers, the second and the hour of the day, how far
  // the story has come.
  struct Moment {
    double chance, day, hour, progress;
  };
  // In-phase and reactive amps.
  struct Load {
    double real = 0;
    double reactive = 0;  // positive: inductive

    void add(double amps, double powerFactor);
  };

  Moment momentOf(double seconds) const;
  Load loadAt(const Moment& moment) const;
  double quietVolts(const Moment& moment) const;
  std::optional<Disturbance> disturbanceOfSlot(std::int64_t slot) const;
  // Takes those that may touch the span.
  template <typename Take>
  void forEachNear(double from, double to, const Take& take) const;

  Place place_;
  const Manner* manner_;
  std::vector<Disturbance> added_;
};

}  // namespace zephon::simulator
