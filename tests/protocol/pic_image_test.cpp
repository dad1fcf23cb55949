#include "protocol/pic_image.h"

#include <gtest/gtest.h>

#include "protocol/pd_rotation.h"
#include "simulator/memory_image.h"

namespace zephon {
namespace {

std::vector<std::string> texts() {
  std::vector<std::string> dict(120);
  for (std::size_t key = 0; key < dict.size(); ++key) dict[key] = "key " + std::to_string(key);
  return dict;
}

PicImage imageWith(std::initializer_list<std::pair<std::size_t, const char*>> bytes) {
  PicImage image;
  image.fill("00");
  for (const auto& [index, digits] : bytes) image[index] = digits;
  return image;
}

TEST(PicImage, CharactersToBytes) {
  simulator::MemoryImage device({0x48, 0x81});
  for (int i = 0; i < 254; ++i) device.poke(i, static_cast<std::uint8_t>(i));
  const auto image = decodeImage(device.dump());
  ASSERT_TRUE(image);
  EXPECT_EQ((*image)[7], "07");
  EXPECT_EQ((*image)[0xD0], "D0");  // its character is 0, 48 below
  EXPECT_EQ((*image)[253], "FD");
  for (std::size_t i = 0; i < 256; ++i) EXPECT_EQ(imageByte(*image, i), device.at(static_cast<int>(i))) << i;
}

TEST(PicImage, WhatIsNoImage) {
  const std::string whole = simulator::MemoryImage({0, 0}).dump();
  EXPECT_TRUE(decodeImage(whole));
  EXPECT_FALSE(decodeImage(whole.substr(2, 509)));                        // one element short
  EXPECT_FALSE(decodeImage(whole.substr(1) + "0"));                       // out of step: the first is empty
  EXPECT_FALSE(decodeImage(whole.substr(0, 6) + "." + whole.substr(7)));  // a separator for a byte
  EXPECT_FALSE(decodeImage(""));
}

TEST(PicImage, CountersAreJoinedWithoutLeadingZeros) {
  const struct {
    const char *high, *middle, *low;
    std::int32_t count;
  } cases[] = {{"00", "01", "05", 15},     {"00", "10", "05", 105}, {"00", "00", "00", 0},
               {"12", "34", "56", 123456}, {"00", "00", "99", 99},  {"01", "00", "00", 100},
               {"00", "1A", "03", 13},     {"FF", "00", "07", 7}};
  for (const auto& c : cases) {
    const auto counts = imageCounts(imageWith({{243, c.high}, {242, c.middle}, {241, c.low}, {250, "07"}}));
    EXPECT_EQ(counts.uvreCount, c.count) << c.high << c.middle << c.low;
    EXPECT_EQ(counts.total(), c.count + 7);
  }
  const auto each = imageCounts(imageWith({{241, "01"}, {244, "02"}, {247, "03"}, {250, "04"}}));
  EXPECT_EQ(each.uvreCount, 1);
  EXPECT_EQ(each.ovreCount, 2);
  EXPECT_EQ(each.poCount, 3);
  EXPECT_EQ(each.sgCount, 4);
}

TEST(PicImage, Records) {
  const struct {
    const char *seconds, *minutes, *third, *days;
    const char* text;
    int d, h, m, s;
  } cases[] = {{"59", "08", "23", "99", "key 62", 99, 23, 8, 59},
               {"00", "00", "59", "00", "key 61", 0, 19, 0, 0},
               {"01", "02", "83", "04", "key 64", 4, 3, 2, 1},
               {"1A", "A1", "FF", "05", "key 59", 5, 3, 0, 1},
               {"00", "00", "2A", "00", "key 62", 0, 2, 0, 0}};
  for (const auto& c : cases) {
    for (const std::size_t record : {0, 59}) {
      const std::size_t at = 4 * record + 1;
      const auto image =
          imageWith({{at, c.seconds}, {at + 1, c.minutes}, {at + 2, c.third}, {at + 3, c.days}});
      const PdEvent event = imageEvent(image, record, texts());
      EXPECT_EQ(event.text, c.text);
      EXPECT_TRUE(event.days == c.d && event.hours == c.h && event.minutes == c.m && event.seconds == c.s)
          << c.third << ' ' << event.days << ' ' << event.hours << ' ' << event.minutes << ' '
          << event.seconds;
    }
  }
}

TEST(PicImage, TimeSinceTheNewestEvent) {
  const auto span = decodeEventSpan("B.S.\x89.\x30");
  ASSERT_TRUE(span);
  EXPECT_TRUE(span->days == 12 && span->hours == 23 && span->minutes == 59 && span->seconds == 0);
  EXPECT_TRUE(decodeEventSpan("0.0.0.0."));  // a separator more does no harm
  for (const char* wrong : {"", "0.0.0", "0..0.0", ".0.0.0", "0.:.0.0", "0.0.0./", "\x41.\xD1.0.0"}) {
    EXPECT_FALSE(decodeEventSpan(wrong)) << wrong;
  }
}

TEST(PicImage, DatesRunBackFromTheNewest) {
  PdEvents events;
  events[1] = {"", 0, 23, 59, 59, ""};
  events[2] = {"", 31, 0, 0, 1, ""};
  ASSERT_TRUE(dateEvents(events, 3, {1, 2, 3, 4}, {2024, 3, 2, 2, 3, 4}));
  EXPECT_EQ(events[2].date, "03/01/24 00:00:00");
  EXPECT_EQ(events[1].date, "01/29/24 23:59:59");
  EXPECT_EQ(events[0].date, "01/29/24 00:00:00");
  EXPECT_EQ(events[3].date, "");
  EXPECT_TRUE(dateEvents(events, 0, {99, 0, 0, 0}, {100, 1, 1, 0, 0, 0}));
  EXPECT_FALSE(dateEvents(events, 1, {0, 0, 0, 1}, {100, 1, 1, 0, 0, 0}));  // before the first date there is
}

TEST(PdRotation, BringsAnOverrunRingIntoItsOrder) {
  const struct {
    const char* position;
    int oldest;                                                         // row that comes first; -1: refused
  } cases[] = {{"00", 0}, {"04", 1}, {"14", 5}, {"EC", 59}, {"F0", 0},  // 60 rows round
               {"06", 2}, {"0A", 2}, {"05", 1}, {"F3", -1}, {"FF", -1}, {"F2", 0}};
  for (const auto& c : cases) {
    PdEvents events;
    for (std::size_t row = 0; row < events.size(); ++row) {
      events[row].seconds = static_cast<std::int16_t>(row);
      events[row].date = std::to_string(row);
    }
    const PdEvents before = events;
    EXPECT_TRUE(rotatePDevents(events, 60, c.position));
    EXPECT_EQ(events[0].seconds, 0) << "60 events have not overrun the ring";
    ASSERT_EQ(rotatePDevents(events, 61, c.position), c.oldest >= 0) << c.position;
    for (int row = 0; row < 60 && c.oldest >= 0; ++row) {
      const auto at = static_cast<std::size_t>(row);
      ASSERT_EQ(events[at].seconds, (c.oldest + row) % 60) << c.position;
      ASSERT_EQ(events[at].date, before[at].date) << "dates belong to their places";
    }
  }
}

}  // namespace
}  // namespace zephon
