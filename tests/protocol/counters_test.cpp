#include "protocol/counters.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using simulator::Event;
using simulator::FaultKind;
using simulator::ImageEvent;
using simulator::Line;
using testing_support::Script;
using testing_support::World;

constexpr auto none = std::nullopt;

Counters counts(std::array<std::int32_t, 7> inOrder) {
  Counters c;
  c.olCount = inOrder[0];
  c.poCount = inOrder[1];
  c.uvcoCount = inOrder[2];
  c.uvreCount = inOrder[3];
  c.ovreCount = inOrder[4];
  c.ovcoCount = inOrder[5];
  c.sgCount = inOrder[6];
  return c;
}

TEST(StackedShares, RoundEachShareByItself) {
  const struct {
    std::array<std::int32_t, 7> counts;
    StackedShares shares;
  } rows[] = {
      {{0, 0, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0, 0}},
      {{1, 2, 3, 4, 0, 0, 0}, {10, 30, 60, 100, 100, 100, 100}},
      {{1, 1, 1, 0, 0, 0, 0}, {33, 66, 99, 99, 99, 99, 99}},
      {{1, 1, 1, 1, 1, 1, 0}, {17, 34, 51, 68, 85, 102, 102}},
      {{1, 3, 4, 0, 0, 0, 0}, {12, 50, 100, 100, 100, 100, 100}},  // 12.5 and 37.5: halves to even
      {{65535, 65535, 65535, 65535, 65535, 65535, 65535}, {14, 28, 42, 56, 70, 84, 98}},
  };
  for (const auto& row : rows) EXPECT_EQ(stackedShares(counts(row.counts), 0), row.shares);
  // The second line leaves pointers 1, 3 and 6 alone, and their counts out of the total.
  EXPECT_EQ(stackedShares(counts({50, 1, 50, 2, 3, 50, 2}), 1),
            (StackedShares{none, 12, none, 37, 75, none, 100}));
  EXPECT_EQ(stackedShares({}, 1), (StackedShares{none, 0, none, 0, 0, none, 0}));
}

TEST(ImageTotal, FitsSixteenBitsOrIsNone) {
  EXPECT_EQ(imageTotal(counts({9, 1, 9, 2, 3, 9, 4})), 10);
  EXPECT_EQ(imageTotal(counts({0, 32767, 0, 0, 0, 0, 0})), 32767);
  EXPECT_EQ(imageTotal(counts({0, 32767, 0, 1, 0, 0, 0})), none);
}

TEST(GetPDevents, ReadsInOrderAndShows) {
  World world;
  world.device.device().setCount(Event::Outage, 258);
  world.device.device().setCount(Event::Surge, 2);
  EXPECT_TRUE(getPDevents(world.main));
  EXPECT_EQ(world.commands(), (std::vector<std::string>{"g>", "g@", "g?", "gA", "gB", "gC", "g_"}));
  EXPECT_GE(Millis(world.line.written().front().at).count(), 20);
  const MeasurementElements& m = world.main.measurement;
  EXPECT_EQ(m.POrecTxt.text(), "258");
  EXPECT_EQ(m.SGrecTxt.text(), "2");
  EXPECT_EQ(m.OLrecTxt.text(), "0");
  EXPECT_EQ(m.recSlide.pointer(1).value, 0);
  EXPECT_EQ(m.recSlide.pointer(2).value, 99);
  EXPECT_EQ(m.recSlide.pointer(7).value, 100);
}

TEST(GetPDevents, OlderFirmwareKeepsTheOverloadsItHeld) {
  World world({.firmware = "1GAZ"});
  world.main.counters.olCount = 3;
  world.device.device().setCount(Event::Surge, 1);
  EXPECT_TRUE(getPDevents(world.main));
  EXPECT_EQ(world.commands().back(), "gC");
  EXPECT_EQ(world.main.measurement.OLrecTxt.text(), "3");
  EXPECT_EQ(world.main.measurement.recSlide.pointer(1).value, 75);
}

TEST(GetPDevents, AFailedCounterIsZeroAndThoseBeforeStay) {
  World world;
  world.main.counters = counts({1, 1, 1, 1, 1, 1, 1});
  world.device.device().setCount(Event::Outage, 7);
  world.device.addFault({.kind = FaultKind::Short, .only = "g?"});
  EXPECT_FALSE(getPDevents(world.main));
  EXPECT_EQ(world.main.counters.poCount, 7);
  EXPECT_EQ(world.main.counters.uvcoCount, 0);
  EXPECT_EQ(world.main.counters.uvreCount, 0);
  EXPECT_EQ(world.main.counters.ovreCount, 1);
  EXPECT_EQ(world.main.measurement.POrecTxt.text(), "0");
  EXPECT_EQ(world.main.exchange.lastFailure, ExchangeFailure::ShortReply);
}

TEST(GetPDevents, StrayBytesAheadOfAReplyAreDropped) {
  World world;
  world.device.device().setCount(Event::Outage, 7);
  world.device.addFault({.kind = FaultKind::Stray});
  EXPECT_TRUE(getPDevents(world.main));
  EXPECT_EQ(world.main.counters.poCount, 7);
}

TEST(ClearCounts, ClearsTheDevice) {
  World first;
  first.device.device().setCount(Event::Surge, 5);
  EXPECT_TRUE(setClrTSdata(first.main));
  EXPECT_EQ(first.device.device().count(Event::Surge), 5u);
  EXPECT_TRUE(setClrPDCounts(first.main));
  EXPECT_EQ(first.device.device().count(Event::Surge), 0u);
  EXPECT_EQ(first.commands(), (std::vector<std::string>{"s>Y", "s=Y"}));
  EXPECT_EQ(Millis(first.line.written()[1].at - first.line.written()[0].at).count(), 50);

  World second({.line = Line::Tessara});
  second.device.device().image.record(ImageEvent::Surge, 10);
  EXPECT_TRUE(setClrPDCounts(second.main));
  second.run(20);
  EXPECT_EQ(second.device.device().image.count(ImageEvent::Surge), 0);
  EXPECT_TRUE(setClrTSdata(second.main));
  second.run(20);
  EXPECT_EQ(second.commands(), (std::vector<std::string>{"z", "z"}));
}

TEST(ClearCounts, WithoutItsOkFails) {
  Script script;
  script.peer.answer("Y", "ok");
  EXPECT_FALSE(setClrPDCounts(script.main));
  script.peer.answer("Y", "..OK..");
  EXPECT_TRUE(setClrPDCounts(script.main));
}

}  // namespace
}  // namespace zephon
