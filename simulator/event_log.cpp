#include "simulator/event_log.h"

#include <algorithm>
#include <utility>

#include "simulator/device_clock.h"
#include "simulator/encode.h"

namespace zephon::simulator {
namespace {

constexpr std::size_t kFrameBytes = 8196;

bool isUnder(Event event) {
  return event == Event::UnderShutdown || event == Event::UnderRecord;
}

}  // namespace

void EventLog::begin(Event event, std::int64_t clock, const SiteValues& seen) {
  const double first = level(event, seen);
  worst_[static_cast<std::size_t>(event)] = first;
  write(eventCode(event), clock, first);
}

void EventLog::see(const SiteValues& seen) {
  for (std::size_t i = 0; i < kEvents; ++i) {
    const auto event = static_cast<Event>(i);
    if (!worst_[i]) continue;
    const double now = level(event, seen);
    worst_[i] = isUnder(event) ? std::min(*worst_[i], now) : std::max(*worst_[i], now);
  }
}

void EventLog::end(Event event, std::int64_t clock) {
  const auto worst = std::exchange(worst_[static_cast<std::size_t>(event)], std::nullopt);
  if (worst) write(eventCode(event) + kEndOfEvent, clock, *worst);
}

std::string EventLog::frame() const {
  std::string frame = ring_.frame();
  frame.resize(kFrameBytes, kErased);
  return frame;
}

double EventLog::level(Event event, const SiteValues& seen) const {
  if (event == Event::Outage || event == Event::Surge) return 0.0;
  return event == Event::Overload ? seen.amps : seen.volts * 120.0 / rating_;
}

void EventLog::write(int code, std::int64_t clock, double magnitude) {
  const ClockBytes at = clockBytes(clock);
  ring_.write(std::string{asChar(code), at.year, at.day, at.month, at.second, at.minute, at.hour,
                          wholeByte(magnitude)});
}

}  // namespace zephon::simulator
