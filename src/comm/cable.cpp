#include "comm/cable.h"

#include <algorithm>
#include <cerrno>

#include "form/words.h"
#include "platform/error_text.h"

namespace zephon {
namespace {

using Dict = std::span<const std::string>;

bool isSlow(const UsbCable& cable) {
  return cable.latencyMs && *cable.latencyMs != kRequiredLatencyMs;
}

bool isSet(const UsbCable& cable) {
  return cable.latencyMs == kRequiredLatencyMs;
}

const std::string kWanted = std::to_string(kRequiredLatencyMs);

std::string cableText(const UsbCable& cable, Dict dict) {
  if (!cable.latencyMs) return filledText(wordText(dict, words::kCableUnread), {cable.name});
  const Word& word = isSet(cable) ? words::kCableReady : words::kCableSlow;
  return filledText(wordText(dict, word), {cable.name, std::to_string(*cable.latencyMs), kWanted});
}

std::string byHand(const std::string& folder, const std::string& name) {
  return "echo " + kWanted + " | sudo tee " + latencyFile(folder, name);
}

// What to do about a latency that was not taken.
std::string refusedText(const std::string& folder, const UsbCable& cable, int error, Dict dict) {
  if (error == EACCES || error == EPERM)
    return filledText(wordText(dict, words::kCableNoRights), {cable.name, byHand(folder, cable.name)});
  const Word& word = error == 0 ? words::kCableNotKept : words::kCableFault;
  return filledText(wordText(dict, word), {cable.name, systemErrorText(error)});
}

}  // namespace

bool checkCOMsettings(Main& main) {
  const std::vector<UsbCable> cables = usbCables(main.around.folders.usbSerial);
  const auto slow = std::ranges::find_if(cables, isSlow);
  if (slow == cables.end()) return true;
  main.exchange.shortfall =
      filledText(wordText(main.dict, words::kCableCheck), {cableText(*slow, main.dict)});
  return false;
}

std::string configureCables(const std::string& folder, Dict dict) {
  std::string refused;
  for (const UsbCable& cable : usbCables(folder)) {
    const int error = setLatency(folder, cable.name, kRequiredLatencyMs);
    const auto cables = usbCables(folder);
    const auto now = std::ranges::find(cables, cable.name, &UsbCable::name);
    const bool taken = error == 0 && now != cables.end() && isSet(*now);
    if (!taken && refused.empty()) refused = refusedText(folder, cable, error, dict);
  }
  return refused;
}

std::string cablesText(const std::vector<UsbCable>& cables, Dict dict) {
  std::string text;
  for (const UsbCable& cable : cables) text += (text.empty() ? "" : "\n") + cableText(cable, dict);
  return text.empty() ? wordText(dict, words::kNoCable) : text;
}

}  // namespace zephon
