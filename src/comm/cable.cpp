#include "comm/cable.h"

#include <algorithm>
#include <cerrno>

#include "platform/error_text.h"

namespace zephon {
namespace {

bool isSlow(const UsbCable& cable) {
  return cable.latencyMs && *cable.latencyMs != kRequiredLatencyMs;
}

bool isSet(const UsbCable& cable) {
  return cable.latencyMs == kRequiredLatencyMs;
}

std::string latencyText(const UsbCable& cable) {
  const std::string wanted = std::to_string(kRequiredLatencyMs) + " ms";
  if (!cable.latencyMs) return "its settings can't be read";
  if (isSet(cable)) return "latency " + wanted + ", as it must be";
  return "latency " + std::to_string(*cable.latencyMs) + " ms, but " + wanted + " are needed";
}

std::string byHand(const std::string& folder, const std::string& name) {
  return "echo " + std::to_string(kRequiredLatencyMs) + " | sudo tee " + latencyFile(folder, name);
}

// What to do about a latency that was not taken.
std::string refusedText(const std::string& folder, const UsbCable& cable, int error) {
  const std::string again = "unplug the cable and plug it in again";
  if (error == EACCES || error == EPERM) {
    return cable.name +
           ": only an administrator may write this. The installed package sets it by itself when " +
           "the cable is plugged in: " + again + ". Or, in a terminal: " + byHand(folder, cable.name);
  }
  const std::string why = error == 0 ? "the driver did not keep the value" : systemErrorText(error);
  return cable.name + ": " + why + "; " + again + ".";
}

}  // namespace

bool checkCOMsettings(Main& main) {
  const std::vector<UsbCable> cables = usbCables(main.around.folders.usbSerial);
  const auto slow = std::ranges::find_if(cables, isSlow);
  if (slow == cables.end()) return true;
  main.exchange.shortfall = cablesText({*slow}) + ". Configure Port on the COM page sets it.";
  return false;
}

std::string configureCables(const std::string& folder) {
  std::string refused;
  for (const UsbCable& cable : usbCables(folder)) {
    const int error = setLatency(folder, cable.name, kRequiredLatencyMs);
    const auto cables = usbCables(folder);
    const auto now = std::ranges::find(cables, cable.name, &UsbCable::name);
    const bool taken = error == 0 && now != cables.end() && isSet(*now);
    if (!taken && refused.empty()) refused = refusedText(folder, cable, error);
  }
  return refused;
}

std::string cablesText(const std::vector<UsbCable>& cables) {
  std::string text;
  for (const UsbCable& cable : cables) {
    text += (text.empty() ? "" : "\n") + cable.name + ": " + latencyText(cable);
  }
  return text;
}

}  // namespace zephon
