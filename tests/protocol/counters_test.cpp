#include "protocol/counters.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "protocol/energy.h"
#include "support/bench.h"

// What the device counts: disturbances and energy.

namespace zephon {
namespace {

using simulator::Event;
using simulator::FaultKind;
using testing_support::World;
using Texts = std::vector<std::string>;

constexpr auto none = std::nullopt;

// In the order of the bar's pointers.
Counters counts(const std::array<std::int32_t, 7>& inOrder) {
  Counters c;
  for (std::size_t i = 0; i < inOrder.size(); ++i) c.*kCountClasses[i].count = inOrder[i];
  return c;
}

TEST(StackedShares, RoundEachShareByItself) {
  EXPECT_EQ(stackedShares(counts({1, 1, 1, 1, 1, 1, 0}), 0), (StackedShares{17, 34, 51, 68, 85, 102, 102}));
  // 12.5 and 37.5: halves to even. The second line leaves pointers 1, 3 and 6 alone, and their counts out of
  // the total.
  EXPECT_EQ(stackedShares(counts({50, 1, 50, 2, 3, 50, 2}), 1),
            (StackedShares{none, 12, none, 37, 75, none, 100}));
  EXPECT_EQ(imageTotal(counts({9, 32760, 9, 2, 3, 9, 2})), 32767);
  EXPECT_EQ(imageTotal(counts({0, 32767, 0, 1, 0, 0, 0})), none);
}

TEST(GetPDevents, ReadsInOrderAndShows) {
  World world;
  world.device.device().setCount(Event::Outage, 258);
  world.device.device().setCount(Event::Surge, 2);
  world.device.addFault({.kind = FaultKind::Stray});  // the last bytes of a reply count
  EXPECT_TRUE(getPDevents(world.main));
  EXPECT_EQ(world.commands(), (Texts{"g>", "g@", "g?", "gA", "gB", "gC", "g_"}));
  const MeasurementElements& m = world.main.measurement;
  EXPECT_EQ((Texts{m.POrecTxt.text(), m.SGrecTxt.text(), m.OLrecTxt.text()}), (Texts{"258", "2", "0"}));
  EXPECT_EQ(m.recSlide.pointer(2).value, 99);
  // Older firmware counts no overloads: what was held stays, and counts in the total.
  world.main.link.firmwareVersion = "1.GAZ";
  world.main.counters.olCount = 260;
  EXPECT_TRUE(getPDevents(world.main));
  EXPECT_EQ(world.commands().back(), "gC");
  EXPECT_EQ(m.recSlide.pointer(1).value, 50);
}

TEST(GetPDevents, AFailedCounterIsZeroAndThoseBeforeStay) {
  World world;
  world.main.counters = counts({1, 1, 1, 1, 1, 1, 1});
  world.device.device().setCount(Event::Outage, 7);
  world.device.addFault({.kind = FaultKind::Short, .only = "g?"});
  EXPECT_FALSE(getPDevents(world.main));
  EXPECT_EQ(stackedShares(world.main.counters, 0), stackedShares(counts({1, 7, 0, 0, 1, 1, 1}), 0));
}

TEST(Energy, TextsOfTotalAndCost) {
  EXPECT_EQ(energyText(energyOf(std::string("\x01\x80\0\0", 4))), "348.0000");
  EXPECT_EQ(energyText(energyOf(std::string("\0\0\x10\0", 4))), "0.0566");
  const char* rows[][2] = {
      {"", "0.00"}, {"0,15", "0.00"}, {"0.15 each", "34.80"}, {" 0.12345", "28.6404"}, {"-1", "-232.00"}};
  for (const auto& row : rows) EXPECT_EQ(costText(232, rateOf(row[0])), row[1]) << row[0];
}

TEST(CurrencySign, SurvivesAnUnknownLocale) {
  World world;
  setenv("LC_ALL", "no_SUCH.locale", 1);
  EXPECT_EQ(currencySymbol(world.main), "2") << "the digit is part of the sign";
  unsetenv("LC_ALL");
}

TEST(GetEU, ShowsTotalDateAndCostOnlyWhileMeasuring) {
  World world;
  Main& main = world.main;
  world.device.hold({.watts = 0.0});
  world.device.device().setEnergy(232);
  main.measurement.EnRateTxt.setText("0.5");
  world.stay(Page::Chart);
  EXPECT_TRUE(getEU(main));
  EXPECT_EQ(main.measurement.EUtxt.text(), "");
  world.stay(Page::Measurement);
  EXPECT_TRUE(getEU(main));
  EXPECT_EQ(main.measurement.EUtxt.text(), "232.0000");
  EXPECT_EQ(main.frame.EUlbl.caption(), "Energy Usage Since: 09:30:00 03/05/2024");
  EXPECT_TRUE(main.measurement.EnCostLbl.caption().ends_with(" 116.00"));
  world.device.addFault({.kind = simulator::FaultKind::Short, .only = "g9"});
  EXPECT_FALSE(getEU(main));
}

}  // namespace
}  // namespace zephon
