#include "support/child_process.h"

#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

namespace zephon::benchmarks {
namespace {

constexpr int kCannotRun = 127;

int execute(const std::vector<std::string>& command, const ChildProcess::Environment& environment) {
  for (const auto& [name, value] : environment) ::setenv(name.c_str(), value.c_str(), 1);
  std::vector<char*> words;
  for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  ::execvp(words.front(), words.data());
  std::perror(words.front());
  return kCannotRun;
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command, const Environment& environment) {
  start([&] { return execute(command, environment); });
}

ChildProcess::ChildProcess(const std::function<int()>& work) {
  start(work);
}

ChildProcess::~ChildProcess() {
  kill();
  if (output_ >= 0) ::close(output_);
}

void ChildProcess::start(const std::function<int()>& work) {
  int ends[2] = {-1, -1};
  if (::pipe(ends) != 0) std::perror("pipe");
  std::fflush(stdout);
  id_ = ::fork();
  if (id_ == 0) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::dup2(ends[1], STDOUT_FILENO);
    ::close(ends[0]);
    ::close(ends[1]);
    const int status = work();
    std::fflush(stdout);
    ::_exit(status);
  }
  ::close(ends[1]);
  output_ = ends[0];
}

std::string ChildProcess::readLine() {
  std::string line;
  for (char byte = 0; ::read(output_, &byte, 1) == 1 && byte != '\n';) line += byte;
  return line;
}

void ChildProcess::kill() {
  if (id_ <= 0) return;
  ::kill(id_, SIGKILL);
  ::waitpid(std::exchange(id_, -1), nullptr, 0);
}

}  // namespace zephon::benchmarks
