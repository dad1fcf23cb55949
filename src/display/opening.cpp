#include "display/opening.h"

#include "display/chart_plot.h"
#include "display/file_questions.h"
#include "files/chart_csv.h"
#include "files/dat_file.h"
#include "files/dictionary_file.h"
#include "files/event_csv.h"
#include "files/fault_text.h"
#include "files/history_csv.h"
#include "logs/chart_download.h"
#include "logs/shown_log.h"
#include "platform/read_file.h"
#include "protocol/dict_text.h"
#include "protocol/identity.h"
#include "text/strings.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyLanguageName = 0;
constexpr std::size_t kKeyNotRead = 169;
constexpr std::size_t kExtensionLetters = 3;

void refuse(Main& main, const std::string& reason) {
  main.around.dialogs.message(dictText(main, kKeyNotRead), reason);
}

// The file's content; nothing, and the user told, when it can't be read.
std::optional<std::string> contentOf(Main& main, const std::string& path) {
  FileContent content = readFile(path, kLargestFile);
  if (content) return std::move(content.bytes);
  refuse(main, readFaultText(content, main.dict));
  return {};
}

bool isCsv(const std::string& path) {
  return equalIgnoringCase(lastOf(path, kExtensionLetters), "csv");
}

// The line decides how the chart is shown and saved; a file that doesn't tell a second-line device is of the
// first.
void takeIdentity(Main& main, const FileIdentity& identity) {
  main.link.userID = identity.userID;
  main.link.firmwareVersion = identity.firmwareVersion;
  main.link.chipID = identity.chipID;
  main.link.nominalVolts = static_cast<std::int16_t>(identity.nominalVolts);
  main.link.modelLine = identity.secondLine ? 1 : 0;
}

// True, with the table and the identity taken, when the reading found a log.
template <class Table>
bool take(Main& main, FileReading<Table>& reading, Table& table) {
  if (!reading) {
    refuse(main, faultText(*reading.fault, main.dict));
    return false;
  }
  table = std::move(reading.table);
  takeIdentity(main, reading.identity);
  return true;
}

// An event log, and the name of the language it was read by, where that is another one than the tool's.
struct EventsRead {
  EventCsvReading reading;
  std::string language;
};

// Event texts are found again only in the language that wrote them: the first one that knows them all.
EventsRead readInAnyLanguage(const Main& main, const std::string& content) {
  EventsRead own{readEventCsv(content, main.dict), {}};
  if (own.reading.unknownEvents == 0) return own;
  const std::string& folder = main.around.folders.program;
  for (const std::string& code : languagesIn(folder)) {
    const DictionaryFile other = readDictionary(folder, code);
    if (!other) continue;
    EventCsvReading reading = readEventCsv(content, other.entries);
    if (reading && reading.unknownEvents == 0) return {std::move(reading), other.entries[kKeyLanguageName]};
  }
  return own;
}

void tellLanguage(Main& main, const EventsRead& events) {
  Dialogs& dialogs = main.around.dialogs;
  const std::size_t unknown = events.reading.unknownEvents;
  if (unknown > 0) {
    dialogs.message(filledText(dictText(main, words::kUnknownEvents),
                               {std::to_string(unknown), std::to_string(main.logs.tsData.size())}),
                    dictText(main, words::kChooseLanguage));
  } else if (!events.language.empty()) {
    dialogs.message(filledText(dictText(main, words::kReadByLanguage), {events.language}), {});
  }
}

void openEventCsv(Main& main, const std::string& content) {
  EventsRead events = readInAnyLanguage(main, content);
  if (!take(main, events.reading, main.logs.tsData)) return;
  showEvents(main);
  tellLanguage(main, events);
}

void openEventDat(Main& main, const std::string& content) {
  DatReading<LogTable<8>> reading = readEventDat(content, utcOffset(main.around.clock.now()));
  if (!take(main, reading, main.logs.tsData)) return;
  main.logs.rawLogBuffer = reading.raw;
  showEvents(main);
}

void openHistoryCsv(Main& main, const std::string& content) {
  FileReading<LogTable<12>> reading = readHistoryCsv(content, main.dict);
  if (take(main, reading, main.logs.histData)) showHistory(main);
}

void openHistoryDat(Main& main, const std::string& content) {
  DatReading<LogTable<12>> reading = readHistoryDat(content, utcOffset(main.around.clock.now()));
  if (!take(main, reading, main.logs.histData)) return;
  main.logs.rawLogBuffer = reading.raw;
  showHistory(main);
}

void openEvents(Main& main, const std::string& path) {
  forgetLogs(main);
  const auto content = contentOf(main, path);
  if (content) isCsv(path) ? openEventCsv(main, *content) : openEventDat(main, *content);
}

void openHistory(Main& main, const std::string& path) {
  forgetLogs(main);
  const auto content = contentOf(main, path);
  if (content) isCsv(path) ? openHistoryCsv(main, *content) : openHistoryDat(main, *content);
}

void openChart(Main& main, const std::string& path) {
  forgetLogs(main);
  forgetChart(main);
  const auto content = contentOf(main, path);
  if (!content) return;
  FileReading<LogTable<9>> reading = readChartCsv(*content, main.dict);
  if (!take(main, reading, main.logs.chartData)) return;
  if (main.link.modelLine == 1) main.frame.formCaption.setCaption(formCaption(main.link.userID));
  plotChart(main);
}

}  // namespace

const LogFile kEventFile{true, openEvents};
const LogFile kHistoryFile{true, openHistory};
const LogFile kChartFile{false, openChart};

std::optional<std::string> askForLogFile(Main& main, const LogFile& file) {
  FileQuestion question{firstFolder(main), {}, {kCsvFilter}};
  if (file.hasRawForm) question.filters.push_back(kDatFilter);
  return main.around.dialogs.openFile(question);
}

}  // namespace zephon
