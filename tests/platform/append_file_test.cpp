#include "platform/append_file.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/size_limit.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

TEST(AppendFile, GrowsAndIsOneHoldersOwn) {
  TempFolder folder;
  const std::string path = folder / "a/b/file";
  AppendFile file;
  ASSERT_TRUE(file.create(path));
  EXPECT_TRUE(file.append("one\n"));
  EXPECT_TRUE(file.append("two\n"));
  AppendFile other;
  EXPECT_EQ(other.create(path).error, EEXIST);
  EXPECT_EQ(other.take(path).error, EWOULDBLOCK);

  AppendFile moved = std::move(file);
  EXPECT_EQ(other.take(path).error, EWOULDBLOCK);
  moved.close();
  ASSERT_TRUE(other.take(path));
  EXPECT_TRUE(other.append("three"));
  EXPECT_TRUE(other.cut(6));
  EXPECT_TRUE(other.append("!"));
  EXPECT_EQ(folder.get("a/b/file"), "one\ntw!");
  other.remove();
  EXPECT_EQ(other.take(path).error, ENOENT);
}

TEST(AppendFile, AFailedAppendLeavesNothingAndCanBeRepeated) {
  TempFolder folder;
  AppendFile file;
  ASSERT_TRUE(file.create(folder / "file"));
  ASSERT_TRUE(file.append("before\n"));
  {
    const testing_support::SizeLimit limit(10);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(file.append("too long\n").error, EFBIG);
    EXPECT_EQ(folder.get("file"), "before\n");
  }
  EXPECT_TRUE(file.append("after\n"));
  EXPECT_EQ(folder.get("file"), "before\nafter\n");
}

}  // namespace
}  // namespace zephon
