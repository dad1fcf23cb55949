#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

TEST(Orvantis, TellsItsIdentity) {
  BenchLine line(makeProfile(Line::Orvantis, 240), quiet());
  EXPECT_EQ(line.ask("gN"), "1KD1");
  EXPECT_EQ(line.device.profile().version(), "1.KD1");
  EXPECT_EQ(hex(line.ask("gO")), "4c2e5a2e17");
  EXPECT_EQ(line.ask("gP"), "ZEPHON SIM");
  EXPECT_EQ(hex(line.ask("gV")), "f0");
  EXPECT_EQ(line.ask("gR", 10).substr(0, 6), "14:30:");
}

TEST(Orvantis, TellsReadingsAsSharesOfFullScale) {
  const Held ordinary{.volts = 120.0,
                      .amps = 10.0,
                      .watts = 1200.0,
                      .neutralGroundVolts = 1.5,
                      .hertz = 60.0,
                      .powerFactor = 0.95,
                      .reactive = 'L',
                      .crestFactor = 1.4};
  const Held extreme{.volts = 600.0,
                     .amps = 0.0,
                     .watts = -5.0,
                     .neutralGroundVolts = 65535.99999,
                     .hertz = 0.0,
                     .powerFactor = -0.5,
                     .reactive = 'C',
                     .crestFactor = 1.0};
  struct {
    std::string command, ordinary, extreme;
  } const rows[] = {
      {"g4", "3c00", "ffff"},     {"g6", "0a00", "0000"}, {"g8", "012c", "0000"},
      {"g5", "000180", "ffffff"}, {"g;", "01ec", "0000"}, {"g7", "2a00", "9600"},  // peak volts times 64
      {"g:", "7a4c", "bf43"},  // doubled signed share, negative as ones' complement; the letter
  };
  BenchLine line({}, quiet());
  for (const auto& row : rows) {
    line.device.hold(ordinary);
    EXPECT_EQ(hex(line.ask(row.command)), row.ordinary) << row.command;
    line.device.hold(extreme);
    EXPECT_EQ(hex(line.ask(row.command)), row.extreme) << row.command;
  }
  line.device.hold({.powerFactor = 1.0, .reactive = ' '});
  EXPECT_EQ(hex(line.ask("g:")), "7f20");
}

TEST(Orvantis, HasTheFactoryLimitsOfItsRating) {
  struct {
    int rating;
    std::string limits;
  } const rows[] = {{120, "5064698c919619"}, {240, "505a5f82878c19"}};
  for (const auto& row : rows) {
    BenchLine line(makeProfile(Line::Orvantis, row.rating), quiet());
    EXPECT_EQ(hex(line.ask("gHgIgJgMgLgKgZ")), row.limits);
  }
}

TEST(Orvantis, StoresEachWriteAndReadsItBack) {
  using namespace std::string_literals;
  struct {
    std::string write, read, reply;
  } const rows[] = {
      {"s4\x51", "gH", "\x51"}, {"s5\x52", "gI", "\x52"}, {"s6\x53", "gJ", "\x53"},
      {"s9\x8a", "gM", "\x8a"}, {"s8\x8b", "gL", "\x8b"}, {"s7\x8c", "gK", "\x8c"},
      {"sB\x1e", "gZ", "\x1e"}, {"s4\0"s, "gH", "\0"s},   {"s:   Mr Gg s", "gP", "   Mr Gg s"},
      {"s1", "gQ", "0"},        {"s2", "gQ", "1"},        {"s3", "gQ", "C"},
      {"sCY", "g^", "Y"},       {"sDY", "g^", "N"},       {"sEY", "ga", "Y"},
      {"sFN", "gb", "N"},       {"sFY", "gb", "Y"},       {"sHY", "gg", "Y"},
      {"sIY", "gg", "N"},       {"sJY", "gh", "Y"},       {"sJN", "gh", "N"},
  };
  BenchLine line({}, quiet());
  for (const auto& row : rows) {
    EXPECT_EQ(line.ask(row.write, 100), "OK") << row.write;
    EXPECT_EQ(line.device.heard().back().command + line.device.heard().back().data, row.write);
    EXPECT_EQ(line.ask(row.read, 100), row.reply) << row.write;
  }
  EXPECT_EQ(line.device.noise(), "");
}

TEST(Orvantis, RefusesWhatItCannotStore) {
  const std::string refused[] = {"sCN",
                                 "sDN",
                                 "sEy",
                                 "sFX",
                                 "s=N",
                                 "s?\n",
                                 "s>N",
                                 "s@N",
                                 "s;\x24\x59\x58\x12\x31\x18\x01",
                                 "s;\x23\x59\x58\x13\x31\x18\x01",
                                 "s;\x23\x59\x58\x02\x30\x18\x01",
                                 "s;\x23\x5A\x58\x12\x31\x18\x01",
                                 "s;\x23\x59\x58\x12\x31\x18\x07"};
  BenchLine line({}, quiet());
  for (const std::string& write : refused) EXPECT_EQ(line.ask(write, 10), "") << hex(write);
  EXPECT_EQ(line.ask("gR", 10).substr(8), " 03/05/2024");
  EXPECT_EQ(line.device.noise(), "");
}

TEST(Orvantis, ClockRunsFromWhereItIsSet) {
  BenchLine line({}, quiet());
  EXPECT_EQ(line.ask("s;\x23\x59\x58\x12\x31\x18\x01", 10), "OK");
  EXPECT_EQ(line.ask("gR", 10), "23:59:58 12/31/2018");
  line.idle(2);
  EXPECT_EQ(line.ask("gR", 10), "00:00:00 01/01/2019");
}

TEST(Orvantis, AddsUpEnergyFromItsDate) {
  BenchLine line({}, quiet());
  line.device.hold({.watts = 1000.0});
  line.device.device().setEnergy(348.0);
  EXPECT_EQ(hex(line.ask("g9", 10).substr(0, 4)), "01800000");
  EXPECT_EQ(line.ask("s?Y", 10), "OK");
  line.idle(3600);
  const std::string reply = line.ask("g9", 10);
  ASSERT_EQ(reply.size(), 23u);
  EXPECT_EQ(hex(reply.substr(0, 4)), "00011a7c");  // 1 kWh of 232
  EXPECT_EQ(reply.substr(4), "14:30:00 03/05/2024");
}

TEST(Orvantis, TellsAndClearsCounts) {
  struct {
    Event event;
    std::string command;
  } const rows[] = {{Event::Overload, "g_"},    {Event::Outage, "g>"},     {Event::UnderShutdown, "g@"},
                    {Event::UnderRecord, "g?"}, {Event::OverRecord, "gA"}, {Event::OverShutdown, "gB"},
                    {Event::Surge, "gC"}};
  BenchLine line({}, quiet());
  std::uint32_t count = 0x0102;
  for (const auto& row : rows) line.device.device().setCount(row.event, count++);
  count = 0x0102;
  for (const auto& row : rows) {
    EXPECT_EQ(line.ask(row.command), (std::string{'\x01', static_cast<char>(count & 0xFF)})) << row.command;
    ++count;
  }
  EXPECT_EQ(line.ask("s=Y"), "OK");
  for (const auto& row : rows) EXPECT_EQ(hex(line.ask(row.command)), "0000") << row.command;
}

TEST(Orvantis, OlderFirmwareIsSilentToNewerCommands) {
  struct {
    std::string command, lacking, having;
  } const rows[] = {{"g_", "1GAZ", "1GB0"}, {"ga", "1GAZ", "1GB0"}, {"gb", "1IBQ", "1IBR"},
                    {"gg", "1JB2", "1JB3"}, {"gh", "1KD0", "1KD1"}, {"sJY", "1JD1", "1KD1"}};
  for (const auto& row : rows) {
    Profile profile;
    profile.firmware = row.lacking;
    BenchLine older(profile, quiet());
    EXPECT_EQ(older.ask(row.command), "") << row.command;
    EXPECT_EQ(older.ask("gN"), row.lacking) << row.command;
    profile.firmware = row.having;
    BenchLine newer(profile, quiet());
    EXPECT_NE(newer.ask(row.command), "") << row.command;
  }
}

TEST(Orvantis, KeepsBoundedLogs) {
  Options options = quiet();
  options.heardKept = 10;
  options.sentKept = 20;
  BenchLine line({}, options);
  for (int i = 0; i < 50; ++i) line.ask("gN", 5);
  line.ask("gP", 5);
  EXPECT_LE(line.device.heard().size(), 10u);
  EXPECT_EQ(line.device.heard().back().command, "gP");
  EXPECT_LE(line.device.sent().size(), 20u);
  EXPECT_TRUE(line.device.sent().ends_with("ZEPHON SIM"));
}

}  // namespace
}  // namespace zephon::simulator
