#include "simulator/story.h"

#include <algorithm>
#include <array>

namespace zephon::simulator {
namespace {

using Kind = Disturbance::Kind;

constexpr double kDay = 86400.0;

constexpr std::array<Appliance, 5> kOffice = {{
    {1.3, -0.93, kDay, 1.0, 1.0},     // electronics
    {1.8, 0.98, 1800.0, 0.85, 0.15},  // lights
    {3.2, 0.78, 420.0, 0.40, 0.30},   // refrigerator
    {4.1, 0.85, 900.0, 0.50, 0.20},   // air handler
    {5.5, 1.00, 25.0, 0.12, 0.00},    // printer
}};

constexpr std::array<Appliance, 2> kCabinet = {{
    {1.5, -0.97, kDay, 1.0, 1.0},        // electronics
    {1.7, 0.92, 300.0, 0.0, 0.0, true},  // their cooling
}};

constexpr std::array<Appliance, 3> kWorkshop = {{
    {9.0, 0.90, kDay, 1.0, 1.0},
    {3.5, 0.82, 300.0, 0.0, 0.0, true},
    {2.0, 0.98, 1800.0, 0.85, 0.15},
}};

constexpr std::array<Appliance, 3> kServers = {{
    {5.0, -0.96, kDay, 1.0, 1.0},
    {2.0, 0.85, 300.0, 0.0, 0.0, true},
    {1.5, 0.98, 1800.0, 0.85, 0.15},
}};

constexpr std::array<Habit, 6> kRestless = {{
    {Kind::Sag, 0.09, 0.3, 6.0, 0.70, 0.86},
    {Kind::Sag, 0.02, 0.2, 2.0, 0.35, 0.65},
    {Kind::Swell, 0.05, 0.2, 3.0, 1.14, 1.32},
    {Kind::Surge, 0.06, 0.001, 0.001, 0.0, 0.0},
    {Kind::Overload, 0.02, 5.0, 25.0, 14.0, 22.0},
    {Kind::Outage, 0.01, 3.0, 45.0, 0.0, 0.0},
}};

constexpr std::array<Habit, 1> kWeak = {{
    {Kind::Sag, 0.03, 0.5, 6.0, 0.69, 0.74, true, true},
}};

constexpr std::array<Habit, 2> kOverloads = {{
    {Kind::Overload, 0.035, 6.0, 25.0, 18.0, 22.0},
    {Kind::Sag, 0.007, 0.5, 3.0, 0.50, 0.60, true, false, 0.2},
}};

constexpr std::array<Disturbance, 2> kTwoSurges = {{
    {Kind::Surge, -9.3 * kDay, 0.001, 0.0},
    {Kind::Surge, -2.1 * kDay, 0.001, 0.0},
}};

constexpr std::array<DailyHours, 2> kDips = {{
    {11.5, 12.5, {0.04, 0.09}},
    {17.5, 20.0, {0.04, 0.09}},
}};

constexpr std::array<DailyHours, 3> kPeaks = {{
    {5.5, 6.5, {3.0, 15.0}},
    {13.5, 14.5, {3.0, 15.0}},
    {21.5, 22.5, {3.0, 15.0}},
}};

constexpr std::array<Manner, 6> kManners = {{
    {.story = Story::Lively, .name = "lively", .appliances = kOffice, .habits = kRestless},
    {.story = Story::Healthy,
     .name = "healthy",
     .appliances = kCabinet,
     .habits = {},
     .single = kTwoSurges,
     .slow = 0.004,
     .fast = 0.001,
     .crest = 1.415,
     .crestWander = 0.007,
     .samePower = true,
     .everyDayAlike = true},
    {.story = Story::SaggingFeeder,
     .name = "sagging-feeder",
     .appliances = kCabinet,
     .habits = kWeak,
     .level = {1.03, 0.965},
     .dips = kDips,
     .daily = 0.0,
     .slow = 0.004,
     .fast = 0.001,
     .crest = 1.415,
     .crestWander = 0.007,
     .samePower = true,
     .everyDayAlike = true},
    {.story = Story::OverloadedCircuit,
     .name = "overloaded-circuit",
     .appliances = kWorkshop,
     .habits = kOverloads,
     .level = {1.01, 1.01},
     .daily = 0.004,
     .slow = 0.004,
     .fast = 0.001,
     .crest = 1.415,
     .crestWander = 0.007,
     .load = {0.5, 1.0},
     .everyDayAlike = true,
     .restartSeconds = 300.0},
    {.story = Story::SquareWaveUps,
     .name = "square-wave-ups",
     .appliances = kCabinet,
     .habits = {},
     .single = kTwoSurges,
     .slow = 0.004,
     .fast = 0.001,
     .crest = 1.415,
     .crestWander = 0.007,
     .samePower = true,
     .everyDayAlike = true,
     .squareWave = true},
    {.story = Story::GrowingLoad,
     .name = "growing-load",
     .appliances = kServers,
     .habits = {},
     .single = kTwoSurges,
     .level = {1.01, 1.01},
     .daily = 0.004,
     .slow = 0.004,
     .fast = 0.001,
     .crest = 1.415,
     .crestWander = 0.007,
     .load = {0.2, 1.0},
     .peaks = kPeaks,
     .everyDayAlike = true},
}};

}  // namespace

const Manner& mannerOf(Story story) {
  return *std::find_if(kManners.begin(), kManners.end(), [&](const Manner& m) { return m.story == story; });
}

std::optional<Story> storyNamed(std::string_view name) {
  const auto row =
      std::find_if(kManners.begin(), kManners.end(), [&](const Manner& m) { return m.name == name; });
  return row == kManners.end() ? std::nullopt : std::optional(row->story);
}

}  // namespace zephon::simulator
