#include "protocol/clock.h"

#include "protocol/dict_text.h"
#include "protocol/exchange.h"
#include "protocol/stay.h"
#include "text/date_picture.h"
#include "text/strings.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyUpdating = 100;
constexpr double kClockInterval = 1000;
constexpr std::size_t kWiringReply = 3;
constexpr std::int32_t kWiringRead = 10;

char packed(std::string_view twoDigits) {
  return static_cast<char>((twoDigits[0] - '0') * 16 + (twoDigits[1] - '0'));
}

UtcOffset offsetNow(const Main& main) {
  return utcOffset(main.around.clock.now());
}

// The command, then the bytes at the pace at which the device takes them.
// The field runs on during the pause; what it shows then is what is sent.
void sendClock(Main& main) {
  const WriteInFlight held(main);
  flushPort(main);
  sendText(main, orvantis::kSetTime.text);
  wait(main, 100);
  const std::string bytes = clockBytes(main.setup.timeNumEdit.value());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    sendText(main, partOf(bytes, i, 1));
    if (i + 1 < bytes.size()) wait(main, 10);
  }
}

// The button is disabled meanwhile, so that its change does not act as a click.
void showWiring(Main& main, bool centerTap) {
  Button& button = main.setup.YorCTbutton;
  button.setEnabled(false);
  main.link.yOrCTflag = centerTap;
  button.setValue(!centerTap);
  button.setEnabled(true);
}

}  // namespace

std::optional<double> clockValue(std::string_view reply, UtcOffset offset) {
  const auto universal = plainDeviceDate(reply);
  if (!universal) return {};
  return dateValue(
      calendarFromSeconds(calendarSeconds(calendarOf(*universal)) - nearestSeconds(offset.days)));
}

std::string clockBytes(double universal) {
  const std::string digits = formatDate(universal, "hhnnssmmddyy");
  std::string bytes;
  for (std::size_t i = 0; i < digits.size(); i += 2) bytes += packed(partOf(digits, i, 2));
  return bytes + static_cast<char>(weekdayOfValue(universal));
}

bool getTime(Main& main) {
  const auto reply = countedQuery(main, orvantis::kTime);
  if (!reply) return false;
  if (const auto value = clockValue(*reply, offsetNow(main))) main.setup.timeNumEdit.setValue(*value);
  main.timers.Timer3.setInterval(kClockInterval);
  main.timers.Timer3.setEnabled(true);
  return true;
}

bool setTime(Main& main) {
  SetupElements& setup = main.setup;
  setup.timeNumEdit.setValue(setup.timeNumEdit.value() + offsetNow(main).days);
  setup.setTimeBtn.setTexts(dictText(main, kKeyUpdating));
  setup.setTimeAutoBtn.setTexts(dictText(main, kKeyUpdating));
  sendClock(main);
  return getOK(main);
}

std::int16_t getYorCT(Main& main) {
  const Stay stay(main);
  flushPort(main);
  sendText(main, tessara::kWiring.text);
  main.exchange.timedOut = false;
  if (!stay.stands()) return 0;
  const auto reply = gather(main, tessara::kWiring.timeoutMs, kWiringRead,
                            [](const std::string& gathered) { return gathered.size() >= kWiringReply; });
  if (!reply) return 0;
  const bool centerTap = lastOf(*reply, kWiringReply) == "180";
  showWiring(main, centerTap);
  return centerTap ? 180 : 120;
}

bool setYorCT(Main& main, bool wye) {
  flushPort(main);
  if (main.link.modelLine == 1) sendText(main, wye ? tessara::kSetWye.text : tessara::kSetCenterTap.text);
  wait(main, 100);
  return true;
}

}  // namespace zephon
