#include "support/process_use.h"

#include <sys/resource.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace zephon::benchmarks {
namespace {

Millis millisOf(const timeval& time) {
  return Millis(static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3);
}

long wakeUpsOfThread(const std::filesystem::path& thread) {
  const std::string key = "voluntary_ctxt_switches:";
  std::ifstream status(thread / "status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(key)) return std::stol(line.substr(key.size()));
  }
  return 0;
}

}  // namespace

Millis processorTime() {
  rusage use{};
  ::getrusage(RUSAGE_SELF, &use);
  return millisOf(use.ru_utime) + millisOf(use.ru_stime);
}

long wakeUps(pid_t process) {
  long total = 0;
  std::error_code gone;
  for (const auto& thread :
       std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task", gone)) {
    total += wakeUpsOfThread(thread.path());
  }
  return total;
}

}  // namespace zephon::benchmarks
