#include "protocol/scope_samples.h"

#include <gtest/gtest.h>

namespace zephon {
namespace {

using namespace std::string_literals;

TEST(ScopeSamples, EveryCodeIsItsShareOfFullScale) {
  for (int code = -32768; code < 32768; ++code) {
    const auto low = static_cast<char>(code);
    ASSERT_EQ(scopeAmperes(static_cast<char>(code >> 8), low), code / 128.0);
    ASSERT_EQ(scopeVolts(low), 4.0 * static_cast<signed char>(low));
  }
}

TEST(ScopeSamples, AreFoundBehindTheMark) {
  using Values = std::vector<double>;
  const std::tuple<int, std::string, std::size_t, Values, Values, Values> rows[] = {
      {1, "VV\x01\xFF\x7F"s, 3, {4, -4, 508}, {}, {}},
      {1, "VV\x01\xFF\x7F"s, 2, {4, -4}, {}, {}},
      {1, "xyVV\x01"s, 3, {4}, {}, {}},          // strays ahead push the last ones out
      {1, "AA\x01\xFF"s, 2, {260, 4}, {}, {}},   // no mark: from the second character on
      {1, "VVVV"s, 4, {344, 344}, {}, {}},       // the first mark counts
      {2, "AA\x01\x40\xFF"s, 2, {}, {2.5}, {}},  // half a sample is none
      {3, "VA\x02\x01\x40\xFE\xFF\x80"s, 2, {8, -8}, {2.5, -1}, {20, 8}},
      {3, "VA\x02\x01"s, 2, {}, {}, {}},
      {2, "A"s, 2, {}, {}, {}},
      {0, "VV\x01"s, 2, {}, {}, {}},
  };
  for (const auto& [mode, gathered, most, volts, amperes, watts] : rows) {
    const ScopeSamples samples = decodeCapture(gathered, mode, most);
    EXPECT_EQ(samples.volts, volts) << gathered;
    EXPECT_EQ(samples.amperes, amperes) << gathered;
    EXPECT_EQ(samples.watts, watts) << gathered;
  }
}

}  // namespace
}  // namespace zephon
