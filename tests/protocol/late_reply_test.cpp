#include <gtest/gtest.h>

#include <cmath>

#include "protocol/measurement.h"
#include "support/bench.h"

namespace zephon {
namespace {

using simulator::Fault;
using simulator::FaultKind;
using testing_support::World;

// However late a reply comes, and however often, it never stands as another quantity's value. 0 is not read
// yet.
bool isHeld(float read, double held) {
  return read == 0 || std::abs(read - held) < held / 100;
}

TEST(LateReplies, NeverPassForAnotherQuantity) {
  for (const char* command : {"g4", "g5", "g6", "g8", "g;"}) {
    for (int late = 95; late <= 450; late += 15) {
      for (int count = 1; count <= 5; ++count) {
        World world;
        world.device.hold({.volts = 118, .amps = 5, .watts = 500});
        world.stay(Page::Measurement);
        world.device.addFault({.kind = FaultKind::Late, .amount = late, .only = command, .commands = count});
        for (int pass = 0; pass < 3; ++pass) getMeasurements(world.main);
        SCOPED_TRACE(command + (" late by " + std::to_string(late)) + " times " + std::to_string(count));
        const Readings& read = world.main.readings;
        EXPECT_TRUE(isHeld(read.lastVln, 118) && isHeld(read.lastI, 5) && isHeld(read.lastP, 500))
            << read.lastVln << " V " << read.lastI << " A " << read.lastP << " W";
        EXPECT_TRUE(late > 100 || read.lastP > 0);
      }
    }
  }
}

}  // namespace
}  // namespace zephon
