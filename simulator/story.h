#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace zephon::simulator {

// What kind of place the device stands at. What changes there has changed over the last months before the
// start, and goes on after it.
enum class Story {
  Lively,             // an ordinary place with more than its share of disturbances
  Healthy,            // one day like the other: nothing to complain of
  SaggingFeeder,      // the voltage falls from week to week, and most at noon and in the evening
  OverloadedCircuit,  // more load than the circuit is for, on a good voltage
  SquareWaveUps,      // for hours the load runs from a converter with a square wave
  GrowingLoad,        // more load from week to week, most of it when the shifts change
};

struct Appliance {
  double amps;
  double powerFactor;  // negative: capacitive
  double slotSeconds;  // it may switch at the slots' borders
  double byDay;        // share of the slots in which it runs
  double byNight;
  bool clockwork = false;  // it runs in every other slot instead
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

// A kind of disturbance: the share of all slots of time that have one, the spans of lengths and of levels.
struct Habit {
  Disturbance::Kind kind;
  double share;
  double shortest, longest;
  double lowest, highest;
  bool ofRating = false;  // the levels are shares of the device's rating, not of the voltage as it is
  bool grows = false;     // the share grows from nothing over the months of the story
  double days = 1.0;      // where every day is alike: the share of the days that have it
};

// What changes in the months of a story.
struct Change {
  double before = 0, now = 0;

  // `progress` is 0 before the months of the story, 1 at the start, and goes on somewhat after it.
  double at(double progress) const { return before + (now - before) * progress; }
};

// Hours of the day in which something is more, or less, than at others.
struct DailyHours {
  double from, to;
  Change amount;
};

// How a place behaves.
struct Manner {
  Story story = Story::Lively;
  std::string_view name;
  std::span<const Appliance> appliances;
  std::span<const Habit> habits;
  std::span<const Disturbance> single = {};  // those that happen once

  // The voltage, in shares of the place's own: at large, how much less in some hours, how it moves with the
  // hour of the day, within minutes and within seconds.
  Change level = {1.0, 1.0};
  std::span<const DailyHours> dips = {};
  double daily = 0.012, slow = 0.008, fast = 0.002;
  double crest = 1.405, crestWander = 0.015;

  Change load = {1.0, 1.0};                // share of the appliances' amps
  std::span<const DailyHours> peaks = {};  // amps on top of the appliances
  bool samePower = false;  // the amps are those at 120 V; at another voltage the power is the same

  bool everyDayAlike = false;  // chance repeats itself every day
  bool squareWave = false;     // in one hour of every six
  double restartSeconds = 0;  // overloads shut the outlets off, and somebody puts them on again so much later
};

const Manner& mannerOf(Story story);
std::optional<Story> storyNamed(std::string_view name);

}  // namespace zephon::simulator
