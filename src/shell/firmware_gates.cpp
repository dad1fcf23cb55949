#include "shell/firmware_gates.h"

namespace zephon {

FirmwareGates firmwareGates(const Link& link) {
  const std::string& version = link.firmwareVersion;
  const bool first = link.modelLine == 0;
  FirmwareGates gates;
  gates.autoTransmit = first ? version >= "1.GB0" : version >= "1.67" && link.nominalVolts == 120;
  gates.internalChart = first && version >= "1.GB0";
  gates.overloadCount = first && version >= "1.GB0";
  gates.groundDetection = first && version >= "1.IBR";
  gates.overloadShutdown = first && version >= "1.JB3" && version >= "1.JD1";
  gates.powerFailHold = first && version >= "1.KD1";
  gates.wiring = !first && version >= "1*14" && link.nominalVolts > 120;
  gates.neutralGround = first || version >= "2.00";
  return gates;
}

}  // namespace zephon
