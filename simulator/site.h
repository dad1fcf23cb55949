#pragma once

#include <cstdint>
#include <optional>
#include <vector>

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

struct Disturbance {
  enum class Kind {
    Sag,       // level: factor on the voltage, below 1
    Swell,     // level: factor on the voltage, above 1
    Outage,    // no voltage
    Surge,     // an impulse, too short for the meters
    Overload,  // level: amps on top of the load
  };
  Kind kind = Kind::Sag;
  double start = 0;    // seconds since the loop's start; negative before it
  double seconds = 0;  // how long it lasts
  double level = 0;
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
  };

  explicit Site(const Place& place) : place_(place) {}

  // At `seconds` since the start, all outlets on; without its disturbances if they are not wanted.
  SiteValues at(double seconds, bool disturbed = true) const;

  // The disturbances that start from `from` up to, not including, `to`, in order.
  std::vector<Disturbance> disturbances(double from, double to) const;

  // The first moment after `seconds` at which a disturbance starts or ends, but none later than `horizon`.
  double nextChange(double seconds, double horizon) const;

  // Adds a disturbance of one's own.
  void add(const Disturbance& disturbance) { added_.push_back(disturbance); }

 private:
  std::optional<Disturbance> disturbanceOfSlot(std::int64_t slot) const;
  // Those that may touch the span.
  std::vector<Disturbance> near(double from, double to) const;
  double quietVolts(double seconds) const;

  Place place_;
  std::vector<Disturbance> added_;
};

}  // namespace zephon::simulator
