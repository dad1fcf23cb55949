#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zephon {

// One line of the dialogue: what is sent, how many bytes of the answer count (its last ones), how long the
// watchdog waits for them, and what it is about. A row with 0 bytes and a time-out is acknowledged by "OK";
// one without a time-out gets no answer that anybody waits for.
struct DeviceCommand {
  std::string_view text;
  std::int32_t replyBytes = 0;
  double timeoutMs = 0;
  std::string_view meaning;
};

inline constexpr double kOkTimeout = 3000;
inline constexpr double kEchoTimeout = 1000;
inline constexpr double kDecimalTimeout = 2000;
inline constexpr double kFractionTimeout = 100;

// The first line, Orvantis, at 115200 bits a second. Reads are "g" and a character, writes "s" and a
// character; a write that could do harm wants a second text, "Y", behind it.
namespace orvantis {

inline constexpr DeviceCommand kFirmwareVersion{"gN", 4, 100, "firmware version: four characters"};
inline constexpr DeviceCommand kChipID{"gO", 5, 200, "chip: five bytes, of which the odd ones count"};
inline constexpr DeviceCommand kUserID{"gP", 10, 800, "the device's name"};
inline constexpr DeviceCommand kRating{"gV", 1, kDecimalTimeout, "rated volts"};
inline constexpr DeviceCommand kTime{"gR", 19, 800, "clock: hh:mm:ss mm/dd/yyyy, universal time"};

inline constexpr DeviceCommand kVlnRms{"g4", 2, kFractionTimeout, "line-neutral volts of 512"};
inline constexpr DeviceCommand kVngRms{"g5", 3, kFractionTimeout, "neutral-ground volts of 65536"};
inline constexpr DeviceCommand kIRms{"g6", 2, kFractionTimeout, "amps of 256"};
inline constexpr DeviceCommand kPeakVolts{"g7", 2, kFractionTimeout,
                                          "half the peak volts of 512, for the crest factor"};
inline constexpr DeviceCommand kPavg{"g8", 2, kFractionTimeout, "watts of 262144"};
inline constexpr DeviceCommand kEnergy{"g9", 23, kFractionTimeout, "energy, 8.24 of 232 kWh, and since when"};
inline constexpr DeviceCommand kPowerFactor{"g:", 2, kFractionTimeout,
                                            "half the power factor, signed, and C or L"};
inline constexpr DeviceCommand kFrequency{"g;", 2, kFractionTimeout, "hertz of 8000"};

inline constexpr DeviceCommand kPoCount{"g>", 2, kDecimalTimeout, "power outages"};
inline constexpr DeviceCommand kUvreCount{"g?", 2, kDecimalTimeout, "under voltages (record)"};
inline constexpr DeviceCommand kUvcoCount{"g@", 2, kDecimalTimeout, "under voltages (shutdown)"};
inline constexpr DeviceCommand kOvreCount{"gA", 2, kDecimalTimeout, "over voltages (record)"};
inline constexpr DeviceCommand kOvcoCount{"gB", 2, kDecimalTimeout, "over voltages (shutdown)"};
inline constexpr DeviceCommand kSgCount{"gC", 2, kDecimalTimeout, "surges"};
inline constexpr DeviceCommand kOlCount{"g_", 2, kDecimalTimeout, "current overloads"};
inline constexpr DeviceCommand kClearCounts{"s=", 0, kOkTimeout, "clear the counts; then Y"};
inline constexpr DeviceCommand kClearEvents{"s>", 0, kOkTimeout, "clear the time-stamped log; then Y"};
inline constexpr DeviceCommand kClearEnergy{"s?", 0, kOkTimeout, "clear the energy total; then Y"};
inline constexpr DeviceCommand kClearHistory{"s@", 0, kOkTimeout, "clear the historical log; then Y"};

// Logs, raw. The chart memory comes in pages, each asked for again when nothing comes for so long.
inline constexpr DeviceCommand kEventLog{"gE", 8196, 10'000, "time-stamped log"};
inline constexpr DeviceCommand kHistory{"gD", 110'599, 60'000, "historical log"};
inline constexpr DeviceCommand kChartPage{"g`", 32'770, 100, "then the page's two bytes"};

// The scope: a mark of two characters and a block of 256 samples. Sent again while the block is on its way,
// the command brings one more block right behind it, without a mark.
inline constexpr double kScopeTimeout = 2000;
inline constexpr DeviceCommand kScopeVolts{"gS", 2 + 256, kScopeTimeout, "VV, a byte a sample"};
inline constexpr DeviceCommand kScopeAmps{"gT", 2 + 512, kScopeTimeout, "AA, two bytes a sample"};
inline constexpr DeviceCommand kScopeBoth{"gU", 2 + 768, kScopeTimeout, "VA, a byte and two bytes a sample"};

// Limits, one byte each, on a 120 V basis whatever the rating.
inline constexpr DeviceCommand kUVco{"gH", 1, kDecimalTimeout, "under voltage shutdown"};
inline constexpr DeviceCommand kUVre{"gI", 1, kDecimalTimeout, "under voltage record"};
inline constexpr DeviceCommand kUVrs{"gJ", 1, kDecimalTimeout, "under voltage restore"};
inline constexpr DeviceCommand kOVco{"gK", 1, kDecimalTimeout, "over voltage shutdown"};
inline constexpr DeviceCommand kOVre{"gL", 1, kDecimalTimeout, "over voltage record"};
inline constexpr DeviceCommand kOVrs{"gM", 1, kDecimalTimeout, "over voltage restore"};
inline constexpr DeviceCommand kOLre{"gZ", 1, kDecimalTimeout, "overload record, amps, never scaled"};
inline constexpr DeviceCommand kSetUVco{"s4", 0, kOkTimeout, "then the value as one byte"};
inline constexpr DeviceCommand kSetUVre{"s5", 0, kOkTimeout, "then the value as one byte"};
inline constexpr DeviceCommand kSetUVrs{"s6", 0, kOkTimeout, "then the value as one byte"};
inline constexpr DeviceCommand kSetOVco{"s7", 0, kOkTimeout, "then the value as one byte"};
inline constexpr DeviceCommand kSetOVre{"s8", 0, kOkTimeout, "then the value as one byte"};
inline constexpr DeviceCommand kSetOVrs{"s9", 0, kOkTimeout, "then the value as one byte"};
inline constexpr DeviceCommand kSetOLre{"sB", 0, kOkTimeout, "then the value as one byte"};

inline constexpr DeviceCommand kOutlets{"gQ", 1, 200, "outlets: 0, 1, C, or a fault G R S T V"};
inline constexpr DeviceCommand kOutletsOff{"s1", 0, kOkTimeout, "outlets off"};
inline constexpr DeviceCommand kOutletsOn{"s2", 0, kOkTimeout, "outlets on"};
inline constexpr DeviceCommand kOutletsCycle{"s3", 0, kOkTimeout, "outlets off and on again"};

inline constexpr DeviceCommand kSetUserID{"s:", 0, kOkTimeout, "then ten characters, one at a time"};
inline constexpr DeviceCommand kSetTime{"s;", 0, kOkTimeout, "then six BCD bytes and the weekday"};

inline constexpr DeviceCommand kBattery{"gY", 1, 200, "battery: fraction of 3 V"};
inline constexpr DeviceCommand kAutoTX{"g^", 1, 200, "automatic transmit: Y or N"};
inline constexpr DeviceCommand kInternalChart{"ga", 1, 200, "internal chart memory: Y, N, or 1 for none"};
inline constexpr DeviceCommand kGndDetect{"gb", 1, 400, "ground detection: Y or N"};
inline constexpr DeviceCommand kOLco{"gg", 1, 400, "overload shutdown: Y or N"};
inline constexpr DeviceCommand kPowerFailHold{"gh", 1, 400, "power fail hold: Y or N"};
inline constexpr DeviceCommand kAutoTXOn{"sC", 0, kOkTimeout, "then Y"};
inline constexpr DeviceCommand kAutoTXOff{"sD", 0, kOkTimeout, "then Y"};
inline constexpr DeviceCommand kStartInternalChart{"sE", 0, kOkTimeout, "then Y; it can't be stopped"};
inline constexpr DeviceCommand kSetGndDetect{"sF", 0, kOkTimeout, "then Y or N"};
inline constexpr DeviceCommand kOLcoOn{"sH", 0, kOkTimeout, "then Y"};
inline constexpr DeviceCommand kOLcoOff{"sI", 0, kOkTimeout, "then Y"};
inline constexpr DeviceCommand kSetPowerFailHold{"sJ", 0, kOkTimeout, "then Y or N"};

}  // namespace orvantis

// The second line, Tessara, at 9600 bits a second: mostly one letter.
namespace tessara {

inline constexpr DeviceCommand kFirmwareVersion{"r", 4, 100,
                                                "firmware version: four characters, * for 240 V"};
inline constexpr DeviceCommand kChipID{"i", 5, 200, "chip: five bytes, of which the odd ones count"};
inline constexpr DeviceCommand kWiring{"g", 3, 600,
                                       "180 degrees between the legs for a center tap, 120 for wye"};
inline constexpr DeviceCommand kSetWye{"n1", 0, 0, "wired as wye"};
inline constexpr DeviceCommand kSetCenterTap{"n2", 0, 0, "wired with a center tap"};

inline constexpr DeviceCommand kVlgSample{"v", 1, 200, "line-ground sample: code less 48"};
inline constexpr DeviceCommand kVngSample{"p", 1, 200, "neutral-ground sample: code"};
inline constexpr DeviceCommand kImage{"+", 512, 2000, "256 bytes of memory: code less 48 and a point each"};
inline constexpr DeviceCommand kSinceNewest{"t", 7, 400,
                                            "time since the newest event: four codes with points between"};
inline constexpr DeviceCommand kWriteCutoffs{"a", 1, kEchoTimeout, "then image byte 255; echoed"};
inline constexpr DeviceCommand kWriteRecords{"b", 1, kEchoTimeout, "then image byte 254; echoed"};
inline constexpr DeviceCommand kClear{"z", 0, 0, "clear counts and events"};

inline constexpr DeviceCommand kOutlets{"s", 2, 200, "outlets: text with Of, On, Cy, NG, RP or 20 in it"};
inline constexpr DeviceCommand kOutletsOn{"O", 0, 0, "outlets on"};
inline constexpr DeviceCommand kOutletsOff{"o", 0, 0, "outlets off"};
inline constexpr DeviceCommand kOutletsCycle{"c", 0, 0, "outlets off and on again"};

inline constexpr DeviceCommand kAutoTX{"j", 1, 200, "automatic transmit: Y or N"};
inline constexpr DeviceCommand kAutoTXOn{"k", 0, 0, "automatic transmit on"};
inline constexpr DeviceCommand kAutoTXOff{"l", 0, 0, "automatic transmit off"};

}  // namespace tessara
}  // namespace zephon
