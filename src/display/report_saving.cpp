#include "display/report_saving.h"

#include "display/file_questions.h"
#include "display/file_stamp.h"
#include "files/fault_text.h"
#include "platform/save_file.h"
#include "protocol/asking.h"
#include "protocol/dict_text.h"
#include "protocol/stay.h"
#include "reports/event_report.h"
#include "reports/event_rows.h"
#include "reports/expert_report.h"
#include "reports/setup_report.h"
#include "screen/elements_held.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyProduct = 30;
constexpr std::size_t kKeyReport = 50;
constexpr std::size_t kKeyLogTitle = 52;
constexpr std::size_t kKeySetupTitle = 156;
constexpr std::size_t kKeyExpertTitle = 166;

PdfHost hostOf(Main& main) {
  PdfHost host;
  host.programFolder = main.around.folders.program;
  host.now = [&main] { return presentTime(main.around.clock); };
  host.message = [&main](const std::string& title, const std::string& text) {
    tellTitled(main, title, text);
  };
  host.notSaved = [&main](const SaveResult& why) { saveErrorSub(main, saveFaultText(why, main.dict)); };
  return host;
}

ReportHead headOf(const Main& main, std::size_t titleKey, std::string dateRange) {
  const Link& link = main.link;
  return {dictText(main, titleKey),
          std::move(dateRange),
          link.modelLine,
          link.nominalVolts == 240 ? 240 : 120,
          link.userID,
          link.firmwareVersion,
          link.chipID};
}

void show(Main& main, const std::string& path) {
  if (main.ending || main.around.dialogs.openInViewer(path)) return;
  tell(main, filledText(dictText(main, words::kReportSaved), {path}));
}

std::vector<std::string> raisedFindings(const Findings& findings) {
  std::vector<std::string> texts;
  for (std::size_t slot = 0; slot < kFindingSlots; ++slot) {
    if (findings.findingFlags[slot]) texts.push_back(findings.findingTexts[slot]);
  }
  return texts;
}

std::optional<std::string> askForName(Main& main, const std::string& text, const FileFilter& filter) {
  const std::string name = stampedFileName(text, '.' + filter.extension, presentTime(main.around.clock));
  return main.around.dialogs.saveFile({firstFolder(main), name, {filter}});
}

// A switch that the device does not have is hidden.
std::optional<bool> stateOf(const Button& button) {
  return button.visible() ? std::optional(button.value()) : std::nullopt;
}

std::optional<int> overloadAmps(const SetupElements& setup) {
  if (!setup.OLreNumEdit.visible()) return {};
  return static_cast<int>(setup.OLreNumEdit.value());
}

DeviceSettings settingsOf(const Main& main) {
  const SetupElements& setup = main.setup;
  DeviceSettings settings;
  settings.limits = main.limits;
  settings.overloadAmps = overloadAmps(setup);
  settings.autoTransmit = stateOf(setup.enableAutoTXbtn);
  settings.internalChart = stateOf(setup.startInternalCMbtn);
  settings.groundDetection = stateOf(setup.enableGndBtn);
  settings.overloadShutdown = stateOf(setup.enableOLcoBtn);
  settings.powerFailHold = stateOf(setup.enablePowerFailHoldBtn);
  if (setup.YorCTbutton.visible()) settings.centerTap = main.link.yOrCTflag;
  return settings;
}

}  // namespace

// What was found is at hand: a link that is lost while a question stands takes nothing away.
void saveExpertReport(Main& main) {
  const std::vector<std::string> findings = raisedFindings(main.findings);
  const ReportHead head = headOf(main, kKeyExpertTitle, main.findings.dateRange);
  const auto path =
      askForName(main, dictText(main, kKeyProduct) + ' ' + dictText(main, kKeyReport), kPdfFilter);
  if (!path || main.ending || !mayReplace(main, *path) || main.ending) return;
  const ElementsHeld held{&main.frame.saveBtn};
  if (writeExpertReport(*path, hostOf(main), head, findings, main.dict)) show(main, *path);
}

void saveEventReport(Main& main, const std::string& path) {
  const ElementsHeld held{&main.frame.saveBtn};
  const LogTable<8> events = main.logs.tsData;  // another may come while a box stands
  const ReportHead head = headOf(main, kKeyLogTitle, eventPeriod(events));
  if (writeEventReport(path, hostOf(main), head, events, main.dict)) show(main, path);
}

void saveSetupReport(Main& main) {
  const Stay stay(main);
  const auto path = askForName(main, dictText(main, kKeySetupTitle), kTextFilter);
  if (!path || !stay.stands() || !mayReplace(main, *path) || !stay.stands()) return;
  const ElementsHeld held{&main.frame.saveBtn};
  const SaveResult saved = saveFile(*path, setupReport(stampOf(main), settingsOf(main), main.dict));
  if (!saved) saveErrorSub(main, saveFaultText(saved, main.dict));
}

}  // namespace zephon
