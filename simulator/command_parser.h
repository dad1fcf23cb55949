#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/event_loop.h"
#include "simulator/command.h"

namespace zephon::simulator {

// A command as it was heard.
struct Heard {
  Instant at{0};        // when its last byte had arrived
  std::string command;  // the characters that call it
  std::string data;     // the bytes that followed
};

// Cuts what comes over the line into commands. Nothing frames a command: the parser knows from its table
// where each one ends. Bytes that start none are noise, and so is half a command after a second of quiet.
class CommandParser {
 public:
  explicit CommandParser(std::vector<Command> known) : known_(std::move(known)) {}

  // Takes one byte. The row of the table that it completes, if it does; heard() is then that command.
  const Command* take(char byte, Instant at);
  const Heard& heard() const { return heard_; }

  // Forgets half a command. What has been dropped since the last call is told by takeNoise().
  void reset();
  std::string takeNoise() { return std::exchange(noise_, {}); }

 private:
  const Command* called() const;
  bool couldCall() const;

  std::vector<Command> known_;
  std::string pending_;
  Instant lastByte_{0};
  Heard heard_;
  std::string noise_;
};

}  // namespace zephon::simulator
