#include "platform/port_advice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <cerrno>
#include <sstream>

#include "support/temp_folder.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

class PortAdvice : public testing::Test {
 protected:
  void expectAdvice(const std::string& path, int error, const std::string& words) {
    const std::string text =
        portAdvice(path, error, {{folder_ / "ports", folder_ / "dev"}, folder_ / "proc"});
    EXPECT_NE(text.find(words), std::string::npos) << text;
    EXPECT_EQ(text.find('\n'), std::string::npos);
  }
  // A link, with the folders above it.
  void link(const std::string& target, const std::string& name) {
    fs::create_directories(fs::path(folder_ / name).parent_path());
    fs::create_symlink(target, folder_ / name);
  }

  TempFolder folder_;
  const std::string device_ = folder_.put("dev/ttyUSB0", "");
};

TEST_F(PortAdvice, MissingNodeListsThePortsThatStand) {
  fs::remove(device_);
  expectAdvice(device_, ENOENT, device_ + " does not exist, and no other serial port is there: plug in");
  for (const char* name : {"dev/ttyUSB1", "dev/ttyUSB2", "dev/tty1"}) folder_.put(name, "");
  link(folder_ / "dev/ttyUSB1", "ports/COM3");
  link(folder_ / "gone", "ports/COM4");
  expectAdvice(device_, EIO,
               " does not exist: plug in the cable, or choose another port. There are: COM2 (" +
                   (folder_ / "dev/ttyUSB1") + "), COM3 (" + (folder_ / "ports/COM3") + "), " +
                   (folder_ / "dev/ttyUSB2") + " (no COM number leads there).");
  expectAdvice(folder_ / "ports/COM4", ENOENT,
               "COM4 leads to " + (folder_ / "gone") + ", which does not exist");
}

TEST_F(PortAdvice, BusyNodeNamesThoseWhoHaveItOpenOrLocked) {
  expectAdvice(device_, EBUSY, "may not see: sudo fuser -v " + device_);
  link(device_, "proc/77/fd/3");
  folder_.put("proc/77/comm", "minicom\n");
  link("/dev/null", "proc/78/fd/0");
  folder_.put("proc/901/comm", "logger\n");
  struct stat status {};
  ASSERT_EQ(::stat(device_.c_str(), &status), 0);
  std::ostringstream locks;
  locks << "1: POSIX  ADVISORY  WRITE 5 00:01:7 0 EOF\n2: FLOCK  ADVISORY  WRITE 901 " << std::hex
        << gnu_dev_major(status.st_dev) << ":" << gnu_dev_minor(status.st_dev) << ":" << std::dec
        << status.st_ino << " 0 EOF\n3: -> FLOCK garbage\n";
  folder_.put("proc/locks", locks.str());
  link(device_, "ports/COM1");
  for (const std::string& path : {device_, folder_ / "ports/COM1"}) {
    expectAdvice(path, EBUSY, path + " is in use by minicom (process 77), logger (process 901): end that");
  }
}

TEST_F(PortAdvice, ForbiddenNodeTellsOwnerGroupModeAndWhatToDo) {
  ::chmod(device_.c_str(), 0400);
  expectAdvice(device_, EACCES, "mode 0400): its owner may not read and write it: chmod u+rw " + device_);
  if (::geteuid() != 0) GTEST_SKIP() << "only root gives files away";
  const std::tuple<gid_t, mode_t, const char*> cases[] = {
      {54322, 0640, "(owner 54321, group 54322, mode 0640): that mode keeps the group out: sudo chown"},
      {54322, 0660, "is not in that group: sudo usermod -aG 54322 "},
      {::getegid(), 0660, "is in that group, so something beyond"}};
  for (const auto& [group, mode, words] : cases) {
    ASSERT_EQ(::chown(device_.c_str(), 54321, group), 0);
    ::chmod(device_.c_str(), mode);
    expectAdvice(device_, EACCES, words);
  }
}

TEST_F(PortAdvice, OtherErrorsOfANodeThatStands) {
  expectAdvice(device_, EIO, "no device answers");
  expectAdvice(device_, ENOENT, "is there now: try again");
  expectAdvice(device_, EMFILE, "could not be opened: Too many open files.");
  expectAdvice("", ENOENT, "no port name");
}

}  // namespace
}  // namespace zephon
