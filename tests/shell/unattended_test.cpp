#include "shell/unattended.h"

#include <gtest/gtest.h>

#include "shell/export_command.h"
#include "shell/tool.h"

namespace zephon {
namespace {

using simulator::Event;
using simulator::FaultKind;
using testing_support::Tool;

TEST(ExportCommand, IsCutOutOfTheCommandLine) {
  // What is left of the command line: the file, and a for append, m, t and c for the sections.
  for (const auto& [line, wanted] : {std::pair{"/o a.csv", "a.csv mtc"},
                                     {"-a /o a.csv", "a.csv amtc"},
                                     {"/o my-t -m", "my-t m"},
                                     {"/o a /o b -t", "a t"},
                                     {"/o ", ""},
                                     {"/o a.csv -x", ""},
                                     {"/oa.csv", ""}}) {
    std::string read;
    if (const auto command = parseExport(line)) {
      read = command->file + (command->append ? " a" : " ") + (command->measurements ? "m" : "") +
             (command->events ? "t" : "") + (command->counters ? "c" : "");
    }
    EXPECT_EQ(read, wanted) << line;
  }
}

// The program without a window: form loaded with a command line, then the export.
class Export : public Tool {
 public:
  int run(const std::string& switches) {
    return runUnattended(main, "/o " + (settings / "out.csv ") + switches);
  }
  std::string file() const { return settings.get("out.csv"); }
};

TEST(Unattended, WritesWhatIsAskedFor) {
  Export tool;
  simulator::Device& device = tool.device.device();
  tool.device.hold({.volts = 118.5, .amps = 3});
  device.setCount(Event::Surge, 7);
  device.setCount(Event::Overload, 2);
  ASSERT_EQ(tool.run("-m -c"), 0);
  EXPECT_EQ(tool.file(),
            "03/05/2024 09:30:00\r\nID: ZEPHON SIM\r\nFirmware Version: 1.KD1\r\n"
            "Software Version: 4.4\r\nChip ID: 4C.5A.17\r\nVoltage Rating: 120\r\n"
            "Date,Time,Line Voltage,Load Current,Load Power,Frequency,Power Factor,"
            "Crest Factor,Energy Usage\r\n"
            "03/05/24,09:30:00,118.50,3.0000,324.0,59.94,0.914,1.404,0.0000\r\n"
            "Disturbance Counters\r\n"
            "Date,Time,Surge,Over Voltage Shutdown,Over Voltage,Under Voltage,Under Voltage Shutdown,"
            "Power Outage,Overload\r\n"
            "03/05/24,09:30:00,7,0,0,0,0,0,2\r\n");
  EXPECT_TRUE(tool.idle() && tool.dialogs.shown().empty());
}

TEST(Unattended, AppendsWithoutAnyHeading) {
  Export tool;
  tool.device.device().events.ring().write("\x04\x24\x05\x03\x30\x29\x14\x5a");
  ASSERT_EQ(tool.run("-t"), 0);
  const std::string first = tool.file();
  const std::string event = "03/05/24,09:29:30,Under Voltage,90\r\n";
  EXPECT_TRUE(first.ends_with("Time Stamped Log\r\nDate,Time,Event,Magnitude\r\n" + event)) << first;
  tool.settings.put("out.csv", "a line without its end");
  EXPECT_EQ(tool.run("-t -a"), 0);
  EXPECT_EQ(tool.file(), "a line without its end\r\n" + event);
}

// The Nth exchange of a whole export fails, one after the other: the old file stands every time.
TEST(Unattended, EveryLostAnswerHasItsStatusAndKeepsTheOldFile) {
  Export whole;
  ASSERT_EQ(whole.run(""), 0);
  for (std::size_t n = 0; n < whole.device.heard().size(); n += 3) {
    Export tool;
    tool.settings.put("out.csv", "old");
    const auto& heard = whole.device.heard()[n].command;
    tool.device.addFault({.kind = FaultKind::Silent, .only = heard});
    EXPECT_EQ(tool.run("-a"), 4) << heard;
    EXPECT_EQ(tool.file(), "old") << heard;
    EXPECT_EQ(tool.dialogs.texts(), std::vector<std::string>{tool.main.dict[46]}) << heard;
    EXPECT_TRUE(tool.idle()) << heard;
  }
}

}  // namespace
}  // namespace zephon
