#include "protocol/pic_image.h"

#include <gtest/gtest.h>

#include "protocol/pd_rotation.h"
#include "protocol/pic_import.h"
#include "support/bench.h"

// The second line's memory: what its bytes mean, and its import.

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::ImageEvent;
using testing_support::World;

PicImage imageWith(std::initializer_list<std::pair<std::size_t, const char*>> bytes) {
  PicImage image;
  image.fill("00");
  for (const auto& [index, digits] : bytes) image[index] = digits;
  return image;
}

TEST(PicImage, CharactersToBytes) {
  simulator::MemoryImage device({0x48, 0x81});
  for (int i = 0; i < 254; ++i) device.poke(i, static_cast<std::uint8_t>(i));
  const std::string whole = device.dump();
  const auto image = decodeImage(whole);
  ASSERT_TRUE(image);
  for (std::size_t i = 0; i < 256; ++i) EXPECT_EQ(imageByte(*image, i), device.at(static_cast<int>(i))) << i;
  EXPECT_FALSE(decodeImage(whole.substr(2, 509)));   // one element short
  EXPECT_FALSE(decodeImage(whole.substr(1) + "0"));  // out of step: the first is empty
  EXPECT_FALSE(decodeImage("0.." + whole));          // a separator for a byte
}

TEST(PicImage, CountersAreJoinedWithoutLeadingZeros) {
  EXPECT_EQ(imageCounts(imageWith({{242, "01"}, {241, "05"}})).uvreCount, 15);
  EXPECT_EQ(imageCounts(imageWith({{249, "12"}, {248, "34"}, {247, "56"}})).poCount, 123456);
  EXPECT_EQ(imageCounts(imageWith({{251, "1A"}, {250, "03"}})).sgCount, 13);
}

TEST(PicImage, Records) {
  std::vector<std::string> dict(120);
  for (std::size_t key = 59; key < 66; ++key) dict[key] = std::to_string(key);
  // The row and its four bytes; text, days, hours, minutes, seconds.
  const std::tuple<std::size_t, std::array<const char*, 4>, std::string> cases[] = {
      {59, {"00", "00", "59", "00"}, "61 0 19 0 0"}, {58, {"1A", "A1", "FF", "05"}, "59 5 3 0 1"}};
  for (const auto& [row, bytes, text] : cases) {
    PicImage image = imageWith({});
    for (std::size_t i = 0; i < bytes.size(); ++i) image[1 + 4 * row + i] = bytes[i];
    std::string got;
    const PdEvent e = imageEvent(image, row, dict);
    for (const int part : {e.days, e.hours, e.minutes, e.seconds}) got += ' ' + std::to_string(part);
    EXPECT_EQ(e.text + got, text);
  }
}

TEST(PicImage, DatesRunBackFromTheNewest) {
  const auto span = decodeEventSpan("\x31.\x32.\x33.\x34.");
  ASSERT_TRUE(span);
  for (const char* wrong : {"", "0..0.0", "0.:.0.0", "A.\xD1.0.0"})
    EXPECT_FALSE(decodeEventSpan(wrong)) << wrong;
  PdEvents events;
  events[1] = {"", 0, 23, 59, 59, ""};
  events[2] = {"", 31, 0, 0, 1, ""};
  ASSERT_TRUE(dateEvents(events, 3, *span, {2024, 3, 2, 2, 3, 4}));
  EXPECT_EQ(events[2].date, "03/01/24 00:00:00");
  EXPECT_EQ(events[1].date, "01/29/24 23:59:59");
  EXPECT_EQ(events[0].date, "01/29/24 00:00:00");
  EXPECT_FALSE(dateEvents(events, 1, {0, 0, 0, 1}, {100, 1, 1, 0, 0, 0}));  // before the first date there is
}

TEST(PdRotation, BringsAnOverrunRingIntoItsOrder) {
  // The position, and the row that comes first; -1: refused.
  for (const auto& [position, oldest] : {std::pair{"04", 1}, {"EC", 59}, {"F0", 0}, {"06", 2}, {"F3", -1}}) {
    PdEvents events;
    for (std::size_t row = 0; row < events.size(); ++row) events[row].days = static_cast<std::int16_t>(row);
    events[7].date = "stays";
    ASSERT_TRUE(rotatePDevents(events, 60, position));
    ASSERT_EQ(events[0].days, 0) << "60 events have not overrun the ring";
    ASSERT_EQ(rotatePDevents(events, 61, position), oldest >= 0) << position;
    EXPECT_EQ(events[7].date, "stays");
    EXPECT_TRUE(oldest < 0 || (events[0].days == oldest && events[59].days == (oldest + 59) % 60))
        << position;
  }
}

class Import : public testing::Test {
 protected:
  simulator::MemoryImage& image() { return world_.device.device().image; }
  void fail(FaultKind kind, const char* command) { world_.device.addFault({.kind = kind, .only = command}); }

  World world_{simulator::makeProfile(simulator::Line::Tessara, 120)};
  Main& main_ = world_.main;
};

TEST_F(Import, TakesCountersEventsDatesAndLimits) {
  image().record(ImageEvent::Outage, 5);
  image().record(ImageEvent::UnderVoltage, 3600);
  image().record(ImageEvent::Surge, 2 * 86400 + 61);
  image().poke(255, 0x20);
  world_.run(10'000);  // the device's "t" counts from its start
  main_.counters.clearCountsRequest = true;
  main_.counters.olCount = 9;
  ASSERT_TRUE(importPIC(main_));
  EXPECT_EQ(world_.commands(), (std::vector<std::string>{"+", "t"}));
  EXPECT_EQ(main_.logs.rawLogBuffer, image().dump());
  EXPECT_TRUE(main_.counters.poCount == 1 && main_.counters.olCount == 0);
  EXPECT_TRUE(main_.counters.clearCountsRequest);
  EXPECT_EQ(main_.limits, (Limits{80, 100, 105, 135, 135, 140}));
  EXPECT_EQ(main_.pdEvents[2].text, main_.dict[59]);
  EXPECT_EQ(main_.pdEvents[2].date, "03/05/24 09:30:00");  // local time, now less "t"
  EXPECT_EQ(main_.pdEvents[0].date + main_.pdEvents[3].date, "03/03/24 08:28:59");
}

TEST_F(Import, EveryFailureEndsAlike) {
  const std::tuple<const char*, std::function<void()>, bool, bool> cases[] = {
      {"doubled", [&] { fail(FaultKind::Doubled, "+"); }, true, false},
      {"no write", [&] { world_.line.failNext(MemoryLine::Call::Write, 5); }, false, false},
      {"too many events", [&] { image().poke(243, 0x32), image().poke(242, 0x76), image().poke(241, 0x08); },
       true, false},
      {"ring", [&] { image().poke(253, 0xFF), image().poke(242, 0x12); }, true, false},
      {"no time", [&] { fail(FaultKind::Silent, "t"); }, true, true},
      {"time in letters", [&] { fail(FaultKind::Garbage, "t"); }, true, true}};
  for (const auto& [about, cause, imageRead, limitsRead] : cases) {
    SCOPED_TRACE(about);
    world_.run(2000);  // whatever is still on its way
    world_.device.clearFaults();
    image().clear();
    image().poke(255, 0x80);
    main_.limits = {};
    main_.logs.rawLogBuffer.clear();
    cause();
    EXPECT_FALSE(importPIC(main_));
    EXPECT_EQ(!main_.logs.rawLogBuffer.empty(), imageRead);
    EXPECT_EQ(main_.limits.OVco == 160, limitsRead);
    EXPECT_EQ(main_.data.tsDataBtn.offText(), main_.dict[36]);
    EXPECT_FALSE(main_.exchange.Timer1.enabled());
  }
}

TEST_F(Import, EndsWhenThePageIsLeftAndNeverEndsARecording) {
  // In the pauses ahead of the image and behind it.
  for (const auto& [moment, writes] : {std::pair{50.0, 0U}, {645.0, 1U}}) {
    world_.stay(Page::Measurement);
    world_.later(moment, [&] { world_.stay(Page::None); });
    EXPECT_FALSE(importPIC(main_));
    EXPECT_EQ(world_.writes().size(), writes);
  }
  world_.stay(Page::Chart);
  fail(FaultKind::Silent, "+");
  EXPECT_TRUE(importPIC(main_)) << "a recording is not ended by it";
}

}  // namespace
}  // namespace zephon
