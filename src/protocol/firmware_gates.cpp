#include "protocol/firmware_gates.h"

#include "text/number.h"
#include "text/strings.h"

namespace zephon {
namespace {

bool isFirstLine(const DeviceKind& device) {
  return device.modelLine != 1;
}

// Of the first line, from a version on.
bool firstLineFrom(const DeviceKind& device, std::string_view version) {
  return isFirstLine(device) && device.firmware >= version;
}

}  // namespace

DeviceKind kindOf(const Link& link) {
  return {link.modelLine, link.firmwareVersion, link.nominalVolts};
}

FirmwareGates firmwareGates(const DeviceKind& device) {
  const bool second = !isFirstLine(device);
  FirmwareGates gates;
  gates.autoTransmit =
      firstLineFrom(device, "1.GB0") || (second && device.firmware >= "1.67" && device.nominalVolts == 120);
  gates.internalChart = firstLineFrom(device, "1.GB0");
  gates.overloadCount = countsOverloads(device);
  gates.groundDetection = firstLineFrom(device, "1.IBR");
  gates.overloadShutdown = firstLineFrom(device, "1.JD1");
  gates.powerFailHold = firstLineFrom(device, "1.KD1");
  gates.wiring = second && device.firmware >= "1*14" && device.nominalVolts > 120;
  gates.neutralGround = !second || device.firmware >= "2.00";
  return gates;
}

bool countsOverloads(const DeviceKind& device) {
  return firstLineFrom(device, "1.GB0");
}

bool pollsNeutralGround(const DeviceKind& device) {
  return isFirstLine(device) || (!hasHighRatingMark(device.firmware) && device.nominalVolts == 120);
}

bool recordsNeutralGround(const DeviceKind& device) {
  return isFirstLine(device) || exportsNeutralGround(device);
}

bool exportsNeutralGround(const DeviceKind& device) {
  return device.firmware >= "2.00" && device.nominalVolts == 120;
}

bool judgesNeutralGround(const DeviceKind& device) {
  return device.nominalVolts == 120 && recordsNeutralGround(device);
}

bool hasHighRatingMark(std::string_view firmware) {
  return firmware.find('*') != std::string_view::npos;
}

bool tellsWiring(const DeviceKind& device) {
  return numberAtStart(device.firmware.substr(0, 1)) >= 1 &&
         numberAtStart(lastOf(device.firmware, 2)) >= 14 && device.nominalVolts == 240 &&
         device.modelLine == 1;
}

bool hasHighOverVoltageFloor(std::string_view firmware) {
  return firmware == "1.JD1" || firmware < "1.JB3";
}

}  // namespace zephon
