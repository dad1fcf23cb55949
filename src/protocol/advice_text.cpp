#include "protocol/advice_text.h"

#include "protocol/dict_text.h"

namespace zephon {
namespace {

struct Line {
  PortTrouble trouble;
  Word word;
};

constexpr Line kLines[] = {
    {PortTrouble::NoPortName, words::kPortNoName},
    {PortTrouble::Missing, words::kPortMissing},
    {PortTrouble::MissingAlone, words::kPortMissingAlone},
    {PortTrouble::Hidden, words::kPortHidden},
    {PortTrouble::OwnerShut, words::kPortOwnerShut},
    {PortTrouble::GroupShut, words::kPortGroupShut},
    {PortTrouble::NotInGroup, words::kPortNotInGroup},
    {PortTrouble::NextLogin, words::kPortNextLogin},
    {PortTrouble::BeyondMode, words::kPortBeyondMode},
    {PortTrouble::Busy, words::kPortBusy},
    {PortTrouble::BusyHidden, words::kPortBusyHidden},
    {PortTrouble::NoSerial, words::kPortNoSerial},
    {PortTrouble::BackAgain, words::kPortBackAgain},
    {PortTrouble::NoDevice, words::kPortNoDevice},
    {PortTrouble::Other, words::kPortOther},
};

}  // namespace

std::string adviceText(const Main& main, const std::string& portName, int error) {
  const PortAdvice advice = main.around.serial.advice(portName, error);
  const auto& [first, second, third, fourth] = advice.places;
  for (const Line& line : kLines) {
    if (line.trouble == advice.trouble)
      return filledText(dictText(main, line.word), {first, second, third, fourth});
  }
  return {};
}

}  // namespace zephon
