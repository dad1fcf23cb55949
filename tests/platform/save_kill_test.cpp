#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include "platform/save_file.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

// Saves the one and the other text in turn until it is killed.
[[noreturn]] void saveForEver(const std::string& path, const std::string& one, const std::string& other) {
  for (;;) {
    if (!saveFile(path, one) || !saveFile(path, other)) ::_exit(1);
  }
}

TEST(SaveKill, AFileIsTheOldOneOrTheWholeNewOneWheneverTheProgramDies) {
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
