#include "platform/save_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <memory>

#include "support/temp_folder.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

// The system's calls, of which the Nth of one kind fails. A write takes three bytes at most, as a device may;
// a close that fails has closed.
FileCalls failing(SaveStep step, int nth, int error) {
  const auto fails = [=, count = std::make_shared<int>(0)](SaveStep here) {
    if (here != step || ++*count != nth) return false;
    errno = error;
    return true;
  };
  return {[=](auto... all) { return fails(SaveStep::Create) ? -1 : ::open(all...); },
          [=](int file, const void* bytes, std::size_t size) {
            return fails(SaveStep::Write) ? -1 : ::write(file, bytes, std::min<std::size_t>(size, 3));
          },
          [=](auto... all) { return fails(SaveStep::Mode) ? -1 : ::fchmod(all...); },
          [=](int file) { return fails(SaveStep::Sync) ? -1 : ::fsync(file); },
          [=](int file) { return ::close(file) != 0 || fails(SaveStep::Close) ? -1 : 0; },
          [=](auto... all) { return fails(SaveStep::Rename) ? -1 : std::rename(all...); }};
}

int entriesIn(const std::string& folder) {
  return static_cast<int>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(SaveFile, AnyFailureBeforeTheEndKeepsTheOldFileAlone) {
  const std::tuple<SaveStep, int, int> cases[] = {{SaveStep::Create, 1, EACCES}, {SaveStep::Mode, 1, EPERM},
                                                  {SaveStep::Write, 1, ENOSPC},  {SaveStep::Write, 3, ENOSPC},
                                                  {SaveStep::Sync, 1, EIO},      {SaveStep::Close, 1, EDQUOT},
                                                  {SaveStep::Rename, 1, EROFS}};
  for (const auto& [step, nth, error] : cases) {
    TempFolder folder;
    folder.put("data.csv", "old");
    const SaveResult result = saveFile(folder / "data.csv", "new bytes", failing(step, nth, error));
    EXPECT_TRUE(!result && result.step == step && result.error == error);
    EXPECT_EQ(folder.get("data.csv"), "old") << saveErrorText(result);
    EXPECT_EQ(entriesIn(folder / ""), 1) << saveErrorText(result);
  }
  EXPECT_EQ(saveErrorText({SaveStep::Write, ENOSPC}), "writing: No space left on device");
}

TEST(SaveFile, InterruptedAndShortWritesGoOnAndTheFolderIsSynced) {
  TempFolder folder;
  EXPECT_TRUE(saveFile(folder / "a", "ten bytes.", failing(SaveStep::Write, 2, EINTR)));
  EXPECT_EQ(folder.get("a"), "ten bytes.");
  EXPECT_TRUE(saveFile(folder / "a", "", failing(SaveStep::Sync, 2, EINVAL)));  // cannot be synced
  EXPECT_EQ(folder.get("a"), "");
  const SaveResult last = saveFile(folder / "a", "b", failing(SaveStep::Sync, 2, EIO));
  EXPECT_EQ(last.step, SaveStep::SyncFolder);
  EXPECT_EQ(folder.get("a"), "b");
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
