#include "protocol/measurement.h"

#include <gtest/gtest.h>

#include "protocol/meters.h"
#include "support/bench.h"

namespace zephon {
namespace {

using simulator::Event;
using simulator::FaultKind;
using simulator::Line;
using testing_support::Bench;
using testing_support::Script;
using testing_support::World;

using Texts = std::vector<std::string>;

Slider& sliderOf(Main& main, MeterId id) {
  return main.measurement.*meterOf(id).slider;
}

void switchOff(Main& main, std::initializer_list<MeterId> ids) {
  for (const MeterId id : ids) sliderOf(main, id).setPointerMode(0, 0);
}

// Everything off but what a test is about.
void switchAllOff(Main& main) {
  for (const Meter& meter : kMeters) switchOff(main, {meter.id});
  main.measurement.recSlide.setPointerMode(0, 0);
}

// Replies of a device at 120 V, 5 A, 600 W, 0.5 V, 60.06 Hz, 0.984 inductive, peak 169 V.
void answerAll(Script& script) {
  script.peer.answer("g4", std::string("\x3C\0", 2));
  script.peer.answer("g6", std::string("\x05\0", 2));
  script.peer.answer("g8", std::string("\0\x96", 2));
  script.peer.answer("g5", std::string("\0\0\x80", 3));
  script.peer.answer("g;", "\x01\xEC");
  script.peer.answer("g:", "\x7EL");
  script.peer.answer("g7", "\x2A\x40");
  for (const char* count : {"g>", "g@", "g?", "gA", "gB", "gC"}) {
    script.peer.answer(count, std::string("\0\x01", 2));
  }
}

TEST(FirstLinePass, ShowsEveryQuantity) {
  Script script;
  answerAll(script);
  script.main.limits = {.UVco = 80, .UVre = 100, .OVre = 135, .OVco = 150};
  script.stay(Page::Measurement);
  EXPECT_TRUE(getMeasurements(script.main));
  const Readings& r = script.main.readings;
  EXPECT_EQ(r.lastVln, 120.0f);
  EXPECT_EQ(r.lastI, 5.0f);
  EXPECT_EQ(r.lastP, 600.0f);
  EXPECT_EQ(r.lastVng, 0.5f);
  EXPECT_EQ(r.lastF, 60.06f);
  EXPECT_EQ(r.lastPF, 0.984f);
  EXPECT_EQ(r.lastCF, 1.408f);
  const struct {
    MeterId id;
    const char* label;
    double pointer;
  } rows[] = {{MeterId::Vln, "120.00 V", 120},  {MeterId::I, "5.000 A", 5},
              {MeterId::P, "600.0 W", 600},     {MeterId::Vng, "0.500 V", 0.5},
              {MeterId::F, "60.06 Hz", 60.06f}, {MeterId::PF, "0.984 PF Inductive", 0.984f},
              {MeterId::CF, "1.408 CF", 1.408f}};
  for (const auto& row : rows) {
    EXPECT_EQ((script.main.measurement.*meterOf(row.id).text).caption(), row.label);
    EXPECT_EQ(sliderOf(script.main, row.id).value(), row.pointer);
    EXPECT_EQ(sliderOf(script.main, row.id).pointer().colour, kGreen) << row.label;
  }
}

TEST(FirstLinePass, KeepsOrderAndPauses) {
  Script script;
  answerAll(script);
  script.stay(Page::Measurement);
  script.main.frame.EUlbl.setVisible(true);
  script.peer.answer("g9", std::string("\x01\0\0\0", 4) + "00:00:00 01/01/2024");
  EXPECT_TRUE(getMeasurements(script.main));
  EXPECT_EQ(script.peer.heard(),
            (Texts{"g4", "g6", "g8", "g5", "g;", "g:", "g7", "g>", "g@", "g?", "gA", "gB", "gC", "g9"}));
  // A reply takes a millisecond; ten of pause after each meter but the last, twenty before the counters.
  const double starts[] = {0, 11, 22, 33, 44, 55, 66, 87, 88, 89, 90, 91, 92, 93};
  for (std::size_t i = 0; i < std::size(starts); ++i) {
    EXPECT_DOUBLE_EQ(Millis(script.line.written()[i].at).count(), starts[i]) << i;
  }
  EXPECT_EQ(script.main.measurement.EUtxt.text(), "232.0000");
}

TEST(FirstLinePass, AsksForNothingThatIsOff) {
  Script script;
  switchAllOff(script.main);
  script.main.measurement.VlnLbl.setCaption("120.00 V");
  EXPECT_TRUE(getMeasurements(script.main));
  EXPECT_TRUE(script.peer.heard().empty());
  EXPECT_EQ(script.main.measurement.VlnLbl.caption(), "V");
  EXPECT_EQ(script.main.measurement.fLbl.caption(), "Hz");
}

TEST(FirstLinePass, CrestFactorDividesByTheLastVolts) {
  Script script;
  answerAll(script);
  switchAllOff(script.main);
  sliderOf(script.main, MeterId::CF).setPointerMode(0, 1);
  EXPECT_TRUE(getMeasurements(script.main));
  EXPECT_EQ(script.main.readings.lastVln, 1.0f);
  EXPECT_EQ(script.main.readings.lastCF, 169.0f);
  script.main.readings.lastVln = 120;
  EXPECT_TRUE(getMeasurements(script.main));
  EXPECT_EQ(script.main.readings.lastCF, 1.408f);
}

TEST(FirstLinePass, PowerFactorIsSignedAndNamesTheLoad) {
  Script script;
  const struct {
    std::string reply;
    float factor;
    const char* label;
    Colour colour;
  } rows[] = {{"\x4D"
               "C",
               0.602f, "0.602 PF Capacitive", kGreen},
              {"\x80 ", -0.992f, "-0.992 PF", kRed},
              {"\xFF"
               "l",
               0.0f, "0.000 PF", kRed},
              {"\x34L", 0.406f, "0.406 PF Inductive", kYellow}};
  for (const auto& row : rows) {
    script.peer.answer("g:", row.reply);
    EXPECT_TRUE(getPF(script.main));
    EXPECT_EQ(script.main.readings.lastPF, row.factor);
    EXPECT_EQ(script.main.measurement.pfLbl.caption(), row.label);
    EXPECT_EQ(script.main.measurement.pfSlide.pointer().colour, row.colour);
  }
}

TEST(FirstLinePass, LabelsStayAtTheirSplitAndPointersWithinAStep) {
  Script script;
  const MeasurementElements& m = script.main.measurement;
  script.peer.answer("g6", std::string("\x09\0", 2));
  script.peer.answer("g6", std::string("\x0A\0", 2));
  EXPECT_TRUE(getIrms(script.main) && getIrms(script.main));
  EXPECT_EQ(m.Ilbl.caption(), "9.000 A");
  EXPECT_EQ(m.ISlide.value(), 10);
  script.peer.answer("g4", std::string("\x3C\0", 2));    // 120
  script.peer.answer("g4", std::string("\x3C\x80", 2));  // 121: no more than the step
  script.peer.answer("g4", std::string("\x3C\x81", 2));  // 121.01
  EXPECT_TRUE(getVLNrms(script.main) && getVLNrms(script.main));
  EXPECT_EQ(m.VlnSlide.value(), 120);
  EXPECT_EQ(m.VlnLbl.caption(), "121.00 V");
  EXPECT_TRUE(getVLNrms(script.main));
  EXPECT_EQ(m.VlnSlide.value(), 121.01f);
}

TEST(FirstLinePass, EndsAtTheFirstFailureOfAnyCause) {
  const struct {
    FaultKind kind;
    int amount;
    ExchangeFailure cause;
  } rows[] = {{FaultKind::Silent, 1, ExchangeFailure::TimedOut},
              {FaultKind::Short, 1, ExchangeFailure::ShortReply},
              {FaultKind::Late, 150, ExchangeFailure::TimedOut},
              {FaultKind::Cut, 1, ExchangeFailure::ShortReply}};
  for (const auto& row : rows) {
    World world;
    world.stay(Page::Measurement);
    world.device.hold({.volts = 120.0, .amps = 2.0, .watts = 240.0});
    ASSERT_TRUE(getMeasurements(world.main));
    world.device.hold({.volts = 110.0, .amps = 2.0, .watts = 240.0});
    world.device.addFault({.kind = row.kind, .amount = row.amount, .only = "g6", .commands = 1});
    world.device.clearLog();
    EXPECT_FALSE(getMeasurements(world.main));
    EXPECT_EQ(world.main.exchange.lastFailure, row.cause);
    EXPECT_EQ(world.commands(), (Texts{"g4", "g6"}));
    EXPECT_FALSE(world.main.exchange.Timer1.enabled());
    const MeasurementElements& m = world.main.measurement;
    EXPECT_EQ(m.VlnLbl.caption(), "110.00 V");  // what was read stays
    EXPECT_EQ(m.Ilbl.caption(), "2.000 A");
    EXPECT_TRUE(m.Ilbl.stale() && m.cfLbl.stale() && m.POrecTxt.stale());
    world.device.clearFaults();
    world.run(200);  // what was late has passed
    EXPECT_TRUE(getMeasurements(world.main));
    EXPECT_FALSE(m.Ilbl.stale() || m.cfLbl.stale() || m.VlnLbl.stale() || m.POrecTxt.stale());
  }
}

TEST(FirstLinePass, ASilentLineIsOverAfterItsFirstQuery) {
  Script script;
  switchOff(script.main, {MeterId::I});
  script.stay(Page::Measurement);
  EXPECT_FALSE(getMeasurements(script.main));
  EXPECT_DOUBLE_EQ(script.nowMs(), 100);
  EXPECT_EQ(script.peer.heard(), (Texts{"g4"}));
  EXPECT_FALSE(script.main.measurement.Ilbl.stale());  // it is off
}

TEST(FirstLinePass, EndsSilentlyWhenThePageIsLeftOrTheProgramCloses) {
  const std::function<void(Bench&)> ends[] = {
      [](Bench& b) { b.stay(Page::None); }, [](Bench& b) { b.stay(Page::Measurement); },  // and opened again
      [](Bench& b) { b.main.ending = true; }};
  for (const auto& end : ends) {
    for (double when = 0.5; when < 93; when += 1.0) {  // in every exchange and every pause
      Script script;
      answerAll(script);
      script.stay(Page::Measurement);
      script.later(when, [&] { end(script); });
      EXPECT_FALSE(getMeasurements(script.main)) << when;
      EXPECT_LE(script.nowMs(), when + 20) << "the rest of a pause at the most";
      EXPECT_FALSE(script.main.measurement.cfLbl.stale());
      EXPECT_FALSE(script.main.exchange.Timer1.enabled());
      EXPECT_TRUE(script.dialogs.shown().empty());
    }
  }
}

TEST(FirstLinePass, ClearsWhatWasAskedFor) {
  World world;
  Main& main = world.main;
  world.stay(Page::Measurement);
  world.device.device().setCount(Event::Surge, 3);
  world.device.device().setEnergy(100);
  world.device.hold({.watts = 0.0});
  main.counters.clearCountsRequest = main.energy.clearEnergyRequest = true;
  main.measurement.clrCountBtn.setEnabled(false);
  main.measurement.clrEUbtn.setEnabled(false);

  world.device.addFault({.kind = FaultKind::Refuse, .only = "s="});
  EXPECT_FALSE(getMeasurements(main));
  EXPECT_TRUE(main.counters.clearCountsRequest && main.energy.clearEnergyRequest);
  EXPECT_FALSE(main.measurement.clrCountBtn.enabled());

  world.device.clearFaults();
  EXPECT_TRUE(getMeasurements(main));
  EXPECT_EQ(world.device.device().count(Event::Surge), 0u);
  EXPECT_EQ(world.device.device().kilowattHours(), 0);
  EXPECT_FALSE(main.counters.clearCountsRequest || main.energy.clearEnergyRequest);
  EXPECT_TRUE(main.measurement.clrCountBtn.enabled() && main.measurement.clrEUbtn.enabled());
  const Texts last = world.commands();
  EXPECT_EQ(Texts(last.end() - 2, last.end()), (Texts{"s=Y", "s?Y"}));
}

// The commands of a pass, a run of the same one once.
Texts runsOf(const Texts& commands) {
  Texts runs;
  for (const std::string& one : commands) {
    if (runs.empty() || runs.back() != one) runs.push_back(one);
  }
  return runs;
}

TEST(SecondLinePass, ReadsMemoryAndOutletsEveryFifthTime) {
  World world({.line = Line::Tessara});
  world.stay(Page::Measurement);
  world.device.hold({.volts = 118.0, .neutralGroundVolts = 6.0});
  for (int pass = 0; pass < 7; ++pass) {
    world.device.clearLog();
    ASSERT_TRUE(getMeasurements(world.main)) << pass;
    const Texts expected = pass % 5 == 0 ? Texts{"+", "t", "s", "v", "p"} : Texts{"v", "p"};
    EXPECT_EQ(runsOf(world.commands()), expected) << pass;
  }
  EXPECT_EQ(world.main.readings.pollPhase, 2);
  EXPECT_NEAR(world.main.readings.lastVln, 118, 1);
  EXPECT_EQ(world.main.measurement.VngLbl.caption(), "6 V");
}

TEST(SecondLinePass, OnlyA120VoltDeviceHasANeutral) {
  World world({.line = Line::Tessara, .rating = 240, .siteVolts = 208, .firmware = "1*14"});
  world.stay(Page::Measurement);
  EXPECT_TRUE(getMeasurements(world.main));
  EXPECT_EQ(runsOf(world.commands()), (Texts{"+", "t", "s", "v"}));
  world.device.clearLog();
  switchOff(world.main, {MeterId::Vln, MeterId::Vng});
  EXPECT_TRUE(getMeasurements(world.main));
  EXPECT_TRUE(world.commands().empty());
  EXPECT_EQ(world.main.measurement.VlnLbl.caption(), "V");
}

TEST(SecondLinePass, FailsWithItsImportAndClearsOnRequest) {
  World world({.line = Line::Tessara});
  world.stay(Page::Measurement);
  world.device.device().image.record(simulator::ImageEvent::Surge, 60);
  world.device.addFault({.kind = FaultKind::Silent, .only = "+", .commands = 1});
  EXPECT_FALSE(getMeasurements(world.main));
  EXPECT_EQ(world.commands(), (Texts{"+"}));
  EXPECT_EQ(world.main.readings.pollPhase, 0);
  EXPECT_TRUE(world.main.measurement.VlnLbl.stale());
  EXPECT_FALSE(world.main.measurement.Ilbl.stale());  // this line has none

  world.main.counters.clearCountsRequest = true;
  world.main.measurement.clrCountBtn.setEnabled(false);
  EXPECT_TRUE(getMeasurements(world.main));
  EXPECT_EQ(world.main.measurement.SGrecTxt.text(), "1");
  EXPECT_FALSE(world.main.counters.clearCountsRequest);
  EXPECT_TRUE(world.main.measurement.clrCountBtn.enabled());
  world.run(20);
  EXPECT_EQ(world.commands().back(), "z");
  EXPECT_EQ(world.device.device().image.count(simulator::ImageEvent::Surge), 0);
}

}  // namespace
}  // namespace zephon
