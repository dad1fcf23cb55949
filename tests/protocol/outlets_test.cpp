#include "protocol/outlets.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::Script;

// What the three buttons show: their values, "!" where one can be pressed, and their texts by key.
std::string shown(const Main& main) {
  const OutletElements& o = main.outlets;
  std::string all;
  for (const Button* button : {&o.oOnBtn, &o.oCycBtn, &o.oFltBtn}) {
    all += button->value() ? "on" : "off";
    if (button->enabled()) all += '!';
    for (const std::string& text : {button->onText(), button->offText()}) {
      const auto key = std::find(main.dict.begin(), main.dict.end(), text) - main.dict.begin();
      all += text.empty() ? " -" : ' ' + std::to_string(key);
    }
    all += "; ";
  }
  return all;
}

std::string faultShown(int key) {
  return "off - 71; off - -; on " + std::to_string(key) + " -; ";
}
const std::string kOff = "off! - 72; off - -; off - -; ";
const std::string kOn = "on! 26 -; off! - 28; off - -; ";
const std::string kCycling = "off - 71; on 73 -; off - -; ";

TEST(Outlets, EveryReplyHasItsButtons) {
  const struct {
    std::int16_t line;
    const char* reply;
    std::string shown;  // empty: refused, and the buttons stay as they were
  } cases[] = {
      {0, "0", kOff},
      {0, "1Z", kOn},
      {0, "C", kCycling},
      {0, "G", faultShown(74)},
      {0, "R", faultShown(75)},
      {0, "S", faultShown(76)},
      {0, "T", faultShown(77)},
      {0, "V", faultShown(78)},
      {1, "Off", kOff},
      {1, "On", kOn},
      {1, "CY", kCycling},
      {1, "NG", faultShown(74)},
      {1, "xRPx", faultShown(75)},
      {1, "20", faultShown(76)},
      {1, "On Of", kOff},
      {0, "", ""},
      {0, "X1", ""},
      {0, "c", ""},
      {1, "O", ""},
      {1, "TV", ""},
  };
  for (const auto& c : cases) {
    Script script(c.line);
    const std::string before = shown(script.main);
    script.peer.answer(c.line == 0 ? "gQ" : "s", c.reply);
    EXPECT_EQ(readOutlets(script.main), !c.shown.empty()) << c.reply;
    EXPECT_EQ(shown(script.main), c.shown.empty() ? before : c.shown) << c.reply;
  }
}

TEST(Outlets, AnArmedTextStaysWhileTheOutletsAreOn) {
  Script script;
  script.main.outlets.oOnBtn.setOnText(script.main.dict[27]);
  script.main.outlets.oCycBtn.setOffText(script.main.dict[29]);
  for (const char* reply : {"1", "0", "1"}) script.peer.answer("gQ", reply);
  ASSERT_TRUE(getOutlets(script.main));
  EXPECT_EQ(shown(script.main), "on! 27 -; off! - 29; off - -; ");
  ASSERT_TRUE(getOutlets(script.main) && getOutlets(script.main));
  EXPECT_EQ(shown(script.main), kOn);
}

TEST(Outlets, OnlyTheFirstLineConfirms) {
  for (const bool first : {true, false}) {
    Script silent(first ? 0 : 1);
    for (const auto set : {setOutletsOff, setOutletsOn, setOutletsCyc}) EXPECT_EQ(set(silent.main), !first);
    EXPECT_EQ(silent.line.writtenBytes(), first ? "s1s2s3" : "oOc");
  }
}

}  // namespace
}  // namespace zephon
