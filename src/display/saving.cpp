#include "display/saving.h"

#include "display/file_questions.h"
#include "display/file_stamp.h"
#include "display/report_saving.h"
#include "display/unsaved_chart.h"
#include "files/chart_csv.h"
#include "files/dat_file.h"
#include "files/event_csv.h"
#include "files/fault_text.h"
#include "files/history_csv.h"
#include "logs/raw_log.h"
#include "platform/save_file.h"
#include "protocol/asking.h"
#include "protocol/dict_text.h"
#include "protocol/scope_samples.h"
#include "protocol/stay.h"
#include "text/strings.h"

namespace zephon {
namespace {

constexpr std::size_t kKeySave = 189;
constexpr char kRaw[] = "Raw";

constexpr std::size_t kFewestChartBytes = 130'001;

// A table that was read from a .csv file has no raw bytes to be told by.
Saved tableThatStands(const Logs& logs) {
  if (logs.histData.size() > 1) return Saved::History;
  return logs.tsData.empty() ? Saved::Nothing : Saved::Events;
}

Saved byRawBytes(const Logs& logs) {
  if (logs.rawLogBuffer.empty()) return tableThatStands(logs);
  switch (logOfRawBytes(logs.rawLogBuffer)) {
    case ShownLog::Events:
      return Saved::Events;
    case ShownLog::History:
      return Saved::History;
    default:
      return Saved::Nothing;
  }
}

// The rows of a live chart end with the one that is being filled.
std::span<const std::array<double, 9>> finishedRows(const Main& main) {
  const std::span<const std::array<double, 9>> rows = main.logs.chartData;
  return main.recording.live && !rows.empty() ? rows.first(rows.size() - 1) : rows;
}

// The picture as it was captured; what its next one will be is not for the file.
ScopeCapture captureOf(const Main& main) {
  const Capture& c = main.capture;
  ScopeCapture capture{c.capturedMode, c.capturedXScale, c.ch1Scale, c.ch2Scale,
                       c.ch3Scale,     c.scopeV,         c.scopeA,   c.scopeW};
  if (const CaptureKind* kind = captureKind(c.capturedMode))
    capture.samplePeriod = samplePeriodMs(*kind) / 1000;
  return capture;
}

struct Writer {
  FileKind kind;
  bool hasRawForm;
  std::string (*csv)(const Main&);
};

std::string scopeAsCsv(const Main& main) {
  return scopeCsv(stampOf(main), captureOf(main), main.dict);
}

std::string eventsAsCsv(const Main& main) {
  return eventCsv(stampOf(main), main.logs.tsData, main.dict);
}
std::string historyAsCsv(const Main& main) {
  return historyCsv(stampOf(main), main.logs.histData, main.dict);
}
std::string liveChartAsCsv(const Main& main) {
  return chartCsv(stampOf(main), finishedRows(main), FileKind::LiveChart, main.dict);
}
std::string internalChartAsCsv(const Main& main) {
  return chartCsv(stampOf(main), finishedRows(main), FileKind::InternalChart, main.dict);
}

constexpr Writer kScopeWriter{FileKind::Scope, true, scopeAsCsv};
constexpr Writer kEventWriter{FileKind::Events, true, eventsAsCsv};
constexpr Writer kHistoryWriter{FileKind::History, true, historyAsCsv};
constexpr Writer kLiveChartWriter{FileKind::LiveChart, false, liveChartAsCsv};
constexpr Writer kInternalChartWriter{FileKind::InternalChart, true, internalChartAsCsv};

// Reports have their own.
const Writer* writerOf(Saved what) {
  switch (what) {
    case Saved::Events:
      return &kEventWriter;
    case Saved::History:
      return &kHistoryWriter;
    case Saved::LiveChart:
      return &kLiveChartWriter;
    case Saved::InternalChart:
      return &kInternalChartWriter;
    case Saved::Scope:
      return &kScopeWriter;
    case Saved::Nothing:
    case Saved::Report:
      break;
  }
  return nullptr;
}

bool wantsRaw(const Main& main) {
  return main.frame.saveBtn.caption() == kRaw;
}

bool hasRaw(const Main& main, const Writer& writer) {
  // The second line's events come out of its memory image, which is no log's raw form.
  const bool imaged = writer.kind == FileKind::Events && main.link.modelLine == 1;
  return writer.hasRawForm && !imaged && !main.logs.rawLogBuffer.empty();
}

std::string rawFile(const Main& main, const Writer& writer) {
  const ScopeCapture capture = captureOf(main);
  return datFile(stampOf(main), writer.kind, main.logs.rawLogBuffer,
                 writer.kind == FileKind::Scope ? &capture : nullptr);
}

std::vector<FileFilter> filtersOf(const Writer& writer, bool raw) {
  if (raw) return {kDatFilter};
  if (writer.kind == FileKind::Events) return {kPdfFilter, kCsvFilter};
  return {kCsvFilter};
}

std::optional<std::string> askForName(Main& main, const Writer& writer,
                                      const std::vector<FileFilter>& filters) {
  const std::string name = defaultFileName(writer.kind, '.' + filters.front().extension, main.dict,
                                           presentTime(main.around.clock));
  return main.around.dialogs.saveFile({firstFolder(main), name, filters});
}

bool isChart(const Writer& writer) {
  return writer.kind == FileKind::LiveChart || writer.kind == FileKind::InternalChart;
}

// A log of events is saved as a report under any name that is not a .csv file's.
bool isReport(const Writer& writer, bool raw, const std::string& path) {
  return writer.kind == FileKind::Events && !raw && !equalIgnoringCase(lastOf(path, 3), "csv");
}

// A chart can still be saved when its link was lost while the question stood.
bool canGoOn(const Main& main, const Stay& stay, const Writer& writer) {
  return stay.stands() || (isChart(writer) && chartWasLeft(main));
}

void save(Main& main, const Writer& writer) {
  const Stay stay(main);
  const bool raw = wantsRaw(main) && hasRaw(main, writer);
  if (wantsRaw(main) && !raw) main.around.dialogs.message(dictText(main, words::kNoRawBytes));
  if (!canGoOn(main, stay, writer)) return;
  const auto path = askForName(main, writer, filtersOf(writer, raw));
  if (!path || !canGoOn(main, stay, writer)) return;
  if (!mayReplace(main, *path) || !canGoOn(main, stay, writer)) return;
  if (isReport(writer, raw, *path)) return saveEventReport(main, *path);
  const std::string bytes = raw ? rawFile(main, writer) : writer.csv(main);
  const SaveResult saved = saveFile(*path, bytes);
  if (!saved) return saveErrorSub(main, saveFaultText(saved, main.dict));
  if (!raw && isChart(writer)) chartSaved(main);
}

void toggleRaw(Main& main) {
  Button& button = main.frame.saveBtn;
  const bool raw = button.caption() != kRaw;
  button.setTexts(raw ? kRaw : "");
  showSaveTooltip(main);
}

}  // namespace

Saved whatToSave(const Main& main) {
  const Logs& logs = main.logs;
  if (main.scope.CH1togBtn.visible()) return Saved::Scope;
  const bool raw = !logs.rawLogBuffer.empty();
  if (main.chart.vlnChartBtn.visible())
    return logs.rawLogBuffer.size() < kFewestChartBytes ? Saved::LiveChart : Saved::InternalChart;
  // A chart memory that is not full has fewer bytes, but stands on its own page.
  if (logs.shown == ShownLog::Chart) return raw ? Saved::InternalChart : Saved::LiveChart;
  if (main.data.histDataBtn.visible()) return byRawBytes(logs);
  if (main.data.tsDataBtn.visible() && main.link.modelLine == 1) return Saved::Events;
  return main.pages.measuring || main.pages.setupOn ? Saved::Report : Saved::Nothing;
}

void showSaveTooltip(Main& main) {
  main.frame.saveBtn.setTooltip(dictText(main, kKeySave) + (wantsRaw(main) ? std::string(" ") + kRaw : ""));
}

void wireSaving(Main& main) {
  main.frame.saveBtn.onMouseUp = [&main](MouseButton mouse) {
    if (mouse == MouseButton::Right) return toggleRaw(main);
    letChartGoOn(main);
    const Saved what = whatToSave(main);
    if (what == Saved::Report) return saveSetupReport(main);
    if (const Writer* writer = writerOf(what)) save(main, *writer);
  };
}

}  // namespace zephon
