#include "platform/port_advice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <cerrno>
#include <sstream>
#include <vector>

#include "support/temp_folder.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

class PortAdviceTest : public testing::Test {
 protected:
  using Places = std::vector<std::string>;
  // The trouble, and the first of its places.
  void expectAdvice(const std::string& path, int error, PortTrouble trouble, const Places& places) {
    const PortAdvice advice =
        portAdvice(path, error, {{folder_ / "ports", folder_ / "dev"}, folder_ / "proc"});
    EXPECT_EQ(static_cast<int>(advice.trouble), static_cast<int>(trouble)) << path << " " << error;
    for (std::size_t i = 0; i < places.size(); ++i) EXPECT_EQ(advice.places.at(i), places[i]) << i;
  }
  // A link, with the folders above it.
  void link(const std::string& target, const std::string& name) {
    fs::create_directories(fs::path(folder_ / name).parent_path());
    fs::create_symlink(target, folder_ / name);
  }

  TempFolder folder_;
  const std::string device_ = folder_.put("dev/ttyUSB0", "");
};

TEST_F(PortAdviceTest, MissingNodeListsThePortsThatStand) {
  fs::remove(device_);
  expectAdvice(device_, ENOENT, PortTrouble::MissingAlone, {device_});
  for (const char* name : {"dev/ttyACM0", "dev/ttyUSB1", "dev/tty1"}) folder_.put(name, "");
  link(folder_ / "gone", "ports/COM4");
  const std::string ports = "COM2 (" + (folder_ / "dev/ttyUSB1") + "), " + (folder_ / "dev/ttyACM0");
  expectAdvice(device_, EIO, PortTrouble::Missing, {device_, ports});
  expectAdvice(folder_ / "ports/COM4", ENOENT, PortTrouble::Missing,
               {(folder_ / "ports/COM4") + " -> " + (folder_ / "gone")});
}

TEST_F(PortAdviceTest, BusyNodeNamesThoseWhoHaveItOpenOrLocked) {
  expectAdvice(device_, EBUSY, PortTrouble::BusyHidden, {device_});
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
  expectAdvice(device_, EBUSY, PortTrouble::Busy, {device_, "minicom (77), logger (901)"});
}

TEST_F(PortAdviceTest, ForbiddenNodeTellsOwnerGroupModeAndWhatToDo) {
  ::chmod(device_.c_str(), 0400);
  expectAdvice(device_, EACCES, PortTrouble::OwnerShut, {device_});
  if (::geteuid() != 0) GTEST_SKIP() << "only root gives files away";
  const std::tuple<gid_t, mode_t, PortTrouble, std::string> cases[] = {
      {54322, 0640, PortTrouble::GroupShut, "54321:54322 0640"},
      {54322, 0660, PortTrouble::NotInGroup, "54321:54322 0660"},
      {::getegid(), 0660, PortTrouble::BeyondMode, "54321:root 0660"}};
  for (const auto& [group, mode, trouble, owners] : cases) {
    ASSERT_EQ(::chown(device_.c_str(), 54321, group), 0);
    ::chmod(device_.c_str(), mode);
    expectAdvice(device_, EACCES, trouble, {device_, owners, "root"});
  }
}

TEST_F(PortAdviceTest, OtherErrorsOfANodeThatStands) {
  expectAdvice(device_, EIO, PortTrouble::NoDevice, {device_});
  expectAdvice(device_, ENOENT, PortTrouble::BackAgain, {device_});
  expectAdvice(device_, EMFILE, PortTrouble::Other, {device_, "Too many open files"});
}

}  // namespace
}  // namespace zephon
