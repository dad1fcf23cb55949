#include <gtest/gtest.h>

#include "platform/poll_loop.h"
#include "platform/posix_serial.h"
#include "protocol/exchange.h"
#include "shell/start.h"
#include "simulator/scope_sampler.h"
#include "support/fake_dialogs.h"
#include "support/running_simulator.h"

// The whole tool on the simulator's real pseudo-terminal: what the graph has is the wave that the device saw.

namespace zephon {
namespace {

using simulator::ScopeKind;

constexpr double kVoltStep = 4;
constexpr double kAmpereStep = 1 / 128.0;
const simulator::SiteValues kSeen = {.volts = 120, .amps = 10, .hertz = 60, .crestFactor = 1.3};

class ScopeTool {
 public:
  explicit ScopeTool(const std::string& waveform)
      : simulator({"--steady", "--past", "0", "--waveform", waveform, "--hold",
                   "volts=120,amps=10,hertz=60,pf=1,crest=1.3"}) {
    if (!testing_support::comesTrue([this] { return simulator.linked(); })) return;
    main.around.folders.config = settings / "";
    formLoad(main, "");
    main.frame.ScopeBtn.click();
  }
  ~ScopeTool() { formUnload(main); }

  // Captures so, and waits until one is drawn.
  bool capture(int mode, float xScale) {
    main.scope.CH1togBtn.setValue((mode & 1) != 0);
    main.scope.CH2togBtn.setValue((mode & 2) != 0);
    main.scope.CH3togBtn.setValue(mode == 3);
    main.capture.xScaleNext = xScale;
    const auto& c = main.capture;
    return next([&] { return c.capturedMode == mode && c.capturedXScale == xScale; });
  }
  bool next(const std::function<bool()>& asWanted) {
    const std::uint64_t before = drawn();
    const Instant end = loop.now() + fromMillis(20'000);
    while (loop.now() < end && (drawn() == before || !asWanted())) wait(main, 5);
    return asWanted();
  }
  std::uint64_t drawn() const {
    std::uint64_t sum = 0;
    for (const Graph::Plot& plot : main.frame.CWGraph2.plots()) sum += plot.revision;
    return sum;
  }

  // The first sample of what is drawn that is further off than a step of the converter; empty without one.
  std::string faultOf(simulator::Waveform shape, const ScopeKind& kind, std::size_t samples) const {
    const double period = 0.060 / kind.acrossSixtyMs;
    for (std::size_t i = 0; i < samples; ++i) {
      const auto truth = waveAt(shape, kSeen, static_cast<double>(i) * period);
      const double wanted[] = {truth.volts, truth.amps, truth.volts * truth.amps};
      const double steps[] = {
          kVoltStep, kAmpereStep,
          std::abs(truth.volts) * kAmpereStep + (std::abs(truth.amps) + kAmpereStep) * kVoltStep};
      const bool on[] = {kind.volts, kind.amps, kind.volts && kind.amps};
      for (std::size_t plot = 0; plot < 3; ++plot) {
        const auto& data = main.frame.CWGraph2.plots().at(plot).data;
        const std::string where = "plot " + std::to_string(plot) + " sample " + std::to_string(i);
        if ((data ? data->size() : 0) != (on[plot] ? samples : 0)) return where + ": size";
        if (!on[plot]) continue;
        if (std::abs(data->x(i) - static_cast<double>(i) * period * 1000) > 1e-6) return where + ": time";
        if (std::abs(data->y(i) - wanted[plot]) > steps[plot])
          return where + ": " + std::to_string(data->y(i));
      }
    }
    return {};
  }

  testing_support::RunningSimulator simulator;
  TempFolder settings;
  PollLoop loop;
  PosixSerial serial{{simulator.ports(), {}}};
  SystemClock clock;
  testing_support::FakeDialogs dialogs;
  Main main{Surroundings{loop, serial, clock, dialogs, Folders{ZEPHON_RESOURCES, "", "", ""}}};
};

TEST(ScopePty, DrawsTheWaveWithinAStepInEachModeAndTimeFactor) {
  const std::vector<float> all = {0.125F, 0.25F, 0.5F, 1, 2, 4};
  const std::pair<const char*, std::vector<float>> rows[] = {{"sine", all},
                                                             {"switching-supply", {1, 4}},
                                                             {"phase-shifted", {1}},
                                                             {"square-ups", {2}},
                                                             {"sag", {1, 2, 4}}};
  const ScopeKind* kinds[] = {&simulator::kScopeVolts, &simulator::kScopeAmps, &simulator::kScopeBoth};
  for (const auto& [waveform, factors] : rows) {
    ScopeTool tool(waveform);
    for (const float factor : factors) {
      for (int mode = 1; mode <= 3; ++mode) {
        const std::size_t samples = 256 * static_cast<std::size_t>(std::max(factor, 1.0F));
        ASSERT_TRUE(tool.capture(mode, factor)) << waveform << ' ' << mode << ' ' << factor;
        const auto wave = *simulator::waveformNamed(waveform);
        const auto fault = [&] { return tool.faultOf(wave, *kinds[mode - 1], samples); };
        // A machine with other work may hold up a command until the block before it has left.
        for (int again = 0; factor > 1 && again < 3 && !fault().empty(); ++again)
          tool.next([] { return true; });
        EXPECT_EQ(fault(), "") << waveform << ' ' << mode << ' ' << factor;
      }
    }
  }
}

}  // namespace
}  // namespace zephon
