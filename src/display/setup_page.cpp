#include "display/setup_page.h"

#include <functional>

#include "display/link_status.h"
#include "display/setup_controls.h"
#include "protocol/battery.h"
#include "protocol/clock.h"
#include "protocol/identity.h"
#include "protocol/limit_coupling.h"
#include "protocol/options.h"
#include "protocol/stay.h"
#include "protocol/thresholds.h"
#include "text/calendar.h"

namespace zephon {
namespace {

constexpr double kReadBackPauseMs = 100;
constexpr double kSecond = 1.0 / kSecondsPerDay;

using Read = bool (*)(Main&);

bool readBack(Main& main, const Stay& stay, Read read) {
  return stay.wait(kReadBackPauseMs) && read(main);
}

// One write with its read-back. `work` answers whether the device took part; `done` then shows the success.
void runWrite(Main& main, const PageExits& exits, const std::function<bool(const Stay&)>& work,
              const std::function<void()>& done) {
  const Stay stay(main);
  holdSetupControls(main);
  const bool good = work(stay);
  if (good && stay.stands()) return done();
  restoreSetupCaptions(main);
  freeSetupControls(main);
  if (stay.stands()) exits.linkLost();
}

// A button that acts when it is pressed and says for a second that the write is done.
void wireNoted(Main& main, const PageExits& exits, Button& button,
               const std::function<bool(const Stay&)>& work) {
  button.onChange = [&main, exits, &button, work](bool pressed) {
    if (pressed) runWrite(main, exits, work, [&main, &button] { noteDone(main, button); });
  };
}

// What the device refuses shows by coming back changed, so the read-back alone decides.
void wireLimits(Main& main, const PageExits& exits) {
  wireLimitCoupling(main);
  wireNoted(main, exits, main.setup.updateLimsBtn, [&main](const Stay& stay) {
    setThresholds(main);
    return readBack(main, stay, getThresholds);
  });
  main.setup.defaultBtn.onChange = [&main](bool pressed) {
    if (pressed) setDefaultLimits(main);
  };
}

void wireIdentity(Main& main, const PageExits& exits) {
  wireNoted(main, exits, main.setup.updateIDBtn, [&main](const Stay& stay) {
    const bool good = setUserID(main) && readBack(main, stay, getUserID);
    if (good) showLinkState(main);
    return good;
  });
}

// The computer's clock tells whole seconds; half of one is the mean of what it leaves out.
double computerTime(const Main& main) {
  const sysTimeRecord now = main.around.clock.now().local;
  return dateValue({now.year, now.month, now.day, now.hour, now.minute, now.second}) + kSecond / 2;
}

void wireClock(Main& main, const PageExits& exits) {
  SetupElements& setup = main.setup;
  const auto write = [&main](const Stay& stay) { return setTime(main) && readBack(main, stay, getTime); };
  wireNoted(main, exits, setup.setTimeBtn, write);
  wireNoted(main, exits, setup.setTimeAutoBtn, [&main, write](const Stay& stay) {
    main.setup.timeNumEdit.setValue(computerTime(main));
    return write(stay);
  });
  setup.timeNumEdit.onEditStart = [&main] { main.timers.Timer3.setEnabled(false); };
  main.timers.Timer3.onTick = [&main] {
    main.setup.timeNumEdit.setValue(main.setup.timeNumEdit.value() + kSecond);
  };
}

// The device tells its wiring only when it is asked; that answer turns the button where it must.
void wireWiring(Main& main, const PageExits& exits) {
  Button& button = main.setup.YorCTbutton;
  button.onChange = [&main, exits, &button](bool value) {
    if (!button.enabled()) return;
    const auto write = [&main, value](const Stay& stay) {
      return setYorCT(main, value) && stay.wait(kReadBackPauseMs) && getYorCT(main) != 0;
    };
    runWrite(main, exits, write, [&main] { freeSetupControls(main); });
  };
}

struct OptionHandler {
  Button SetupElements::*button;
  bool (*write)(Main&, bool);
  Read read;
};
constexpr OptionHandler kOptionHandlers[] = {
    {&SetupElements::enableAutoTXbtn, setEnableAutoTX, getAutoTXstate},
    {&SetupElements::enableGndBtn, setEnableGndDetect, getGndDetectState},
    {&SetupElements::enableOLcoBtn, setEnableOLshutdown, getOLcoState},
    {&SetupElements::enablePowerFailHoldBtn, setEnablePowerFailHold, getPowerFailHold},
};

// A change of value while the button is disabled is the program's, not a press.
void wireOption(Main& main, const PageExits& exits, const OptionHandler& option) {
  Button& button = main.setup.*option.button;
  button.onChange = [&main, exits, &button, &option](bool value) {
    if (!button.enabled()) return;
    const auto write = [&main, &option, value](const Stay& stay) {
      return option.write(main, value) && readBack(main, stay, option.read);
    };
    runWrite(main, exits, write, [&main] { freeSetupControls(main); });
  };
}

// The recording can't be stopped: a press that would only asks the device, which turns the button back.
void wireChartMemory(Main& main, const PageExits& exits) {
  Button& button = main.setup.startInternalCMbtn;
  button.onChange = [&main, exits, &button](bool start) {
    if (!button.enabled()) return;
    const auto write = [&main, start](const Stay& stay) {
      return (!start || setStartInternalCM(main)) && readBack(main, stay, getInternalChartState);
    };
    runWrite(main, exits, write,
             [&main, &button, start] { start ? noteDone(main, button) : freeSetupControls(main); });
  };
}

struct FirstRead {
  Button SetupElements::*button;  // read when it is shown
  Read read;
};
constexpr FirstRead kFirstOptionReads[] = {
    {&SetupElements::startInternalCMbtn, getInternalChartState},
    {&SetupElements::enableGndBtn, getGndDetectState},
    {&SetupElements::enableOLcoBtn, getOLcoState},
    {&SetupElements::enablePowerFailHoldBtn, getPowerFailHold},
};

// Each read frees its own button; it is held again until all are done.
bool readShownOption(Main& main, const FirstRead& option) {
  Button& button = main.setup.*option.button;
  if (!button.visible()) return true;
  const bool good = option.read(main);
  button.setEnabled(false);
  return good;
}

bool readFirstLine(Main& main) {
  if (!getTime(main) || !getBattery(main)) return false;
  for (const FirstRead& option : kFirstOptionReads) {
    if (!readShownOption(main, option)) return false;
  }
  return true;
}

}  // namespace

void wireSetupPage(Main& main, const PageExits& exits) {
  wireLimits(main, exits);
  wireIdentity(main, exits);
  wireClock(main, exits);
  wireWiring(main, exits);
  for (const OptionHandler& option : kOptionHandlers) wireOption(main, exits, option);
  wireChartMemory(main, exits);
  main.timers.Timer2.onTick = [&main] { endNote(main); };
}

bool readSetupPage(Main& main) {
  const Stay stay(main);
  holdSetupControls(main);
  const bool good = getThresholds(main) && (main.link.modelLine == 1 || readFirstLine(main)) &&
                    readShownOption(main, {&SetupElements::enableAutoTXbtn, getAutoTXstate});
  freeSetupControls(main);
  return good && stay.stands();
}

}  // namespace zephon
