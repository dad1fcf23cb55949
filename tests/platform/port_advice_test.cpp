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
  void SetUp() override {
    fs::create_directories(folder_ / "proc");
    fs::create_directories(folder_ / "ports");
  }
  std::string advice(const std::string& path, int error) {
    const std::string text =
        portAdvice(path, error, {{folder_ / "ports", folder_ / "dev"}, folder_ / "proc"});
    EXPECT_EQ(text.find('\n'), std::string::npos);
    return text;
  }
  // A program that has `device` open.
  void addProgram(const std::string& pid, const std::string& name, const std::string& device) {
    folder_.put("proc/" + pid + "/comm", name + "\n");
    fs::create_directories(folder_ / ("proc/" + pid + "/fd"));
    fs::create_symlink("/dev/null", folder_ / ("proc/" + pid + "/fd/0"));
    fs::create_symlink(device, folder_ / ("proc/" + pid + "/fd/3"));
  }

  TempFolder folder_;
};

TEST_F(PortAdvice, MissingNodeListsThePortsThatStand) {
  const std::string path = folder_ / "dev/ttyUSB0";
  EXPECT_EQ(advice(path, ENOENT),
            path + " does not exist, and no other serial port is there: plug in the cable.");
  folder_.put("dev/ttyUSB1", "");
  folder_.put("dev/ttyUSB2", "");
  folder_.put("dev/tty1", "");
  fs::create_symlink(folder_ / "dev/ttyUSB1", folder_ / "ports/COM3");
  fs::create_symlink(folder_ / "gone", folder_ / "ports/COM4");
  EXPECT_EQ(advice(path, ENOENT),
            path + " does not exist: plug in the cable, or choose another port. There are: COM3 (" +
                (folder_ / "ports/COM3") + "), COM2 (" + (folder_ / "dev/ttyUSB1") + "), " +
                (folder_ / "dev/ttyUSB2") + " (no COM number leads there).");
  EXPECT_NE(
      advice(folder_ / "ports/COM4", ENOENT).find("COM4 leads to " + (folder_ / "gone") + ", which does not"),
      std::string::npos);
}

TEST_F(PortAdvice, BusyNodeNamesItsHolders) {
  const std::string path = folder_.put("dev/ttyUSB0", "");
  EXPECT_NE(advice(path, EBUSY).find("may not see: sudo fuser -v " + path), std::string::npos);
  addProgram("77", "minicom", path);
  addProgram("78", "shell", "/dev/null");
  folder_.put("proc/901/comm", "logger\n");
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  std::ostringstream locks;
  locks << "1: POSIX  ADVISORY  WRITE 5 00:01:7 0 EOF\n2: FLOCK  ADVISORY  WRITE 901 " << std::hex
        << gnu_dev_major(status.st_dev) << ":" << gnu_dev_minor(status.st_dev) << ":" << std::dec
        << status.st_ino << " 0 EOF\n3: -> FLOCK garbage\n";
  folder_.put("proc/locks", locks.str());
  EXPECT_EQ(advice(path, EBUSY), path +
                                     " is in use by minicom (process 77), logger (process 901): "
                                     "end that program, or choose another port.");
  fs::create_symlink("dev/ttyUSB0", folder_ / "link");
  EXPECT_NE(advice(folder_ / "link", EBUSY).find("minicom"), std::string::npos);
}

TEST_F(PortAdvice, ForbiddenNodeTellsOwnerGroupModeAndWhatToDo) {
  const std::string path = folder_.put("dev/ttyUSB0", "");
  ::chmod(path.c_str(), 0400);
  std::string text = advice(path, EACCES);
  EXPECT_NE(text.find("mode 0400): its owner may not read and write it: chmod u+rw " + path),
            std::string::npos)
      << text;
  if (::geteuid() != 0) GTEST_SKIP() << "only root gives files away";
  ASSERT_EQ(::chown(path.c_str(), 54321, 54322), 0);
  text = advice(path, EACCES);
  EXPECT_NE(
      text.find("(owner 54321, group 54322, mode 0400): that mode keeps the group out: sudo chown root"),
      std::string::npos)
      << text;
  ::chmod(path.c_str(), 0660);
  text = advice(path, EACCES);
  EXPECT_NE(text.find("root is not in that group: sudo usermod -aG 54322 root"), std::string::npos) << text;
  ASSERT_EQ(::chown(path.c_str(), 54321, ::getegid()), 0);
  EXPECT_NE(advice(path, EACCES).find("is in that group, so something beyond"), std::string::npos);
}

TEST_F(PortAdvice, OtherErrorsOfANodeThatStands) {
  const std::string path = folder_.put("dev/ttyUSB0", "");
  const std::pair<int, const char*> cases[] = {{EIO, "no device answers"},
                                               {ENOTTY, "is no serial port"},
                                               {ENOENT, "is there now: try again"},
                                               {EMFILE, "could not be opened: Too many open files."}};
  for (const auto& [error, words] : cases)
    EXPECT_NE(advice(path, error).find(words), std::string::npos) << words;
  EXPECT_NE(advice("", ENOENT).find("no port name"), std::string::npos);
}

}  // namespace
}  // namespace zephon
