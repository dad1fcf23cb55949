#include "simulator/zone.h"

#include <algorithm>

namespace zephon::simulator {
namespace {

Zone zoneOf(double volts, const Limits& limits, double nominalVolts) {
  if (volts < nominalVolts / 6.0) return Zone::Outage;
  if (volts < limits.uvco) return Zone::UnderShutdown;
  if (volts < limits.uvre) return Zone::UnderRecord;
  if (volts > limits.ovco) return Zone::OverShutdown;
  if (volts > limits.ovre) return Zone::OverRecord;
  return Zone::Normal;
}

}  // namespace

Zone nextZone(Zone current, double volts, const Limits& limits, double nominalVolts) {
  const double margin = nominalVolts / 100.0;
  const Zone plain = zoneOf(volts, limits, nominalVolts);
  if (current < Zone::Normal && plain > current) {
    const Zone lower = zoneOf(volts - margin, limits, nominalVolts);
    return lower < Zone::Normal ? std::max(current, lower) : plain;
  }
  if (current > Zone::Normal && plain < current) {
    const Zone upper = zoneOf(volts + margin, limits, nominalVolts);
    return upper > Zone::Normal ? std::min(current, upper) : plain;
  }
  return plain;
}

bool reaches(Zone zone, Zone border) {
  return border < Zone::Normal ? zone <= border : zone >= border;
}

bool worsens(Zone current, Zone next) {
  if (next < Zone::Normal) return next < std::min(current, Zone::Normal);
  return next > std::max(current, Zone::Normal);
}

}  // namespace zephon::simulator
