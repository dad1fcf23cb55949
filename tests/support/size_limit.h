#pragma once

#include <sys/resource.h>

namespace zephon::testing_support {

// Files of this process may have no more bytes than this.
class SizeLimit {
 public:
  explicit SizeLimit(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
  SizeLimit(const SizeLimit&) = delete;
  SizeLimit& operator=(const SizeLimit&) = delete;

 private:
  rlimit before_{};
};

}  // namespace zephon::testing_support
