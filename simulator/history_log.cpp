#include "simulator/history_log.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/device_clock.h"
#include "simulator/encode.h"

namespace zephon::simulator {
namespace {

constexpr double kSamplesPerSecond = 20.0;
constexpr double kVoltsScale = 512.0;
constexpr double kAmpsScale = 256.0;
constexpr double kWattsScale = 262144.0;

std::string total(double unitSeconds, double scale) {
  return littleEndian16(std::floor(std::max(0.0, unitSeconds) * kSamplesPerSecond / scale));
}

}  // namespace

void HistoryLog::Row::addUp(double now) {
  voltSeconds += volts * (now - until);
  wattSeconds += watts * (now - until);
  until = now;
}

void HistoryLog::begin(double now, std::int64_t clock) {
  row_ = Row{clock, now, now};
}

void HistoryLog::see(double now, const SiteValues& seen) {
  if (!row_) return;
  Row& row = *row_;
  row.addUp(now);
  row.volts = seen.volts;
  row.watts = seen.watts;
  row.minVolts = std::min(row.minVolts, seen.volts);
  row.maxVolts = std::max(row.maxVolts, seen.volts);
  row.maxAmps = std::max(row.maxAmps, seen.amps);
  row.maxWatts = std::max(row.maxWatts, seen.watts);
  row.seen = true;
}

void HistoryLog::end(double now) {
  if (!row_) return;
  Row row = *std::exchange(row_, std::nullopt);
  row.addUp(now);
  if (row.kept()) ring_.write(bytesOf(row));
}

void HistoryLog::clear(double now, std::int64_t clock) {
  ring_.clear();
  if (row_) begin(now, clock);
}

std::string HistoryLog::frame(double now, std::int64_t clock) const {
  HistoryLog closed = *this;
  closed.end(now);
  return clockText(clock) + closed.ring_.frame();
}

std::string HistoryLog::bytesOf(const Row& row) const {
  const ClockBytes at = clockBytes(row.clock);
  const double basis = 120.0 / rating_;
  std::string bytes{at.year, at.day, at.month, at.second, at.minute, at.hour};
  bytes += littleEndian16(std::ldexp(row.maxAmps / kAmpsScale, 16));
  bytes += wholeByte(row.minVolts * basis);
  bytes += wholeByte(row.maxVolts * basis);
  bytes += total(row.voltSeconds, kVoltsScale);
  bytes += signedLittleEndian16(std::ldexp(row.maxWatts / kWattsScale, 16));
  bytes += total(row.wattSeconds, kWattsScale);
  return bytes;
}

}  // namespace zephon::simulator
