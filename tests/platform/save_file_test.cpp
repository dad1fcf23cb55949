#include "platform/save_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>

#include "support/size_limit.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

// The system's calls, of which the Nth fails, or all from the Nth on. A write takes three bytes at most, as a
// device may; a close that fails has closed.
FileCalls failing(int nth, int error, bool forGood, int& count) {
  const auto fails = [=, &count] {
    if (++count < nth || (count > nth && !forGood)) return false;
    errno = error;
    return true;
  };
  return {[=](auto... all) { return fails() ? -1 : ::open(all...); },
          [=](int file, const void* bytes, std::size_t size) {
            return fails() ? -1 : ::write(file, bytes, std::min<std::size_t>(size, 3));
          },
          [=](auto... all) { return fails() ? -1 : ::fchmod(all...); },
          [=](int file) { return fails() ? -1 : ::fsync(file); },
          [=](int file) { return ::close(file) != 0 || fails() ? -1 : 0; },
          [=](auto... all) { return fails() ? -1 : std::rename(all...); }};
}

// How a save over "old" ends when its Nth call fails: 's' with the whole new file, '-' with the old one, either
// alone in its folder; nothing when there is no Nth call.
std::string endOf(int nth, int error, bool forGood) {
  TempFolder folder;
  folder.put("data", "old");
  int count = 0;
  const SaveResult result = saveFile(folder / "data", "new bytes", failing(nth, error, forGood, count));
  EXPECT_EQ(folder.get("data"), result ? "new bytes" : "old") << nth;
  EXPECT_EQ(std::distance(fs::directory_iterator(folder / ""), fs::directory_iterator()), 1) << nth;
  EXPECT_TRUE(result || result.error == error) << nth;
  return count < nth ? "" : result ? "s" : "-";
}

// Open, mode, three writes, sync, close, open the folder, rename: from there on the new file has its name.
TEST(SaveFile, IsTheOldFileOrTheWholeNewOneWhicheverCallFails) {
  for (const bool forGood : {false, true}) {
    std::string ends;
    for (int nth = 1; nth < 20; ++nth) ends += endOf(nth, EIO, forGood);
    EXPECT_EQ(ends, "---------ss");
  }
  EXPECT_EQ(endOf(4, EINTR, false), "s");
  EXPECT_EQ(endOf(6, EINVAL, false), "s") << "a file system that syncs nothing";
  EXPECT_EQ(endOf(8, EACCES, false), "s") << "a folder that may not be read";
}

TEST(SaveFile, KeepsModeAndLinkAndTakesTheLongestName) {
  TempFolder folder;
  ::chmod(folder.put("sub/data", "old").c_str(), 0640);
  fs::create_symlink("sub/data", folder / "link");
  fs::create_symlink("sub/fresh", folder / "dangling");
  fs::create_symlink("circle", folder / "circle");
  EXPECT_TRUE(saveFile(folder / "link", std::string("n\0w", 3)));
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(folder.get("sub/data"), std::string("n\0w", 3));
  struct stat status {};
  ASSERT_EQ(::stat((folder / "sub/data").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
  EXPECT_TRUE(saveFile(folder / "dangling", "x"));
  EXPECT_EQ(folder.get("sub/fresh"), "x");
  EXPECT_EQ(saveFile(folder / "circle", "x").error, ELOOP);
  EXPECT_TRUE(saveFile(folder / std::string(255, 'n'), "long"));
}

TEST(SaveFile, BeyondTheSizeLimitTheOldFileStays) {
  TempFolder folder;
  folder.put("data", "old");
  const testing_support::SizeLimit limit(10);
  EXPECT_EQ(saveFile(folder / "data", "eleven byte").error, EFBIG);
  EXPECT_EQ(folder.get("data"), "old");
}

TEST(SaveFile, APipeIsNotWaitedFor) {
  TempFolder folder;
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(saveFile(pipe, "x").error, ENXIO);
  const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  FileSave save;
  EXPECT_TRUE(save.begin(pipe) && save.write("x"));
  ::close(reader);
  EXPECT_EQ(save.write("y").error, EPIPE);
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  EXPECT_TRUE(saveFile("/proc/self/fd/" + std::to_string(ends[1]), "x")) << "as /dev/stdout";
  for (const int end : ends) ::close(end);
}

// Saves the one and the other text in turn until it is killed.
[[noreturn]] void saveForEver(const std::string& path, const std::string& one, const std::string& other) {
  for (;;) {
    if (!saveFile(path, one) || !saveFile(path, other)) ::_exit(1);
  }
}

TEST(SaveFile, IsTheOldOneOrTheWholeNewOneWheneverTheProgramDies) {
  TempFolder folder;
  const std::string one(300'000, '1');
  const std::string other(200'000, '2');
  const std::string path = folder.put("data.csv", one);
  const auto begun = std::chrono::steady_clock::now();
  for (int i = 0; i < 3; ++i) ASSERT_TRUE(saveFile(path, i % 2 ? one : other));
  const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - begun;
  int ones = 0;
  for (int i = 0; i < 300; ++i) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) saveForEver(path, one, other);
    ::usleep(static_cast<useconds_t>(taken.count() * i / 300));  // up to three saves
    int status = 0;
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed";
    const std::string held = folder.get("data.csv");
    ASSERT_TRUE(held == one || held == other) << "killed " << i << ", " << held.size() << " bytes";
    ones += held == one;
  }
  // Both were met: the kills fell among the saves, not before them.
  EXPECT_GT(ones, 0);
  EXPECT_LT(ones, 300);
}

}  // namespace
}  // namespace zephon
