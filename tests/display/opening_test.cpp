#include "display/opening.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "display/data_world.h"
#include "files/dictionary_file.h"

namespace zephon {
namespace {

using testing_support::DataWorld;

std::string headOf(const std::string& id, const std::string& firmware, const std::string& log) {
  return "03/05/2024 09:30:00\r\nID: " + id + "\r\nFirmware Version: " + firmware +
         "\r\nSoftware Version: 4.4\r\nChip ID: 01.A2.FF\r\nVoltage Rating: 120\r\n" + log + "\r\n";
}
const std::string kEventHead = headOf("BENCH 7", "1.KD1", "Time Stamped Log\r\nDate,Time,Event,Magnitude");

class Opening : public ::testing::Test {
 protected:
  Opening() { world.unplug(); }
  void open(Button& button, const std::string& path) {
    world.dialogs.forget();
    world.dialogs.openAnswer = path;
    button.click();
  }
  DataWorld world;
  Logs& logs = world.main.logs;
};

TEST_F(Opening, WhatIsNoLogIsRefusedWithItsPlaceAndLeavesNoTable) {
  const std::string row = "05/31/13,14:02:07,Over Voltage,133\r\n";
  ::mkfifo((world.folder / "pipe.csv").c_str(), 0600);
  const struct {
    Button& button;
    std::string path, reason;
  } files[] = {
      {world.d.tsDataBtn, world.folder.put("1.csv", ""), "line 1: expected "},
      {world.d.tsDataBtn, world.folder.put("2.csv", kEventHead + row + "nonsense\r\n"), "line 10: expected "},
      {world.d.histDataBtn, world.folder.put("4.csv", kEventHead + row), "line 7: expected "},
      {world.d.histDataBtn, world.folder.put("5.dat", std::string(110'601, '\r')), "byte "},
      {world.d.cmDataBtn, world.folder / "pipe.csv", "expected a plain file"},
      {world.d.tsDataBtn, world.folder / "missing.csv", "No such file or directory"},
  };
  for (const auto& file : files) {
    open(world.d.tsDataBtn, world.folder.put("good.csv", kEventHead + row));
    world.dialogs.openAnswer.reset();
    file.button.click();  // a question that is cancelled changes nothing
    ASSERT_TRUE(logs.tsData.size() == 1 && world.d.TreeView1.visible() && world.f.saveBtn.visible());
    open(file.button, file.path);
    ASSERT_EQ(world.dialogs.shown().size(), 2U) << file.path;
    EXPECT_EQ(world.dialogs.texts()[1], world.main.dict[169]);
    EXPECT_EQ(world.dialogs.shown()[1].detail.find(file.reason), 0U) << world.dialogs.shown()[1].detail;
    EXPECT_TRUE(world.tablesEmpty()) << file.path;
    EXPECT_FALSE(world.d.TreeView1.visible() || world.f.saveBtn.visible());
    EXPECT_TRUE(file.button.enabled() && world.lost == 0);
  }
}

TEST_F(Opening, TheReasonIsToldInTheLanguageInUse) {
  world.main.dict = readDictionary(ZEPHON_RESOURCES, "DE").entries;
  world.unplug();
  open(world.d.tsDataBtn, world.folder.put("bad.csv", kEventHead + "x,14:02:07,Surge,\r\n"));
  EXPECT_EQ(world.dialogs.shown().back().detail, "Zeile 9: erwartet wird ein Datum wie 05/31/13");
}

TEST_F(Opening, EventsAreReadByTheInstalledLanguageThatKnowsThemAll) {
  world.main.around.folders.program = ZEPHON_RESOURCES;
  const std::string german = kEventHead + "05/31/13,14:02:07,\xDC" + "berspannung,133\r\n";
  open(world.d.tsDataBtn, world.folder.put("de.csv", german + "05/31/13,14:02:09,Netzausfall,\r\n"));
  ASSERT_EQ(logs.tsData.size(), 2U);
  EXPECT_TRUE(logs.tsData[0][6] == 8 && logs.tsData[1][6] == 1);
  EXPECT_NE(world.dialogs.texts().back().find("(Deutsch)"), std::string::npos)
      << world.dialogs.texts().back();
  open(world.d.tsDataBtn, world.folder.put("mixed.csv", german + "05/31/13,14:02:09,Surge,\r\n"));
  EXPECT_EQ(world.dialogs.texts().back(), "1 of 2 events have names of another language.");
}

TEST_F(Opening, AChartOfTheSecondLineIsShownAndSavedWithWhatItHas) {
  const std::string head = headOf("TessaraPCS", "2.00", "Chart Data\r\nDate,Time,Line Voltage,N-G Voltage");
  const std::string rows = "03/05/2024,09:29:50,118,1\r\n03/05/2024,09:30:00,119,0\r\n";
  open(world.d.cmDataBtn, world.folder.put("chart.csv", head + rows));
  EXPECT_EQ(world.main.link.modelLine, 1);
  std::string visible;
  for (const Graph::Plot& plot : world.graph.plots()) visible += plot.visible ? plot.name + ";" : "";
  EXPECT_EQ(visible, "voltage;neutral-ground;");
  world.dialogs.saveAnswer = world.folder / "again.csv";
  world.f.saveBtn.click();
  EXPECT_TRUE(world.folder.get("again.csv").ends_with(rows));
}

}  // namespace
}  // namespace zephon
