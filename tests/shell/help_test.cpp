#include "shell/help.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::World;

TEST(Help, TellsVersionsTheSupportNumberAndTheKeys) {
  World world;
  world.main.link.identified = true;
  world.main.link.firmwareVersion = "1.KD1";
  world.main.link.chipID = "01.A2.FF";
  showHelp(world.main);
  ASSERT_EQ(world.dialogs.shown().size(), 1u);
  const std::string& text = world.dialogs.shown().front().text;
  for (const char* line :
       {"Software Version 4.4\nFirmware Version 1.KD1\nChip ID 01.A2.FF\nSupport +", "\n1. ", "\n23. ",
        "\nCtrl+1  Measure\n", "\nF1  Help\n", "\nCtrl+Q  Quit\n", "\u00A9"})
    EXPECT_NE(text.find(line), std::string::npos) << line << " in " << text;
}

}  // namespace
}  // namespace zephon
