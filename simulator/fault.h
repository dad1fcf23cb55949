#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/command_parser.h"

namespace zephon::simulator {

enum class FaultKind {
  Silent,   // the command is not heard: nothing happens, nothing is said
  Short,    // the last `amount` bytes of the reply are missing
  Stray,    // `amount` stray bytes come ahead of the reply, or behind its first `at` bytes
  Late,     // the reply starts `amount` milliseconds late
  Refuse,   // a write changes nothing, and has no "OK" or a wrong echo
  Cut,      // `amount` bytes of the reply come, then the line is dead until it is restored
  Garbage,  // every byte of the reply is another one
  Doubled,  // every byte of the reply comes twice
  Stall,    // behind its first `at` bytes the reply pauses for `amount` milliseconds; 0: the rest never comes
  Corrupt,  // `amount` bytes of the reply from byte `at` on are others
};

// Something that goes wrong. A command uses up one of `commands` only if the fault strikes it.
struct Fault {
  static constexpr double kForEver = std::numeric_limits<double>::infinity();
  static constexpr int kEvery = std::numeric_limits<int>::max();
  static constexpr int kOwnAmount = -1;  // Short 1, Stray 3, Late 150, Cut 1, Stall 1000, Corrupt 1
  static constexpr int kOwnPlace = -1;   // Stray 0, Stall in the middle, Corrupt spread over the whole reply

  FaultKind kind = FaultKind::Silent;
  int amount = kOwnAmount;
  int at = kOwnPlace;
  std::string only = {};         // the command that it strikes, "g4"; empty: all
  int commands = kEvery;         // how many
  double afterSeconds = 0;       // from its setting to its start
  double forSeconds = kForEver;  // from its start to its end
};

// Reads "KIND" or "KIND:NAME=VALUE,...": KIND is silent, short, stray, late, refuse, cut, garbage, doubled,
// stall or corrupt; NAME is amount, at, only, count (commands), after or for (seconds). Nothing for any other
// text.
std::optional<Fault> parseFault(std::string_view text);

// The faults that are set.
class FaultList {
 public:
  void add(const Fault& fault, Instant now);
  void clear() { set_.clear(); }

  // Those that strike a command heard now, in the order they were set, with their own amounts filled in.
  std::vector<Fault> strike(const Heard& heard);

 private:
  struct Set {
    Fault fault;
    Instant from, until;
  };
  std::vector<Set> set_;
};

// A reply after the faults: when it starts and what comes.
struct Spoken {
  std::string bytes;
  double lateMs = 0;
  std::size_t stallAt = 0;  // behind so many bytes comes the pause
  double stallMs = 0;
  bool cut = false;  // the line is dead after the bytes
};

bool strikes(const std::vector<Fault>& faults, FaultKind kind);

// What the faults make of a reply, one after the other. Silent and Refuse do nothing here.
Spoken distort(std::string reply, const std::vector<Fault>& faults);

}  // namespace zephon::simulator
