#include "reports/setup_report.h"

#include "files/csv_write.h"
#include "form/dictionary.h"
#include "protocol/model_names.h"

namespace zephon {
namespace {

constexpr int kKeyTitle = 156;
constexpr int kKeyFirmware = 22;
constexpr int kKeySoftware = 199;
constexpr int kKeyChip = 23;
constexpr int kKeyRating = 136;
constexpr int kKeyOverload = 164;
constexpr int kKeyWiring = 157;

struct Limit {
  int key;
  std::int16_t Limits::*volts;
};
constexpr Limit kLimits[] = {{158, &Limits::OVco}, {159, &Limits::OVre}, {160, &Limits::OVrs},
                             {161, &Limits::UVrs}, {162, &Limits::UVre}, {163, &Limits::UVco}};

struct Switch {
  int key;
  std::optional<bool> DeviceSettings::*state;
};
constexpr Switch kSwitches[] = {{92, &DeviceSettings::autoTransmit},
                                {96, &DeviceSettings::internalChart},
                                {165, &DeviceSettings::groundDetection},
                                {204, &DeviceSettings::overloadShutdown},
                                {209, &DeviceSettings::powerFailHold}};

class Lines {
 public:
  explicit Lines(std::span<const std::string> dict) : dict_(dict) {}
  void add(const std::string& text) { text_ += fileLine(text); }
  void add(int key, const std::string& value) { add(dictText(dict_, key) + ": " + value); }
  std::string take() { return std::move(text_); }

 private:
  std::span<const std::string> dict_;
  std::string text_;
};

std::string stateText(bool on) {
  return on ? "True" : "False";
}

void addHead(Lines& lines, const FileStamp& stamp, std::span<const std::string> dict) {
  lines.add(modelName(stamp.modelLine) + ' ' + dictText(dict, kKeyTitle));
  lines.add("");
  lines.add("ID: " + stamp.userID);
  lines.add(kKeyFirmware, stamp.firmwareVersion);
  lines.add(kKeySoftware, std::string(kSoftwareVersion));
  lines.add(kKeyChip, stamp.chipID);
  lines.add(kKeyRating, std::to_string(stamp.nominalVolts) + " V");
}

}  // namespace

std::string setupReport(const FileStamp& stamp, const DeviceSettings& settings,
                        std::span<const std::string> dict) {
  Lines lines(dict);
  addHead(lines, stamp, dict);
  if (settings.limits) {
    for (const Limit& limit : kLimits)
      lines.add(limit.key, std::to_string((*settings.limits).*limit.volts) + " V");
  }
  if (settings.overloadAmps) lines.add(kKeyOverload, std::to_string(*settings.overloadAmps) + " A");
  for (const Switch& one : kSwitches) {
    if (const auto state = settings.*one.state) lines.add(one.key, stateText(*state));
  }
  if (settings.centerTap) lines.add(kKeyWiring, *settings.centerTap ? "120/240 Center Tap" : "120/208 Wye");
  return lines.take();
}

}  // namespace zephon
