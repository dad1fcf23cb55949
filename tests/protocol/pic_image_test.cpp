#include "protocol/pic_image.h"

#include <gtest/gtest.h>

#include "protocol/pd_rotation.h"
#include "simulator/memory_image.h"

namespace zephon {
namespace {

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
  EXPECT_EQ((*image)[0xD0] + (*image)[7], "D007");  // the character of 0xD0 is 0, 48 below
  for (std::size_t i = 0; i < 256; ++i) EXPECT_EQ(imageByte(*image, i), device.at(static_cast<int>(i))) << i;
  EXPECT_FALSE(decodeImage(whole.substr(2, 509)));   // one element short
  EXPECT_FALSE(decodeImage(whole.substr(1) + "0"));  // out of step: the first is empty
  EXPECT_FALSE(decodeImage("0.." + whole));          // a separator for a byte
}

TEST(PicImage, CountersAreJoinedWithoutLeadingZeros) {
  EXPECT_EQ(imageCounts(imageWith({{242, "01"}, {241, "05"}})).uvreCount, 15);
  EXPECT_EQ(imageCounts(imageWith({{245, "10"}, {244, "05"}})).ovreCount, 105);
  EXPECT_EQ(imageCounts(imageWith({{249, "12"}, {248, "34"}, {247, "56"}})).poCount, 123456);
  EXPECT_EQ(imageCounts(imageWith({{251, "1A"}, {250, "03"}})).sgCount, 13);
}

TEST(PicImage, Records) {
  std::vector<std::string> dict(120);
  for (std::size_t key = 59; key < 66; ++key) dict[key] = std::to_string(key);
  // The row and its four bytes; text, days, hours, minutes, seconds.
  const std::tuple<std::size_t, std::array<const char*, 4>, std::string> cases[] = {
      {0, {"59", "08", "23", "99"}, "62 99 23 8 59"},
      {59, {"00", "00", "59", "00"}, "61 0 19 0 0"},
      {1, {"01", "02", "83", "04"}, "64 4 3 2 1"},
      {58, {"1A", "A1", "FF", "05"}, "59 5 3 0 1"}};
  for (const auto& [row, bytes, text] : cases) {
    PicImage image = imageWith({});
    for (std::size_t i = 0; i < bytes.size(); ++i) image[1 + 4 * row + i] = bytes[i];
    const PdEvent e = imageEvent(image, row, dict);
    std::ostringstream got;
    got << e.text << ' ' << e.days << ' ' << e.hours << ' ' << e.minutes << ' ' << e.seconds;
    EXPECT_EQ(got.str(), text);
  }
}

TEST(PicImage, DatesRunBackFromTheNewest) {
  const auto span = decodeEventSpan("\x31.\x32.\x33.\x34.");
  ASSERT_TRUE(span);
  for (const char* wrong : {"", "0..0.0", ".0.0.0", "0.:.0.0", "0.0.0./", "A.\xD1.0.0"})
    EXPECT_FALSE(decodeEventSpan(wrong)) << wrong;
  PdEvents events;
  events[1] = {"", 0, 23, 59, 59, ""};
  events[2] = {"", 31, 0, 0, 1, ""};
  ASSERT_TRUE(dateEvents(events, 3, *span, {2024, 3, 2, 2, 3, 4}));
  EXPECT_EQ(events[2].date, "03/01/24 00:00:00");
  EXPECT_EQ(events[1].date, "01/29/24 23:59:59");
  EXPECT_EQ(events[0].date, "01/29/24 00:00:00");
  EXPECT_EQ(events[3].date, "");
  EXPECT_FALSE(dateEvents(events, 1, {0, 0, 0, 1}, {100, 1, 1, 0, 0, 0}));  // before the first date there is
}

TEST(PdRotation, BringsAnOverrunRingIntoItsOrder) {
  // The position, and the row that comes first; -1: refused.
  for (const auto& [position, oldest] :
       {std::pair{"04", 1}, {"EC", 59}, {"F0", 0}, {"06", 2}, {"0A", 2}, {"F3", -1}}) {
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

}  // namespace
}  // namespace zephon
