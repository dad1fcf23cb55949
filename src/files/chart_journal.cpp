#include "files/chart_journal.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#include "files/chart_csv.h"
#include "files/csv_write.h"
#include "files/file_reading.h"
#include "platform/read_file.h"
#include "text/date_picture.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

using ChartRow = std::array<double, 9>;

constexpr std::string_view kUnsaved = ".unsaved";
constexpr int kMostNames = 100;
constexpr std::size_t kMostRows = 4096;  // in one call: after a failure there may be many
constexpr int kHeaderLines = 8;

std::string deviceOf(const FileStamp& stamp) {
  return std::to_string(stamp.modelLine) + '|' + std::to_string(stamp.nominalVolts) + '|' +
         stamp.firmwareVersion + '|' + stamp.chipID + '|' + stamp.userID;
}

// The moment is in the name in the order in which names are sorted.
SaveResult createFile(AppendFile& file, const std::string& folder, const FileStamp& stamp) {
  const std::string name = folder + "/Chart " + formatDate(stamp.now, "yyyy-mm-dd hh.nn.ss");
  SaveResult result;
  for (int i = 1; i <= kMostNames; ++i) {
    const std::string csv = name + (i == 1 ? "" : " " + std::to_string(i)) + ".csv";
    std::error_code ignored;
    if (fs::exists(csv, ignored)) continue;
    result = file.create(csv + std::string(kUnsaved));
    if (result || result.error != EEXIST) return result;
  }
  return result;
}

SaveResult beginFile(ChartJournal& journal, const std::string& folder, const FileStamp& stamp,
                     std::span<const std::string> dict) {
  const SaveResult created = createFile(journal.file, folder, stamp);
  if (!created) return created;
  const SaveResult result = journal.file.append(chartCsvHead(stamp, FileKind::LiveChart, dict));
  if (!result) journal.file.remove();
  journal.device = deviceOf(stamp);
  return result;
}

// How many bytes are whole lines; nothing when none of them is a row.
std::optional<std::size_t> wholeRows(std::string_view bytes) {
  const std::size_t end = bytes.rfind('\n');
  if (end == std::string_view::npos) return {};
  const std::string_view lines = bytes.substr(0, end + 1);
  if (std::count(lines.begin(), lines.end(), '\n') <= kHeaderLines) return {};
  return lines.size();
}

// The path of the chart that a journal becomes; nothing when a program still holds it, or nothing is in it.
std::optional<std::string> takeOver(const std::string& path) {
  AppendFile file;
  if (!file.take(path)) return {};
  const FileContent content = readFile(path, kLargestFile);
  if (!content) return path;  // there is something, whatever it is
  const auto whole = wholeRows(content.bytes);
  if (!whole) {
    file.remove();
    return {};
  }
  if (*whole < file.size()) file.cut(*whole);
  const std::string chart = path.substr(0, path.size() - kUnsaved.size());
  return std::rename(path.c_str(), chart.c_str()) == 0 ? chart : path;
}

}  // namespace

SaveResult keepJournal(ChartJournal& journal, const std::string& folder, const FileStamp& stamp,
                       std::span<const ChartRow> rows, std::span<const std::string> dict) {
  if (folder.empty() || journal.rows >= rows.size()) return {};
  if (journal.file.isOpen() && journal.device != deviceOf(stamp))
    journal.earlier.push_back(std::move(journal.file));
  if (!journal.file.isOpen()) {
    const SaveResult begun = beginFile(journal, folder, stamp, dict);
    if (!begun) return begun;
  }
  const auto more = rows.subspan(journal.rows, std::min(kMostRows, rows.size() - journal.rows));
  const SaveResult result = journal.file.append(chartCsvRows(stamp, FileKind::LiveChart, more));
  if (result) journal.rows += more.size();
  return result;
}

void endJournal(ChartJournal& journal, std::size_t rows) {
  if (journal.file.isOpen()) journal.file.remove();
  for (AppendFile& file : journal.earlier) file.remove();
  journal.earlier.clear();
  journal.rows = rows;
  journal.failureTold = false;
}

void leaveJournal(ChartJournal& journal, std::size_t rows) {
  journal = {};
  journal.rows = rows;
}

std::vector<std::string> takeOverJournals(const std::string& folder) {
  std::vector<std::string> charts;
  if (folder.empty()) return charts;
  std::error_code error;
  std::vector<std::string> journals;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    const std::string path = at->path().string();
    if (path.ends_with(kUnsaved)) journals.push_back(path);
  }
  std::sort(journals.begin(), journals.end());
  for (const std::string& path : journals) {
    if (auto chart = takeOver(path)) charts.push_back(std::move(*chart));
  }
  return charts;
}

}  // namespace zephon
