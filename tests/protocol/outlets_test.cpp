#include "protocol/outlets.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::Script;

// What the three buttons show: their values, "!" where one can be pressed, and their texts.
std::string shown(const OutletElements& o) {
  std::string all;
  for (const Button* button : {&o.oOnBtn, &o.oCycBtn, &o.oFltBtn}) {
    all += std::string(button->value() ? "on" : "off") + (button->enabled() ? "! " : " ");
    all += button->onText() + "/" + button->offText() + "; ";
  }
  return all;
}

// What they are to show in the state with this text.
std::string buttons(const std::vector<std::string>& dict, std::size_t key) {
  if (key == 26) return "on! " + dict[26] + "/; off! /" + dict[28] + "; off /; ";
  if (key == 72) return "off! /" + dict[72] + "; off /; off /; ";
  if (key == 73) return "off /" + dict[71] + "; on " + dict[73] + "/; off /; ";
  return "off /" + dict[71] + "; off /; on " + dict[key] + "/; ";
}

TEST(Outlets, EveryReplyHasItsButtons) {
  // 0: the reply is refused and the buttons stay as they were.
  const std::tuple<std::int16_t, const char*, std::size_t> rows[] = {
      {0, "0", 72},    {0, "1Z", 26},  {0, "C", 73},     {0, "G", 74},  {0, "R", 75},
      {0, "S", 76},    {0, "T", 77},   {0, "V", 78},     {0, "", 0},    {0, "X1", 0},
      {0, "c", 0},     {1, "Off", 72}, {1, "On", 26},    {1, "CY", 73}, {1, "NG", 74},
      {1, "xRPx", 75}, {1, "20", 76},  {1, "On Of", 72}, {1, "O", 0},   {1, "TV", 0}};
  for (const auto& [line, reply, key] : rows) {
    Script script(line);
    const std::string before = shown(script.main.outlets);
    script.peer.answer(line == 0 ? "gQ" : "s", reply);
    EXPECT_EQ(readOutlets(script.main), key != 0) << reply;
    EXPECT_EQ(shown(script.main.outlets), key == 0 ? before : buttons(script.main.dict, key)) << reply;
  }
}

}  // namespace
}  // namespace zephon
