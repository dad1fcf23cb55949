#include "logs/chart_memory.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>

#include "protocol/commands.h"
#include "protocol/day_serial.h"
#include "protocol/encodings.h"
#include "protocol/energy.h"
#include "text/fixed_point.h"

namespace zephon {
namespace {

using ChartRow = std::array<double, 9>;

static_assert(kChartReplyBytes == orvantis::kChartPage.replyBytes);

constexpr std::size_t kMarkBytes = 9;
constexpr std::size_t kSampleBytes = 20;
constexpr std::string_view kBlank = "\xFF\xFF\xFF";
constexpr double kDaySeconds = 86400;

std::uint8_t byteAt(std::string_view text, std::size_t i) {
  return static_cast<std::uint8_t>(text[i]);
}

// A field of 1 to 3 bytes, high byte first: its fraction of the full scale, rounded to decimals. No such
// fraction comes near noFraction.
template <std::size_t Bytes>
std::int64_t ticksOfField(std::string_view field, std::int64_t fullScale, int decimals) {
  static_assert(Bytes <= 3 && noFraction > 1);
  std::int64_t number = 0;
  for (std::size_t i = 0; i < Bytes; ++i) number = number << 8 | byteAt(field, i);
  const std::int64_t scaled = number * fullScale * kPowersOfTen[static_cast<std::size_t>(decimals)];
  return (scaled + (std::int64_t{1} << (8 * Bytes - 1))) >> 8 * Bytes;
}

// The same in ones' complement.
template <std::size_t Bytes>
std::int64_t ticksOfSigned(std::string_view field, std::int64_t fullScale, int decimals) {
  if (byteAt(field, 0) < 0x80) return ticksOfField<Bytes>(field, fullScale, decimals);
  std::array<char, Bytes> inverted;
  for (std::size_t i = 0; i < Bytes; ++i) inverted[i] = static_cast<char>(~field[i]);
  return -ticksOfField<Bytes>({inverted.data(), Bytes}, fullScale, decimals);
}

// The shortest form of a number in single precision, to four decimals.
std::int64_t fourDecimalsOfText(float value) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
  const char* point = std::find(text.data(), end, '.');
  std::int64_t ticks = 0;
  std::from_chars(text.data(), point, ticks);
  const std::string_view decimals(point, static_cast<std::size_t>(end - point));
  for (std::size_t place = 1; place <= 4; ++place)
    ticks = ticks * 10 + (place < decimals.size() ? decimals[place] - '0' : 0);
  return ticks + (decimals.size() > 5 && decimals[5] >= '5' ? 1 : 0);
}

// The same without the text, for the kilowatt-hours of a chart. The shortest form is the roundest number that
// lies within half a unit of the last place: while it has four decimals or fewer, it is found by trying.
// Where two numbers are as good, or one lies on the brink, the text decides.
std::int64_t fourDecimals(float value) {
  constexpr double kBrink = 1e-6;
  const double scaled = static_cast<double>(value) * 1e4;
  const auto exponent = std::bit_cast<float>(std::bit_cast<std::uint32_t>(value) & 0x7F800000);
  const double reach = static_cast<double>(exponent) * 0x1p-24 * 1e4;
  std::int64_t roundest = -1;
  for (std::int64_t unit = 1; unit <= 10000; unit *= 10) {
    const auto units = static_cast<double>(unit);
    const std::int64_t tried = std::llround(scaled / units) * unit;
    const double off = std::abs(scaled - static_cast<double>(tried));
    if (std::abs(off - reach) < kBrink || std::abs(off - units / 2) < kBrink)
      return fourDecimalsOfText(value);
    if (off > reach && unit == 1 && off + reach < 0.5) return tried;  // more decimals, but rounding is clear
    if (off > reach) break;
    roundest = tried;
  }
  return roundest < 0 ? fourDecimalsOfText(value) : roundest;
}

// The columns behind the time.
void decodeSample(std::string_view sample, ChartRow& row) {
  row[1] = fromTicks(ticksOfField<2>(sample, 512, 2), 2);
  row[2] = fromTicks(ticksOfField<2>(sample.substr(2), 256, 3), 3);
  row[3] = fromTicks(ticksOfSigned<2>(sample.substr(4), 262144, 1), 1);
  row[4] = fromTicks(ticksOfField<3>(sample.substr(6), 65536, 3), 3);
  row[5] = fromTicks(ticksOfField<3>(sample.substr(9), 8000, 2), 2);
  row[6] = fromTicks(ticksOfSigned<1>(sample.substr(12), 2, 3), 3);
  row[7] = fromTicks(bcdByte(byteAt(sample, 14)) * 1000 + ticksOfSigned<1>(sample.substr(15), 1, 3), 3);
  row[8] = fromTicks(fourDecimals(energyOf(sample.substr(16, 4))), 4);
}

// Every third byte is looked at: three in a row can't slip between them.
bool hasBlank(std::string_view sample) {
  bool suspect = false;
  for (std::size_t i = 2; i < sample.size(); i += 3) suspect |= sample[i] == kBlank[0];
  return suspect && sample.find(kBlank) != std::string_view::npos;
}

bool isMark(std::string_view name) {
  return name == "STR" || name == "CDF" || name == "PWR";
}

// A mark's moment as a date serial, local.
std::optional<double> timeOfMark(std::string_view mark, UtcOffset offset) {
  const DeviceDateBytes bytes = {byteAt(mark, 3), byteAt(mark, 4), byteAt(mark, 5),
                                 byteAt(mark, 6), byteAt(mark, 7), byteAt(mark, 8)};
  const auto local = plainDeviceDate(localTimeString(hexDateText(bytes), offset));
  return local ? std::optional(dateSerial(*local)) : std::nullopt;
}

class ChartParser {
 public:
  ChartParser(std::string_view stream, UtcOffset offset) : rest_(stream), offset_(offset) {
    rows_.reserve(stream.size() / kSampleBytes + 2);
  }

  LogTable<9> parse() {
    while (takeBlock()) continue;
    return std::move(rows_);
  }

 private:
  // False where the recording ends.
  bool takeBlock();
  bool takeMark(bool powerBack);
  bool takeSample();

  void repeatLast(double secondsOn) {
    last_[0] = currentTime_ + secondsOn / kDaySeconds;
    rows_.push_back(last_);
  }

  std::string_view rest_;
  UtcOffset offset_;
  double currentTime_ = 0;
  ChartRow last_{};  // the last sample's values
  LogTable<9> rows_;
};

bool ChartParser::takeBlock() {
  if (rest_.size() < 3) return false;
  const std::string_view name = rest_.substr(0, 3);
  if (name == "END" || name == kBlank) return false;
  return isMark(name) ? takeMark(name == "PWR") : takeSample();
}

bool ChartParser::takeMark(bool powerBack) {
  if (rest_.size() < kMarkBytes) return false;
  const std::optional<double> time = timeOfMark(rest_, offset_);
  if (!time) return false;
  if (powerBack) repeatLast(1);
  currentTime_ = *time;
  if (powerBack) repeatLast(9);
  rest_.remove_prefix(kMarkBytes);
  return true;
}

bool ChartParser::takeSample() {
  if (rest_.size() < kSampleBytes) return false;
  const std::string_view sample = rest_.substr(0, kSampleBytes);
  if (hasBlank(sample)) return false;
  currentTime_ += 10 / kDaySeconds;
  last_[0] = currentTime_;
  decodeSample(sample, last_);
  rows_.push_back(last_);
  rest_.remove_prefix(kSampleBytes);
  return true;
}

}  // namespace

std::optional<std::string_view> chartPage(std::string_view reply) {
  if (reply.size() < kChartReplyBytes) return {};
  return reply.substr(2, kChartPageBytes);
}

ChartMemory chartMemoryOf(std::string_view firstReply) {
  const bool small = firstReply.size() > 1 && firstReply[1] == '2';
  return small ? ChartMemory{4, 131073} : ChartMemory{};
}

bool chartMemoryEnds(std::string_view stream) {
  if (stream.size() < kSampleBytes) return false;
  const std::string_view tail = stream.substr(stream.size() - kSampleBytes);
  return std::all_of(tail.begin(), tail.end(), [](char c) { return c == kBlank[0]; });
}

LogTable<9> decodeChartMemory(std::string_view stream, UtcOffset offset) {
  return ChartParser(stream, offset).parse();
}

}  // namespace zephon
