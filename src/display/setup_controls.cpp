#include "display/setup_controls.h"

#include <array>

#include "protocol/dict_text.h"
#include "protocol/options.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyDone = 31;
constexpr double kNoteMs = 1000;

void enable(SetupElements& setup, bool on) {
  const std::array<Element*, 10> controls = {
      &setup.updateLimsBtn, &setup.updateIDBtn,           &setup.setTimeBtn,         &setup.setTimeAutoBtn,
      &setup.timeNumEdit,   &setup.enableAutoTXbtn,       &setup.startInternalCMbtn, &setup.enableGndBtn,
      &setup.enableOLcoBtn, &setup.enablePowerFailHoldBtn};
  for (Element* control : controls) control->setEnabled(on);
  setup.YorCTbutton.setEnabled(on && setup.YorCTbutton.visible());
}

}  // namespace

void holdSetupControls(Main& main) {
  main.timers.Timer2.setEnabled(false);
  restoreSetupCaptions(main);
  enable(main.setup, false);
}

void freeSetupControls(Main& main) {
  enable(main.setup, true);
}

void restoreSetupCaptions(Main& main) {
  SetupElements& setup = main.setup;
  setup.updateLimsBtn.setTexts(dictText(main, 32));
  setup.updateIDBtn.setTexts(dictText(main, 33));
  setup.setTimeBtn.setTexts(dictText(main, 34));
  setup.setTimeAutoBtn.setTexts(dictText(main, 35));
  showChartMemoryText(main);
}

void noteDone(Main& main, Button& button) {
  holdSetupControls(main);
  button.setTexts(dictText(main, kKeyDone));
  main.timers.Timer2.setInterval(kNoteMs);
  main.timers.Timer2.setEnabled(true);
}

void endNote(Main& main) {
  restoreSetupCaptions(main);
  main.timers.Timer2.setEnabled(false);
  if (main.link.connected) freeSetupControls(main);
}

}  // namespace zephon
