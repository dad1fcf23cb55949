#include "protocol/options.h"

#include <string_view>

#include "protocol/dict_text.h"
#include "protocol/exchange.h"

namespace zephon {
namespace {

// A command that the device wants confirmed by a second text; none where there is no such write.
struct Write {
  const DeviceCommand* command = nullptr;
  std::string_view second;
};

// Dictionary keys of what the button says in a state; both of its texts are the same.
struct Texts {
  std::size_t text = 0;
  std::size_t tooltip = 0;
};

struct Option {
  Button SetupElements::*button;
  const DeviceCommand& read;  // answers "Y" or "N"
  Write on, off;              // the first line's
  Texts yes, no;
};

using S = SetupElements;
namespace o = orvantis;

constexpr Option kAutoTransmit{&S::enableAutoTXbtn,   o::kAutoTX, {&o::kAutoTXOn, "Y"},
                               {&o::kAutoTXOff, "Y"}, {92, 93},   {94, 95}};
constexpr Option kChartMemory{
    &S::startInternalCMbtn, o::kInternalChart, {&o::kStartInternalChart, "Y"}, {}, {96, 97}, {98, 99}};
constexpr Option kGroundDetection{&S::enableGndBtn,         o::kGndDetect, {&o::kSetGndDetect, "Y"},
                                  {&o::kSetGndDetect, "N"}, {165, 170},    {171, 172}};
constexpr Option kOverloadShutdown{&S::enableOLcoBtn,   o::kOLco,   {&o::kOLcoOn, "Y"},
                                   {&o::kOLcoOff, "Y"}, {204, 206}, {205, 207}};
constexpr Option kPowerFailHold{&S::enablePowerFailHoldBtn,   o::kPowerFailHold, {&o::kSetPowerFailHold, "Y"},
                                {&o::kSetPowerFailHold, "N"}, {209, 212},        {210, 211}};

void showTexts(Main& main, const Option& option, bool on) {
  Button& button = main.setup.*option.button;
  const Texts& texts = on ? option.yes : option.no;
  button.setTexts(dictText(main, texts.text));
  button.setTooltip(dictText(main, texts.tooltip));
}

// The last character of the reply; 0 when the exchange failed.
char ask(Main& main, const DeviceCommand& command) {
  const auto reply = countedQuery(main, command);
  return reply ? reply->back() : '\0';
}

// False for a letter that is no state.
bool show(Main& main, const Option& option, char letter) {
  if (letter != 'Y' && letter != 'N') return false;
  Button& button = main.setup.*option.button;
  button.setEnabled(false);  // so that the change of value does not act as a press
  button.setValue(letter == 'Y');
  showTexts(main, option, letter == 'Y');
  button.setEnabled(true);
  return true;
}

bool readOnSetupPage(Main& main, const Option& option) {
  const char letter = ask(main, option.read);
  if (letter == '\0') return false;
  if (!main.pages.setupOn) return true;
  if (!show(main, option, letter)) return false;
  (main.setup.*option.button).setVisible(true);
  return true;
}

bool writeOption(Main& main, const Option& option, bool on) {
  const Write& write = on ? option.on : option.off;
  return write.command != nullptr && confirmedWrite(main, *write.command, 100, write.second);
}

bool writeSecondLine(Main& main, const DeviceCommand& command) {
  flushPort(main);
  sendText(main, command.text);
  return true;
}

}  // namespace

bool getAutoTXstate(Main& main) {
  const char letter = ask(main, main.link.modelLine == 0 ? orvantis::kAutoTX : tessara::kAutoTX);
  return show(main, kAutoTransmit, letter);
}

bool getInternalChartState(Main& main) {
  const char letter = ask(main, kChartMemory.read);
  if (letter == '1') {
    if (main.pages.dataOn) main.data.cmDataBtn.setVisible(false);
    return true;
  }
  if (main.pages.setupOn) return show(main, kChartMemory, letter);
  return letter == 'Y' || letter == 'N';
}

bool getGndDetectState(Main& main) {
  return readOnSetupPage(main, kGroundDetection);
}
bool getOLcoState(Main& main) {
  return readOnSetupPage(main, kOverloadShutdown);
}
bool getPowerFailHold(Main& main) {
  return readOnSetupPage(main, kPowerFailHold);
}

bool setEnableAutoTX(Main& main, bool on) {
  if (main.link.modelLine == 0) return writeOption(main, kAutoTransmit, on);
  return writeSecondLine(main, on ? tessara::kAutoTXOn : tessara::kAutoTXOff);
}
bool setStartInternalCM(Main& main) {
  return writeOption(main, kChartMemory, true);
}
bool setEnableGndDetect(Main& main, bool on) {
  return writeOption(main, kGroundDetection, on);
}
bool setEnableOLshutdown(Main& main, bool on) {
  return writeOption(main, kOverloadShutdown, on);
}
bool setEnablePowerFailHold(Main& main, bool on) {
  return writeOption(main, kPowerFailHold, on);
}

void showOptionTexts(Main& main) {
  for (const Option* option :
       {&kAutoTransmit, &kChartMemory, &kGroundDetection, &kOverloadShutdown, &kPowerFailHold}) {
    showTexts(main, *option, (main.setup.*option->button).value());
  }
}

void showChartMemoryText(Main& main) {
  showTexts(main, kChartMemory, main.setup.startInternalCMbtn.value());
}

}  // namespace zephon
