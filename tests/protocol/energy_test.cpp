#include "protocol/energy.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::World;

TEST(Energy, TextsOfTotalAndCost) {
  EXPECT_EQ(energyText(energyOf(std::string("\x01\x80\0\0", 4))), "348.0000");
  EXPECT_EQ(energyText(energyOf(std::string("\0\0\x10\0", 4))), "0.0566");
  const char* rows[][2] = {
      {"", "0.00"}, {"0,15", "0.00"}, {"0.15 each", "34.80"}, {" 0.12345", "28.6404"}, {"-1", "-232.00"}};
  for (const auto& row : rows) EXPECT_EQ(costText(232, rateOf(row[0])), row[1]) << row[0];
}

TEST(CurrencySign, KeepsTheDigitAndTellsTheCharacterSet) {
  const std::pair<const char*, CurrencySign> rows[] = {
      {"$2.00", {"$2", 0}},
      {"2,00 \u20AC", {"2 \u20AC", 0}},
      {"2,00 z\u0142", {"2 z\u0142", 238}},
      {"kr 2,00", {"kr 2", 1}},
      {"\u02C6 2", {"\u02C6 2", 0}}};  // the last one's code 136 holds 36
  for (const auto& [formatted, sign] : rows) EXPECT_EQ(currencySign(formatted), sign) << formatted;
}

// A currency with its sign behind the amount, in an old one-byte code page.
struct Pounds : std::moneypunct<char> {
  char do_decimal_point() const override { return ','; }
  std::string do_curr_symbol() const override { return "\xA3"; }
  int do_frac_digits() const override { return 2; }
  pattern do_pos_format() const override { return {{value, space, symbol, none}}; }
};

TEST(CurrencySign, FollowsTheLocaleAndSurvivesAnUnknownOne) {
  EXPECT_EQ(formattedTwo(std::locale(std::locale::classic(), new Pounds)), "2,00 \u00A3");
  World world;
  setenv("LC_ALL", "no_SUCH.locale", 1);
  EXPECT_EQ(currencySymbol(world.main), "2");
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
