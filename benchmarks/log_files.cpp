#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "files/chart_csv.h"
#include "files/history_csv.h"
#include "logs/chart_memory.h"
#include "logs/history_log.h"
#include "platform/save_file.h"
#include "support/child_process.h"
#include "support/results.h"
#include "support/simulated_port.h"
#include "text/calendar.h"

// Decoding, writing, reading and saving of full logs, held against Python, numpy and pandas on the same
// bytes.
namespace {

using namespace zephon;
using namespace zephon::benchmarks;

constexpr double kOffsetDays = 6 / 24.0;
constexpr std::size_t kChartBytes = 393216;

using Random = std::mt19937;

int below(Random& random, int bound) {
  return static_cast<int>(random() % static_cast<unsigned>(bound));
}

void append(std::string& bytes, std::initializer_list<int> values) {
  for (const int value : values) bytes += static_cast<char>(value);
}

int bcd(int number) {
  return number / 10 * 16 + number % 10;
}

// A full log that has wrapped: every fiftieth half hour is cut short.
std::string historyBytes() {
  Random random(1);
  std::string frame = "10:00:00 06/01/20241";
  append(frame, {1, 0xB0, 0x10});
  std::int64_t seconds = calendarSeconds({2024, 1, 5, 0, 0, 0});
  for (int row = 0; row < 6911; ++row) {
    const CalendarTime t = calendarFromSeconds(seconds);
    seconds += row % 50 == 0 ? 900 : 1800;
    append(frame, {bcd(t.year - 2000), bcd(t.day), bcd(t.month), bcd(t.second), bcd(t.minute), bcd(t.hour)});
    const int amps = 500 + below(random, 3000);
    const int volts = 8400 + below(random, 200);
    const int most = 100 + below(random, 300);
    const int watts = 50 + below(random, 1000);
    append(frame, {amps, amps >> 8, 110 + below(random, 5), 120 + below(random, 5), volts, volts >> 8, most,
                   most >> 8, watts, watts >> 8});
  }
  return frame;
}

// Without a byte that could be part of a mark or of the memory's end.
void appendSample(std::string& bytes, Random& random, double kWh) {
  const auto part = [&](int low, int span) { return low + below(random, span); };
  const auto energy = static_cast<std::uint32_t>(kWh / 232 * 16777216);
  append(bytes, {part(0x3A, 6), part(0, 64), part(2, 12), part(0, 64), 0, part(100, 100), 0, part(0, 2),
                 part(0, 64), 1, 0xEB, part(0x80, 60), part(100, 20), 0, 1, part(100, 20)});
  for (const int shift : {24, 16, 8, 0})
    append(bytes, {std::min(static_cast<int>(energy >> shift & 0xFF), 0xFE)});
}

// A full memory: the recording was started every 500 samples, three hours apart.
std::string chartBytes() {
  Random random(1);
  std::string bytes;
  std::int64_t seconds = calendarSeconds({2024, 1, 5, 0, 0, 0});
  double kWh = 300;
  for (int sample = 0; bytes.size() + 9 + 20 + 20 < kChartBytes; ++sample) {
    if (sample % 500 == 0) {
      const CalendarTime t = calendarFromSeconds(seconds);
      seconds += 3 * 3600;
      bytes += "STR";
      append(bytes,
             {bcd(t.hour), bcd(t.minute), bcd(t.second), bcd(t.month), bcd(t.day), bcd(t.year - 2000)});
    }
    appendSample(bytes, random, kWh += 0.0014);
  }
  bytes.resize(kChartBytes, '\xFF');
  return bytes;
}

double best(const std::function<void()>& work, int runs = 21) {
  double shortest = 1e9;
  for (int run = 0; run < runs; ++run) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
    shortest = std::min(shortest, taken.count());
  }
  return shortest;
}

void put(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::vector<std::string> dictionary() {
  std::ifstream file(ZEPHON_RESOURCES "/EN.dictionary");
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

template <std::size_t Columns>
double sumOf(std::span<const std::array<double, Columns>> rows) {
  double sum = 0;
  for (const auto& row : rows) {
    for (const double value : row) sum += value;
  }
  return sum;
}

// What the peer took for its steps, by name.
std::map<std::string, double> peerTimes(const std::string& folder) {
  ChildProcess peer(
      {"/usr/bin/python3", ZEPHON_BENCHMARKS "/log_files_peer.py", folder, std::to_string(kOffsetDays)});
  std::map<std::string, double> times;
  for (std::string line = peer.readLine(); !line.empty(); line = peer.readLine()) {
    const auto blank = line.find(' ');
    times[line.substr(0, blank)] = std::atof(line.c_str() + blank);
  }
  return times;
}

// A peer that does something else would be no peer.
void sameAs(double sum, double peer, const char* what) {
  if (std::fabs(sum - peer) <= 1e-6 * std::fabs(sum)) return;
  std::fprintf(stderr, "%s: the tables differ, %.6f here and %.6f there\n", what, sum, peer);
  std::exit(2);
}

struct Log {
  std::string name;
  std::function<void()> decode;
  std::function<void()> write;
  std::function<void()> read;
  double sum;
};

void compare(const Log& log, std::map<std::string, double>& peer, Results& results) {
  sameAs(log.sum, peer[log.name + "-struct-sum"], "struct");
  sameAs(log.sum, peer[log.name + "-numpy-sum"], "numpy");
  const auto row = [&](const char* what, double measured, const char* against, double limit) {
    results.add({log.name + ", " + what, measured, peer[log.name + against], "ms", limit});
  };
  const double decoding = best(log.decode);
  row("decoding, against struct in a loop", decoding, "-struct", 1 / 20.0);
  row("decoding, against numpy", decoding, "-numpy", 1 / 2.0);
  const double writing = best(log.write);
  row("writing, against Python's csv", writing, "-csv", 1 / 4.0);
  row("writing, against pandas", writing, "-pandas", 1 / 10.0);
  row("reading, against pandas with dates", best(log.read), "-read", 1 / 10.0);
}

// A write in one piece that is on the disk at its end, and no more: a failure in the middle leaves half a
// file.
void putOnDisk(const std::string& path, const std::string& bytes) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  if (::write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::exit(2);
  if (::fsync(file) != 0 || ::close(file) != 0) std::exit(2);
}

void compareSaving(const Folder& folder, const std::string& bytes, Results& results) {
  const std::string path = folder.path() + "/saved";
  const double plain = best([&] { putOnDisk(path, bytes); });
  const double durable = best([&] {
    if (!saveFile(path, bytes)) std::exit(2);
  });
  results.add({"durable save of a chart, against a synced write", durable, plain, "ms", 3});
}

}  // namespace

int main() {
  const Folder folder;
  const auto dict = dictionary();
  const UtcOffset offset{kOffsetDays};
  const FileStamp stamp{{2024, 6, 1, 10, 0, 0}, "ABCDEFGHIJ", "1.KD1", "01.02.03", 120, 0};
  const std::string historyRaw = historyBytes();
  const std::string chartRaw = chartBytes();
  const auto history = decodeHistoryFrame(historyRaw, 120, offset).value();
  const auto chart = decodeChartMemory(chartRaw, offset);
  const std::string historyText = historyCsv(stamp, history, dict);
  const std::string chartText = chartCsv(stamp, chart, FileKind::InternalChart, dict);
  put(folder.path() + "/history.bin", historyRaw);
  put(folder.path() + "/chart.bin", chartRaw);
  put(folder.path() + "/history.csv", historyText);
  put(folder.path() + "/chart.csv", chartText);
  auto peer = peerTimes(folder.path());

  Results results;
  const std::span records(history.data(), historyRecords(history));
  compare({"history", [&] { (void)decodeHistoryFrame(historyRaw, 120, offset); },
           [&] { put(folder.path() + "/ours.csv", historyCsv(stamp, history, dict)); },
           [&] { (void)readHistoryCsv(historyText, dict); }, sumOf(records)},
          peer, results);
  compare({"chart", [&] { (void)decodeChartMemory(chartRaw, offset); },
           [&] { put(folder.path() + "/ours.csv", chartCsv(stamp, chart, FileKind::InternalChart, dict)); },
           [&] { (void)readChartCsv(chartText, dict); }, sumOf(std::span(chart))},
          peer, results);
  compareSaving(folder, chartText, results);
  return results.status();
}
