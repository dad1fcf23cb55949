#include "protocol/measurement.h"

#include <gtest/gtest.h>

#include "protocol/meters.h"
#include "support/bench.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using testing_support::Script;
using testing_support::World;
using Texts = std::vector<std::string>;

constexpr Limits kLimits{.UVco = 80, .UVre = 100, .UVrs = 105, .OVrs = 130, .OVre = 135, .OVco = 150};

struct Measuring : World {
  Measuring() {
    device.hold({120.0, 5.0, 600.0, 0.5, 60.06, 0.985, 'L', 169 / 120.0});
    main.limits = kLimits;
    stay(Page::Measurement);
  }
};

TEST(Colours, ChangeBeyondTheMetersBounds) {
  using Values = std::vector<float>;
  const std::tuple<MeterId, Values, Values, Values> rows[] = {
      {MeterId::Vln, {100, 135}, {80, 99.99f, 135.01f, 150}, {79.99f, 150.01f}},
      {MeterId::I, {0, 15}, {15.004f, 20}, {20.004f}},
      {MeterId::P, {0, 1800}, {1804, 2400}, {2404}},
      {MeterId::Vng, {0, 3}, {3.004f, 5}, {5.004f}},
      {MeterId::F, {59.5f, 60.5f, 49.5f, 50.5f}, {59, 59.4f, 60.6f, 61, 49}, {58.9f, 61.1f, 48.9f, 54}},
      {MeterId::PF, {0.6f, 1}, {0.4f, 0.594f}, {0.398f, -0.9f}},
      {MeterId::CF, {1.35f, 1.45f}, {1.2f, 1.349f, 1.451f, 1.6f}, {1.199f, 1.601f}}};
  for (const auto& [id, green, yellow, red] : rows) {
    for (const auto& [readings, colour] : {std::pair(green, kGreen), {yellow, kYellow}, {red, kRed}}) {
      for (const float reading : readings)
        EXPECT_EQ(colourIn(bandsOf(id, reading, kLimits, 120).value(), reading), colour) << reading;
    }
  }
  EXPECT_FALSE(bandsOf(MeterId::Vng, 50, kLimits, 240));
  EXPECT_EQ(bandsOf(MeterId::P, 0, kLimits, 240)->greenTo, 3600);
  EXPECT_EQ(axisOf(MeterId::F, 49.9f), (Slider::Axis{45, 55, 1, 0.5}));
  EXPECT_EQ(axisOf(MeterId::Vng, 20), (Slider::Axis{0, 280, 40, 20}));
}

TEST(FirstLinePass, ShowsEveryQuantity) {
  Measuring world;
  world.main.frame.EUlbl.setVisible(true);
  world.device.device().setEnergy(232);
  EXPECT_TRUE(getMeasurements(world.main));
  const MeasurementElements& m = world.main.measurement;
  const std::tuple<MeterId, float, const char*> rows[] = {
      {MeterId::Vln, 120, "120.00 V"},  {MeterId::I, 5, "5.000 A"},
      {MeterId::P, 600, "600.0 W"},     {MeterId::Vng, 0.5f, "0.500 V"},
      {MeterId::F, 60.06f, "60.06 Hz"}, {MeterId::PF, 0.984f, "0.984 PF Inductive"},
      {MeterId::CF, 1.408f, "1.408 CF"}};
  for (const auto& [id, reading, label] : rows) {
    const Meter& meter = meterOf(id);
    EXPECT_EQ(world.main.readings.*meter.latest, reading);
    EXPECT_EQ((m.*meter.text).caption(), label);
    EXPECT_EQ((m.*meter.slider).value(), reading);
    EXPECT_EQ((m.*meter.slider).pointer().colour, kGreen) << label;
  }
  EXPECT_EQ(m.EUtxt.text(), "232.0000");
}

TEST(FirstLinePass, TheCrestFactorAloneDividesByTheLastVoltsOrByOne) {
  Measuring world;
  MeasurementElements& m = world.main.measurement;
  for (const Meter& meter : kMeters) (m.*meter.slider).setPointerMode(0, 0);
  m.recSlide.setPointerMode(0, 0);
  EXPECT_TRUE(getMeasurements(world.main) && world.writes().empty());
  m.cfSlide.setPointerMode(0, 1);
  EXPECT_TRUE(getMeasurements(world.main));
  EXPECT_EQ(world.main.readings.lastCF, 169.0f);
}

TEST(FirstLinePass, PowerFactorIsSignedAndNamesTheLoad) {
  Script script;
  for (const auto& [reply, label] : {std::pair{"MC", "0.602 PF Capacitive"}, {"\x80 ", "-0.992 PF"}}) {
    script.peer.answer("g:", reply);
    EXPECT_TRUE(getPF(script.main));
    EXPECT_EQ(script.main.measurement.pfLbl.caption(), label);
  }
}

TEST(FirstLinePass, EndsAtTheFirstFailureOfAnyCause) {
  const std::tuple<FaultKind, int, ExchangeFailure> rows[] = {
      {FaultKind::Late, 150, ExchangeFailure::TimedOut}, {FaultKind::Cut, 1, ExchangeFailure::ShortReply}};
  for (const auto& [kind, amount, cause] : rows) {
    World world;
    const MeasurementElements& m = world.main.measurement;
    world.stay(Page::Measurement);
    world.device.addFault({.kind = kind, .amount = amount, .only = "g6", .commands = 1});
    EXPECT_FALSE(getMeasurements(world.main));
    EXPECT_EQ(world.main.exchange.lastFailure, cause);
    EXPECT_EQ(world.commands(), (Texts{"g4", "g6"}));
    EXPECT_FALSE(world.main.exchange.Timer1.enabled());
    EXPECT_TRUE(m.Ilbl.stale() && m.cfLbl.stale() && m.POrecTxt.stale());
    world.device.clearFaults();
    world.run(200);  // what was late has passed
    EXPECT_TRUE(getMeasurements(world.main));
    EXPECT_FALSE(m.Ilbl.stale() || m.cfLbl.stale() || m.POrecTxt.stale());
  }
}

TEST(FirstLinePass, EndsSilentlyWhenThePageIsLeftAndOpenedAgain) {
  for (double when = 0.5; when < 86; when += 0.5) {  // in every exchange and every pause
    Measuring world;
    world.later(when, [&] { world.stay(Page::Measurement); });
    EXPECT_FALSE(getMeasurements(world.main)) << when;
    EXPECT_LE(world.nowMs(), when + 20) << "the rest of a pause at the most";
    EXPECT_FALSE(world.main.measurement.cfLbl.stale() || world.main.exchange.Timer1.enabled());
  }
}

TEST(FirstLinePass, AClearingThatIsRefusedStaysAskedFor) {
  World world;
  Main& main = world.main;
  world.stay(Page::Measurement);
  main.counters.clearCountsRequest = main.energy.clearEnergyRequest = true;
  world.device.addFault({.kind = FaultKind::Refuse, .only = "s=", .commands = 1});
  EXPECT_FALSE(getMeasurements(main));
  EXPECT_TRUE(main.counters.clearCountsRequest && main.energy.clearEnergyRequest);
  EXPECT_TRUE(getMeasurements(main));
  EXPECT_FALSE(main.counters.clearCountsRequest || main.energy.clearEnergyRequest);
  EXPECT_EQ(world.commands().back(), "s?Y");
}

// The commands of a pass, a run of the same one once.
std::string runsOf(const Texts& commands) {
  std::string runs;
  for (const std::string& one : commands) runs += runs.ends_with(one) ? "" : one;
  return runs;
}

TEST(SecondLinePass, ReadsMemoryAndOutletsEveryFifthTime) {
  World world({.line = simulator::Line::Tessara});
  world.stay(Page::Measurement);
  for (int pass = 0; pass < 7; ++pass) {
    world.device.clearLog();
    EXPECT_TRUE(getMeasurements(world.main)) << pass;
    EXPECT_EQ(runsOf(world.commands()), pass % 5 == 0 ? "+tsvp" : "vp");
  }
  World without(simulator::makeProfile(simulator::Line::Tessara, 240));  // a 240 V device has no neutral
  without.stay(Page::Measurement);
  EXPECT_TRUE(getMeasurements(without.main));
  EXPECT_EQ(runsOf(without.commands()), "+tsv");
}

TEST(SecondLinePass, FailsWithItsImportAndClearsOnRequest) {
  World world({.line = simulator::Line::Tessara});
  Main& main = world.main;
  world.stay(Page::Measurement);
  world.device.device().image.record(simulator::ImageEvent::Surge, 60);
  world.device.addFault({.kind = FaultKind::Silent, .only = "+", .commands = 1});
  EXPECT_FALSE(getMeasurements(main));
  EXPECT_TRUE(main.measurement.VlnLbl.stale() && !main.measurement.Ilbl.stale()) << "it has no current";
  main.counters.clearCountsRequest = true;
  EXPECT_TRUE(getMeasurements(main));
  EXPECT_EQ(main.measurement.SGrecTxt.text(), "1");
  world.run(20);
  EXPECT_EQ(world.device.device().image.count(simulator::ImageEvent::Surge), 0);
}

}  // namespace
}  // namespace zephon
