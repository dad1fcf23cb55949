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
  // A reply, and what the buttons show then; nothing where it is refused and they stay as they were.
  using Row = std::tuple<std::int16_t, const char*, std::string>;
  for (const auto& [line, reply, buttons] : {Row{0, "0", kOff},
                                             Row{0, "1Z", kOn},
                                             Row{0, "C", kCycling},
                                             Row{0, "G", faultShown(74)},
                                             Row{0, "R", faultShown(75)},
                                             Row{0, "S", faultShown(76)},
                                             Row{0, "T", faultShown(77)},
                                             Row{0, "V", faultShown(78)},
                                             Row{0, "", ""},
                                             Row{0, "X1", ""},
                                             Row{0, "c", ""},
                                             Row{1, "Off", kOff},
                                             Row{1, "On", kOn},
                                             Row{1, "CY", kCycling},
                                             Row{1, "NG", faultShown(74)},
                                             Row{1, "xRPx", faultShown(75)},
                                             Row{1, "20", faultShown(76)},
                                             Row{1, "On Of", kOff},
                                             Row{1, "O", ""},
                                             Row{1, "TV", ""}}) {
    Script script(line);
    const std::string before = shown(script.main);
    script.peer.answer(line == 0 ? "gQ" : "s", reply);
    EXPECT_EQ(readOutlets(script.main), !buttons.empty()) << reply;
    EXPECT_EQ(shown(script.main), buttons.empty() ? before : buttons) << reply;
  }
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
