#include "platform/read_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace zephon {
namespace {

FileContent systemFault() {
  return {{}, ReadFault::System, errno};
}

FileContent tooLarge(std::size_t most) {
  return {{}, ReadFault::TooLarge, 0, most};
}

// A file that grows while it is read is taken as far as it goes.
FileContent readAll(int file, std::size_t expected, std::size_t most) {
  FileContent content;
  content.bytes.resize(expected + 1);  // one more tells the end of a file that has not grown
  std::size_t used = 0;
  for (;;) {
    const ssize_t count = ::read(file, content.bytes.data() + used, content.bytes.size() - used);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return systemFault();
    if (count == 0) break;
    used += static_cast<std::size_t>(count);
    if (used > most) return tooLarge(most);
    if (used == content.bytes.size()) content.bytes.resize(used * 2);
  }
  content.bytes.resize(used);
  return content;
}

}  // namespace

FileContent readFile(const std::string& path, std::size_t mostBytes) {
  const int file = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (file < 0) return systemFault();
  struct stat is {};
  FileContent content;
  if (::fstat(file, &is) != 0) {
    content = systemFault();
  } else if (!S_ISREG(is.st_mode)) {
    content.fault = ReadFault::NoPlainFile;
  } else if (static_cast<std::size_t>(is.st_size) > mostBytes) {
    content = tooLarge(mostBytes);
  } else {
    content = readAll(file, static_cast<std::size_t>(is.st_size), mostBytes);
  }
  ::close(file);
  return content;
}

}  // namespace zephon
