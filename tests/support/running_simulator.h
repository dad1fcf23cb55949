#pragma once

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "platform/posix_serial.h"
#include "support/temp_folder.h"

// The simulator as a program, at the far end of a real pseudo-terminal.
namespace zephon::testing_support {

inline const std::string kSimulator = ZEPHON_BUILD "/zephon-simulator";

template <typename Condition>
bool comesTrue(Condition condition) {
  for (int i = 0; i < 500; ++i) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

// A running simulator with its link in a folder of its own.
class RunningSimulator {
 public:
  explicit RunningSimulator(std::vector<std::string> words) {
    words.insert(words.begin(), {kSimulator, "--quiet", "--ports", ports()});
    std::vector<char*> argv;
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);
    if (::posix_spawn(&pid_, kSimulator.c_str(), nullptr, nullptr, argv.data(), environ) != 0) pid_ = 0;
  }
  ~RunningSimulator() {
    if (pid_ > 0) stop(SIGKILL);
  }

  std::string ports() const { return folder_ / "new/ports"; }
  bool linked(const std::string& name = "COM1") const {
    return std::filesystem::is_symlink(std::filesystem::path(ports()) / name);
  }

  // The exit status; -1 if it did not end by itself.
  int stop(int signal) {
    ::kill(pid_, signal);
    int status = 0;
    ::waitpid(pid_, &status, 0);
    pid_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  // What the device says to a command over a port opened for it alone.
  std::string ask(const std::string& command, std::size_t length, int baud,
                  std::chrono::milliseconds patience = std::chrono::milliseconds(2000)) {
    PosixSerial serial({ports()});
    const SerialHandle port = serial.open("COM1");
    std::uint32_t count = 0;
    if (!serial.setState(port, {baud}) || !serial.purge(port) || !serial.write(port, command, count))
      return "no port";
    std::string reply;
    const auto end = std::chrono::steady_clock::now() + patience;
    while (reply.size() < length && std::chrono::steady_clock::now() < end) {
      std::array<char, 1024> bytes{};
      if (serial.read(port, bytes, count)) reply.append(bytes.data(), count);
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return reply;
  }

 private:
  TempFolder folder_;
  pid_t pid_ = 0;
};

}  // namespace zephon::testing_support
