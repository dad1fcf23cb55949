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

// A script of a device at 120 V, 5 A, 600 W, 0.5 V, 60.06 Hz, 0.984 inductive, peak 169 V.
struct Answering : Script {
  Answering() {
    const std::pair<const char*, std::string> replies[] = {
        {"g4", {"\x3C\0", 2}}, {"g6", {"\x05\0", 2}}, {"g8", {"\0\x96", 2}}, {"g5", {"\0\0\x80", 3}},
        {"g;", "\x01\xEC"},    {"g:", "\x7EL"},       {"g7", "\x2A\x40"}};
    for (const auto& [command, reply] : replies) peer.answer(command, reply);
    for (const char* count : {"g>", "g@", "g?", "gA", "gB", "gC"}) peer.answer(count, {"\0\x01", 2});
    peer.answer("g9", std::string("\x01\0\0\0", 4) + "00:00:00 01/01/2024");
    main.limits = {.UVco = 80, .UVre = 100, .UVrs = 105, .OVrs = 130, .OVre = 135, .OVco = 150};
    main.frame.EUlbl.setVisible(true);
    stay(Page::Measurement);
  }
};

TEST(FirstLinePass, ShowsEveryQuantityAndKeepsOrderAndPauses) {
  Answering script;
  EXPECT_TRUE(getMeasurements(script.main));
  const std::tuple<MeterId, float, const char*> rows[] = {
      {MeterId::Vln, 120, "120.00 V"},  {MeterId::I, 5, "5.000 A"},
      {MeterId::P, 600, "600.0 W"},     {MeterId::Vng, 0.5f, "0.500 V"},
      {MeterId::F, 60.06f, "60.06 Hz"}, {MeterId::PF, 0.984f, "0.984 PF Inductive"},
      {MeterId::CF, 1.408f, "1.408 CF"}};
  for (const auto& [id, reading, label] : rows) {
    const Meter& meter = meterOf(id);
    EXPECT_EQ(script.main.readings.*meter.latest, reading);
    EXPECT_EQ((script.main.measurement.*meter.text).caption(), label);
    EXPECT_EQ((script.main.measurement.*meter.slider).value(), reading);
    EXPECT_EQ((script.main.measurement.*meter.slider).pointer().colour, kGreen) << label;
  }
  EXPECT_EQ(script.main.measurement.EUtxt.text(), "232.0000");
  // A reply takes a millisecond; ten of pause after each meter but the last, twenty before the counters.
  const Texts order{"g4", "g6", "g8", "g5", "g;", "g:", "g7", "g>", "g@", "g?", "gA", "gB", "gC", "g9"};
  const double starts[] = {0, 11, 22, 33, 44, 55, 66, 87, 88, 89, 90, 91, 92, 93};
  EXPECT_EQ(script.peer.heard(), order);
  for (std::size_t i = 0; i < order.size(); ++i) {
    EXPECT_DOUBLE_EQ(Millis(script.line.written()[i].at).count(), starts[i]) << order[i];
  }
}

TEST(FirstLinePass, TheCrestFactorAloneDividesByTheLastVoltsOrByOne) {
  Answering script;
  for (const Meter& meter : kMeters) (script.main.measurement.*meter.slider).setPointerMode(0, 0);
  script.main.measurement.recSlide.setPointerMode(0, 0);
  script.main.frame.EUlbl.setVisible(false);
  EXPECT_TRUE(getMeasurements(script.main));
  EXPECT_TRUE(script.peer.heard().empty());
  script.main.measurement.cfSlide.setPointerMode(0, 1);
  EXPECT_TRUE(getMeasurements(script.main));
  EXPECT_EQ(script.main.readings.lastCF, 169.0f);
}

TEST(FirstLinePass, PowerFactorIsSignedAndNamesTheLoad) {
  Script script;
  for (const auto& [reply, label] : {std::pair{"MC", "0.602 PF Capacitive"}, {"\x80 ", "-0.992 PF"}}) {
    script.peer.answer("g:", reply);
    EXPECT_TRUE(getPF(script.main));
    EXPECT_EQ(script.main.measurement.pfLbl.caption(), label);
  }
}

TEST(FirstLinePass, LabelsStayAtTheirSplitAndPointersWithinAStep) {
  Script script;
  const MeasurementElements& m = script.main.measurement;
  for (const char* reply : {"\x09\0", "\x0A\0"}) script.peer.answer("g6", {reply, 2});
  EXPECT_TRUE(getIrms(script.main) && getIrms(script.main));
  EXPECT_EQ(m.Ilbl.caption(), "9.000 A");
  EXPECT_EQ(m.ISlide.value(), 10);
  for (const char* reply : {"\x3C\x01", "\x3C\x81", "\x3C\x82"}) script.peer.answer("g4", reply);
  EXPECT_TRUE(getVLNrms(script.main) && getVLNrms(script.main));
  EXPECT_EQ(m.VlnLbl.caption(), "121.01 V");
  EXPECT_EQ(m.VlnSlide.value(), 120.01f);  // a volt is no more than the step
  EXPECT_TRUE(getVLNrms(script.main));
  EXPECT_EQ(m.VlnSlide.value(), 121.02f);
}

TEST(FirstLinePass, EndsAtTheFirstFailureOfAnyCause) {
  const std::tuple<FaultKind, int, ExchangeFailure> rows[] = {
      {FaultKind::Late, 150, ExchangeFailure::TimedOut}, {FaultKind::Cut, 1, ExchangeFailure::ShortReply}};
  for (const auto& [kind, amount, cause] : rows) {
    World world;
    const MeasurementElements& m = world.main.measurement;
    world.stay(Page::Measurement);
    world.main.measurement.fSlide.setPointerMode(0, 0);
    world.device.addFault({.kind = kind, .amount = amount, .only = "g6", .commands = 1});
    EXPECT_FALSE(getMeasurements(world.main));
    EXPECT_EQ(world.main.exchange.lastFailure, cause);
    EXPECT_EQ(world.commands(), (Texts{"g4", "g6"}));
    EXPECT_FALSE(world.main.exchange.Timer1.enabled());
    EXPECT_TRUE(m.Ilbl.stale() && m.cfLbl.stale() && m.POrecTxt.stale());
    EXPECT_FALSE(m.fLbl.stale()) << "its meter is off";
    world.device.clearFaults();
    world.run(200);  // what was late has passed
    EXPECT_TRUE(getMeasurements(world.main));
    EXPECT_FALSE(m.Ilbl.stale() || m.cfLbl.stale() || m.POrecTxt.stale());
  }
}

TEST(FirstLinePass, EndsSilentlyWhenThePageIsLeftAndOpenedAgain) {
  for (double when = 0.5; when < 93; when += 1.0) {  // in every exchange and every pause
    Answering script;
    script.later(when, [&] { script.stay(Page::Measurement); });
    EXPECT_FALSE(getMeasurements(script.main)) << when;
    EXPECT_LE(script.nowMs(), when + 20) << "the rest of a pause at the most";
    EXPECT_FALSE(script.main.measurement.cfLbl.stale() || script.main.exchange.Timer1.enabled());
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
  world.device.hold({.volts = 118.0, .neutralGroundVolts = 6.0});
  for (int pass = 0; pass < 7; ++pass) {
    world.device.clearLog();
    EXPECT_TRUE(getMeasurements(world.main)) << pass;
    EXPECT_EQ(runsOf(world.commands()), pass % 5 == 0 ? "+tsvp" : "vp");
  }
  EXPECT_EQ(world.main.measurement.VngLbl.caption(), "6 V");

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
