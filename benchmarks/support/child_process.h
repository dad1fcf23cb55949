#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

namespace zephon::benchmarks {

// Another process that lives no longer than this object, nor than the benchmark. Its standard output can be
// read here; what it says on standard error comes out on ours.
class ChildProcess {
 public:
  using Environment = std::vector<std::pair<std::string, std::string>>;

  // A program, by its path or by a name to be found in PATH, and its arguments, with `environment` on top of
  // ours.
  explicit ChildProcess(const std::vector<std::string>& command, const Environment& environment = {});
  // A copy of this process that runs `work` and ends with its result.
  explicit ChildProcess(const std::function<int()>& work);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  pid_t id() const { return id_; }
  // The next line that it says, without its end; empty when it has ended.
  std::string readLine();
  // Kills it at once, and waits for its end.
  void kill();

 private:
  void start(const std::function<int()>& work);

  pid_t id_ = -1;
  int output_ = -1;
};

}  // namespace zephon::benchmarks
