#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

TEST(Orvantis, TellsReadingsAsSharesOfFullScale) {
  // Volts, amps, watts, neutral-ground volts, hertz, power factor and its letter, crest factor.
  const Held ordinary{120.0, 10.0, 1200.0, 1.5, 60.0, 0.95, 'L', 1.4};
  const Held extreme{600.0, 0.0, -5.0, 65535.99999, 0.0, -0.5, 'C', 1.0};
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

TEST(Orvantis, RefusesWhatItCannotStore) {
  BenchLine line({}, quiet());
  for (const std::string write : {"sCN", "sDN", "sEy", "sFX", "s=N", "s?\n", "s>N", "s@N"})
    EXPECT_EQ(line.ask(write, 10), "") << hex(write);
  for (const std::string clock :
       {"\x24\x59\x58\x12\x31\x18\x01", "\x23\x59\x58\x13\x31\x18\x01", "\x23\x59\x58\x02\x30\x18\x01",
        "\x23\x5A\x58\x12\x31\x18\x01", "\x23\x59\x58\x12\x31\x18\x07"})
    EXPECT_EQ(line.ask("s;" + clock, 10), "") << hex(clock);
  EXPECT_EQ(line.ask("gR", 10).substr(8), " 03/05/2024");
  EXPECT_EQ(line.device.noise(), "");
}

TEST(Orvantis, TellsAndClearsCounts) {
  const std::string commands[] = {"g>", "g@", "g?", "gA", "gB", "gC", "g_"};
  const Event events[] = {Event::Outage,       Event::UnderShutdown, Event::UnderRecord, Event::OverRecord,
                          Event::OverShutdown, Event::Surge,         Event::Overload};
  BenchLine line({}, quiet());
  for (std::uint32_t i = 0; i < 7; ++i) line.device.device().setCount(events[i], 0x0100 + i);
  for (std::uint32_t i = 0; i < 7; ++i) EXPECT_EQ(hex(line.ask(commands[i])), "010" + std::to_string(i));
  EXPECT_EQ(line.ask("s=Y"), "OK");
  for (const std::string& command : commands) EXPECT_EQ(hex(line.ask(command)), "0000") << command;
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

}  // namespace
}  // namespace zephon::simulator
