#include "protocol/energy.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::Script;
using testing_support::World;

TEST(Energy, OfTheRegister) {
  const struct {
    std::string bytes;
    const char* text;
  } rows[] = {{std::string("\x01\0\0\0", 4), "232.0000"},   {std::string("\0\0\0\0", 4), "0.0000"},
              {std::string("\x01\x80\0\0", 4), "348.0000"}, {std::string("\0\x80\0\0", 4), "116.0000"},
              {std::string("\0\0\x10\0", 4), "0.0566"},     {std::string("\xFF\0\0\0", 4), "59160.0000"}};
  for (const auto& row : rows) EXPECT_EQ(energyText(energyOf(row.bytes)), row.text);
}

TEST(Cost, ShowsTwoToFourDecimals) {
  const struct {
    const char* rate;
    const char* cost;
  } rows[] = {
      {"", "0.00"},     {"free", "0.00"}, {"0.1", "23.20"}, {"0.15 a unit", "34.80"}, {" 0.12345", "28.6404"},
      {"0,15", "0.00"}, {"-1", "-232.00"}};
  for (const auto& row : rows) EXPECT_EQ(costText(232, rateOf(row.rate)), row.cost) << row.rate;
}

TEST(CurrencySign, KeepsTheDigitAndTellsTheCharacterSet) {
  const struct {
    const char* formatted;
    CurrencySign sign;
  } rows[] = {{"$2.00", {"$2", 0}},
              {"2,00 \xE2\x82\xAC", {"2 \xE2\x82\xAC", 0}},
              {"\xC2\xA3"
               "2.00",
               {"\xC2\xA3"
                "2",
                0}},
              {"2,00 z\xC5\x82", {"2 z\xC5\x82", 238}},
              {"2.00", {"2", 1}},
              {"kr 2,00", {"kr 2", 1}},
              {"\xCB\x86 2", {"\xCB\x86 2", 0}},  // code 136 holds 36
              {"", {"", 1}}};
  for (const auto& row : rows) EXPECT_EQ(currencySign(row.formatted), row.sign) << row.formatted;
}

// A currency with a sign behind the amount, in an old one-byte code page.
struct Pounds : std::moneypunct<char> {
  char do_decimal_point() const override { return ','; }
  std::string do_curr_symbol() const override { return "\xA3"; }
  int do_frac_digits() const override { return 2; }
  pattern do_pos_format() const override { return {{value, space, symbol, none}}; }
};

TEST(FormattedTwo, FollowsTheLocale) {
  EXPECT_EQ(formattedTwo(std::locale::classic()), "2");
  EXPECT_EQ(formattedTwo(std::locale(std::locale::classic(), new Pounds)), "2,00 \xC2\xA3");
}

TEST(CurrencySymbol, SurvivesAnUnknownLocale) {
  World world;
  const char* old = std::getenv("LC_ALL");
  const std::string kept = old ? old : "";
  setenv("LC_ALL", "no_SUCH.locale", 1);
  world.main.measurement.EnCostLbl.setCharacterSet(0);
  EXPECT_EQ(currencySymbol(world.main), "2");
  EXPECT_EQ(world.main.measurement.EnCostLbl.characterSet(), 1);
  old ? setenv("LC_ALL", kept.c_str(), 1) : unsetenv("LC_ALL");
}

TEST(GetEU, ShowsTotalDateAndCostOnlyWhileMeasuring) {
  World world;
  Main& main = world.main;
  world.device.hold({.watts = 0.0});
  world.device.device().setEnergy(232);
  main.measurement.EnRateTxt.setText("0.5");
  world.stay(Page::Chart);
  EXPECT_TRUE(getEU(main));
  EXPECT_NEAR(main.energy.energyKWh, 232, 0.001);
  EXPECT_EQ(main.measurement.EUtxt.text(), "");
  world.stay(Page::Measurement);
  main.measurement.EUtxt.setStale(true);
  EXPECT_TRUE(getEU(main));
  EXPECT_EQ(main.measurement.EUtxt.text(), "232.0000");
  EXPECT_FALSE(main.measurement.EUtxt.stale());
  EXPECT_EQ(main.frame.EUlbl.caption(), main.dict[90] + ": 09:30:00 03/05/2024");
  const std::string cost = main.measurement.EnCostLbl.caption();
  EXPECT_EQ(cost.substr(cost.rfind(' ')), " 116.00");
}

TEST(GetEU, AShortReplyFailsAndKeepsTheTotal) {
  Script script;
  script.main.energy.energyKWh = 5;
  script.peer.answer("g9", std::string(22, '\1'));
  EXPECT_FALSE(getEU(script.main));
  EXPECT_EQ(script.main.energy.energyKWh, 5);
  EXPECT_DOUBLE_EQ(script.nowMs(), 100);
}

TEST(SetClrEU, ClearsTheDevice) {
  World world;
  world.device.hold({.watts = 0.0});
  world.device.device().setEnergy(100);
  EXPECT_TRUE(setClrEU(world.main));
  EXPECT_EQ(world.device.device().kilowattHours(), 0);
  EXPECT_EQ(world.writes(), (std::vector<std::string>{"s?", "Y"}));
  world.device.addFault({.kind = simulator::FaultKind::Refuse});
  EXPECT_FALSE(setClrEU(world.main));
}

}  // namespace
}  // namespace zephon
