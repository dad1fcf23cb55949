#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "text/calendar.h"

// The device's log bytes, put together by hand for tests. Dates are universal time.
namespace zephon::testing_support {

inline std::string bytesOf(std::initializer_list<int> bytes) {
  std::string text;
  for (const int byte : bytes) text += static_cast<char>(byte);
  return text;
}

inline int bcd(int number) {
  return number / 10 * 16 + number % 10;
}

// Year, day, month, second, minute, hour.
inline std::string logDate(const CalendarTime& t) {
  return bytesOf({bcd(t.year % 100), bcd(t.day), bcd(t.month), bcd(t.second), bcd(t.minute), bcd(t.hour)});
}

inline std::string eventRecord(int code, const CalendarTime& utc, int magnitude) {
  return bytesOf({code}) + logDate(utc) + bytesOf({magnitude});
}

inline std::string high(int number, int bytes) {
  std::string text;
  while (bytes-- > 0) text += static_cast<char>(number >> 8 * bytes);
  return text;
}

// 1.5 A and -4 W at most, 112 to 125 V, sums of 8400 for 119.47 V and of 100 for 728.18 W.
inline const std::string kHalfHour = bytesOf({0x80, 1, 112, 125, 0xD0, 0x20, 0xFF, 0xFF, 100, 0});
inline std::string historyRecord(const CalendarTime& utc, const std::string& values = kHalfHour) {
  return logDate(utc) + values;
}

inline std::string filled(std::string text, std::size_t size) {
  text.resize(size, '\xFF');
  return text;
}

// A log of so many records that has not wrapped, or one that has. `data` is filled up with 0xFF.
inline std::string eventFrame(const std::string& data, int records, char flag = '0') {
  return filled(flag + high(110592 + 8 * records, 3) + data, 8196);
}
inline std::string historyFrame(const std::string& data, int records, char flag = '0',
                                const std::string& clock = "12:00:00 05/31/2013") {
  return filled(clock + flag + high(16 + 16 * records, 3) + data, 110599);
}

// A chart mark; the year counts from 2000 and all bytes are hex digits as they stand.
inline std::string chartMark(const std::string& name, const CalendarTime& t) {
  return name +
         bytesOf({bcd(t.hour), bcd(t.minute), bcd(t.second), bcd(t.month), bcd(t.day), bcd(t.year % 100)});
}

// 120.5 V, 1.5 A, -4 W, 0.25 V, 60 Hz, -0.5, 1.414, 232 kWh.
inline std::string chartSample(int volts = 120 * 128 + 64) {
  return high(volts, 2) + high(384, 2) + high(0xFFFE, 2) + high(64, 3) + high(125829, 3) +
         bytesOf({0xBF, 0, 0x01, 106, 1, 0, 0, 0});
}

// Bytes that log decoders have trouble with: dated records, blank ones, ones of zeros, runs of 0xFF anywhere.
inline std::string troubledRecords(std::mt19937& random, std::size_t recordBytes, std::size_t datePlace,
                                   std::size_t records) {
  std::string data;
  for (std::size_t i = 0; i < records; ++i) {
    std::string record(recordBytes, '\0');
    const auto kind = random() % 32;
    for (char& c : record) c = kind > 0 ? static_cast<char>(random()) : '\0';
    if (kind > 8)
      record.replace(datePlace, 6, logDate(calendarFromSeconds(3'600'000'000 + random() % 500'000'000)));
    if (kind > 0 && kind < 5) record.assign(recordBytes, '\xFF');
    if (kind > 28) record.replace(datePlace + 6, recordBytes, recordBytes - datePlace - 6, '\xFF');
    data += record;
  }
  return data;
}

}  // namespace zephon::testing_support
