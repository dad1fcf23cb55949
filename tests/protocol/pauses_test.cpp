#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "protocol/clock.h"
#include "protocol/counters.h"
#include "protocol/encodings.h"
#include "protocol/energy.h"
#include "protocol/identity.h"
#include "protocol/measurement.h"
#include "protocol/options.h"
#include "protocol/outlets.h"
#include "protocol/pic_import.h"
#include "protocol/thresholds.h"
#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::World;

std::string told(const std::string& bytes) {
  std::string text;
  for (const char c : bytes) text += c > ' ' && c < 0x7F ? std::string(1, c) : "\\" + ascii2hex({&c, 1});
  return text;
}

// What goes out and after how many milliseconds; samples one after the other count as one.
std::string dialogue(int modelLine, Page page, const std::function<void(Main&)>& what) {
  simulator::Options options = World::quiet();
  options.paced = false;
  const auto line = modelLine == 1 ? simulator::Line::Tessara : simulator::Line::Orvantis;
  World world(simulator::makeProfile(line, 120), options);
  world.device.hold({.volts = 120});
  world.stay(page);
  what(world.main);
  std::string text, last;
  for (const MemoryLine::Written& one : world.line.written()) {
    if (one.bytes != last || modelLine == 0)
      text += told(one.bytes) + "@" + std::to_string(std::lround(Millis(one.at).count())) + " ";
    last = one.bytes;
  }
  return text + "end@" + std::to_string(std::lround(world.nowMs()));
}

// The device needs its moments between the bytes of a write, and to answer: the pauses of every dialogue.
TEST(Pauses, AreThoseThatTheDeviceNeeds) {
  const std::tuple<const char*, int, Page, std::function<void(Main&)>, const char*> rows[] = {
      {"limits", 0, Page::Setup, [](Main& m) { setThresholds(m); },
       "s7@0 \\96@50 s8@100 \\87@150 s9@200 \\82@250 s4@300 P@350 s5@400 d@450 s6@500 i@550 sB@600 \\19@650 "
       "end@650"},
      {"limits", 1, Page::Setup, [](Main& m) { setThresholds(m); }, "a@0 0@20 b@20 0@40 end@40"},
      {"name", 0, Page::Setup,
       [](Main& m) {
         m.setup.userIDtxt.setText("BOOTH 4");
         setUserID(m);
       },
       "s:@0 \\20@70 \\20@90 \\20@110 B@130 O@150 O@170 T@190 H@210 \\20@230 4@250 end@250"},
      {"clock", 0, Page::Setup, [](Main& m) { setTime(m); },
       "s;@0 \\05@100 \\00@110 \\00@120 \\12@130 0@140 \\99@150 \\06@160 end@160"},
      {"clear counters", 0, Page::Measurement, [](Main& m) { setClrPDCounts(m); }, "s=@0 Y@50 end@150"},
      {"clear counters", 1, Page::Measurement, [](Main& m) { setClrPDCounts(m); }, "z@0 end@0"},
      {"clear energy", 0, Page::Measurement, [](Main& m) { setClrEU(m); }, "s?@0 Y@50 end@150"},
      {"clear events", 0, Page::Data, [](Main& m) { setClrTSdata(m); }, "s>@0 Y@50 end@150"},
      {"clear events", 1, Page::Data, [](Main& m) { setClrTSdata(m); }, "z@0 end@0"},
      {"on", 0, Page::Outlets, [](Main& m) { setOutletsOn(m); }, "s2@0 end@200"},
      {"off", 0, Page::Outlets, [](Main& m) { setOutletsOff(m); }, "s1@0 end@200"},
      {"cycle", 0, Page::Outlets, [](Main& m) { setOutletsCyc(m); }, "s3@0 end@200"},
      {"on", 1, Page::Outlets, [](Main& m) { setOutletsOn(m); }, "O@0 end@0"},
      {"off", 1, Page::Outlets, [](Main& m) { setOutletsOff(m); }, "o@0 end@40"},
      {"cycle", 1, Page::Outlets, [](Main& m) { setOutletsCyc(m); }, "c@0 end@40"},
      {"state", 1, Page::Outlets, [](Main& m) { getOutletsTR(m); }, "s@50 end@50"},
      {"auto transmit", 0, Page::Setup, [](Main& m) { setEnableAutoTX(m, true); }, "sC@0 Y@100 end@200"},
      {"auto transmit", 1, Page::Setup, [](Main& m) { setEnableAutoTX(m, true); }, "k@0 end@0"},
      {"none", 1, Page::Setup, [](Main& m) { setEnableAutoTX(m, false); }, "l@0 end@0"},
      {"wye", 1, Page::Setup, [](Main& m) { setYorCT(m, true); }, "n1@0 end@100"},
      {"centre tap", 1, Page::Setup, [](Main& m) { setYorCT(m, false); }, "n2@0 end@100"},
      {"image", 1, Page::Setup, [](Main& m) { importPIC(m); }, "+@100 t@120 end@120"},
      {"pass", 0, Page::Measurement, [](Main& m) { getMeasurements(m); },
       "g4@0 g6@10 g8@20 g5@30 g;@40 g:@50 g7@60 g>@80 g@@80 g?@80 gA@80 gB@80 gC@80 g_@80 end@80"},
      {"pass", 1, Page::Measurement, [](Main& m) { getMeasurements(m); },
       "+@200 t@220 s@320 v@420 p@470 end@520"}};
  for (const auto& [name, modelLine, page, what, expected] : rows)
    EXPECT_EQ(dialogue(modelLine, page, what), expected) << name;
}

}  // namespace
}  // namespace zephon
