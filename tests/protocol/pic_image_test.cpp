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
  const std::tuple<const char*, const char*, const char*, std::int32_t> cases[] = {
      {"00", "01", "05", 15}, {"00", "10", "05", 105}, {"12", "34", "56", 123456}, {"00", "1A", "03", 13}};
  for (const auto& [high, middle, low, count] : cases) {
    for (const std::size_t lowest : {241, 244, 247, 250}) {
      const auto counts = imageCounts(imageWith({{lowest + 2, high}, {lowest + 1, middle}, {lowest, low}}));
      const std::int32_t each[] = {counts.uvreCount, counts.ovreCount, counts.poCount, counts.sgCount};
      EXPECT_EQ(each[(lowest - 241) / 3], count) << high << middle << low;
      EXPECT_EQ(counts.total(), count);
    }
  }
}

TEST(PicImage, Records) {
  std::vector<std::string> dict(120);
  for (std::size_t key = 59; key < 66; ++key) dict[key] = std::to_string(key);
  const struct {
    const char *seconds, *minutes, *third, *days, *event;  // text, days, hours, minutes, seconds
  } cases[] = {{"59", "08", "23", "99", "62 99 23 8 59"},
               {"00", "00", "59", "00", "61 0 19 0 0"},
               {"01", "02", "83", "04", "64 4 3 2 1"},
               {"1A", "A1", "FF", "05", "59 5 3 0 1"}};
  for (const auto& c : cases) {
    for (const std::size_t record : {0, 59}) {
      const std::size_t at = 4 * record + 1;
      const PdEvent e =
          imageEvent(imageWith({{at, c.seconds}, {at + 1, c.minutes}, {at + 2, c.third}, {at + 3, c.days}}),
                     record, dict);
      std::ostringstream got;
      got << e.text << ' ' << e.days << ' ' << e.hours << ' ' << e.minutes << ' ' << e.seconds;
      EXPECT_EQ(got.str(), c.event) << record;
    }
  }
}

TEST(PicImage, DatesRunBackFromTheNewest) {
  const auto span = decodeEventSpan("\x31.\x32.\x33.\x34.");
  ASSERT_TRUE(span);
  for (const char* wrong : {"", "0.0.0", "0..0.0", ".0.0.0", "0.:.0.0", "0.0.0./", "A.\xD1.0.0"}) {
    EXPECT_FALSE(decodeEventSpan(wrong)) << wrong;
  }
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
  const std::pair<const char*, int> cases[] = {{"00", 0}, {"04", 1}, {"EC", 59}, {"F0", 0},
                                               {"06", 2}, {"0A", 2}, {"F3", -1}, {"FF", -1}};
  for (const auto& [position, oldest] : cases) {
    PdEvents events;
    for (std::size_t row = 0; row < events.size(); ++row) events[row].days = static_cast<std::int16_t>(row);
    events[7].date = "stays";
    ASSERT_TRUE(rotatePDevents(events, 60, position));
    ASSERT_EQ(events[0].days, 0) << "60 events have not overrun the ring";
    ASSERT_EQ(rotatePDevents(events, 61, position), oldest >= 0) << position;
    EXPECT_EQ(events[7].date, "stays");
    for (int row = 0; row < 60 && oldest >= 0; ++row)
      ASSERT_EQ(events[static_cast<std::size_t>(row)].days, (oldest + row) % 60) << position;
  }
}

}  // namespace
}  // namespace zephon
