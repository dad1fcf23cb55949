#include "platform/paths.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include "platform/line_settings.h"
#include "platform/port_folders.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

// Sets an environment variable of this process, or takes it away.
void put(const char* variable, const std::string& value) {
  value.empty() ? ::unsetenv(variable) : ::setenv(variable, value.c_str(), 1);
}

TEST(Paths, UserFoldersFollowTheEnvironment) {
  put("HOME", "/home/tech/");
  put("XDG_CONFIG_HOME", "");
  put("XDG_STATE_HOME", "relative");
  EXPECT_EQ(configFolder(), "/home/tech/.config/zephon");
  EXPECT_EQ(stateFolder(), "/home/tech/.local/state/zephon");
  put("XDG_CONFIG_HOME", "/etc/tech//");
  EXPECT_EQ(configFolder(), "/etc/tech/zephon");
  EXPECT_TRUE(fileExists(programFolder() + "/platform_tests"));
}

TEST(Paths, DesktopIsTheNamedOneThatStands) {
  TempFolder folder;
  put("HOME", folder / "");
  put("XDG_CONFIG_HOME", "");
  EXPECT_EQ(desktopFolder(), folder / "");
  fs::create_directory(folder / "Desktop");
  EXPECT_EQ(desktopFolder(), folder / "Desktop");
  folder.put(".config/user-dirs.dirs", "# XDG_DESKTOP_DIR=\"/\"\nXDG_DESKTOP_DIR=\"$HOME/Mein \\$Tisch\"\n");
  EXPECT_EQ(desktopFolder(), folder / "Desktop");
  fs::create_directory(folder / "Mein $Tisch");
  EXPECT_EQ(desktopFolder(), folder / "Mein $Tisch");
}

TEST(Paths, FileExistsIsTrueForWhatIsNoFolder) {
  TempFolder folder;
  for (const std::string& path : {folder.put("file", ""), std::string("/dev/null")})
    EXPECT_TRUE(fileExists(path) && !canWrite(path)) << path;
  EXPECT_TRUE(!fileExists(folder / "") && canWrite(folder / ""));
}

TEST(PortFolders, ANamedFolderGoesAheadOfTheUsbPorts) {
  TempFolder folder;
  folder.put("COM12", "");
  fs::create_symlink("none", folder / "COM2");
  put("ZEPHON_PORTS", folder / "");
  EXPECT_EQ(devicePath(systemPortFolders(), "COM12"), folder / "COM12");
  EXPECT_EQ(devicePath(systemPortFolders(), "COM2"), folder / "COM2");
  EXPECT_EQ(devicePath(systemPortFolders(), "COM3"), "/dev/ttyUSB2");
  put("ZEPHON_PORTS", "");
  EXPECT_EQ(devicePath(systemPortFolders(), "COM12"), "/dev/ttyUSB11");
  for (const char* bad : {"", "COM", "COM0", "COM-1", "COM1x", "com1", "COM1/../x", "LPT1"})
    EXPECT_EQ(devicePath(systemPortFolders(), bad), "") << bad;
}

TEST(LineSettings, ModeStringsAreTakenStrictly) {
  LineState state{300, 'E', 7, 2};
  ASSERT_TRUE(applySettings(" baud=115200  parity=N data=8 stop=1 ", state));
  EXPECT_EQ(state, (LineState{115200, 'N', 8, 1}));
  for (const char* bad : {"", "  ", "baud", "baud=", "baud=0", "baud=+9600", "baud=96OO", "baud=99999999999",
                          "speed=9600", "baud=9600,n,8,1", "parity=X", "data=9", "baud=9600 baud=9600"}) {
    EXPECT_FALSE(applySettings(bad, state)) << bad;
    EXPECT_EQ(state, (LineState{115200, 'N', 8, 1})) << bad;
  }
}

}  // namespace
}  // namespace zephon
