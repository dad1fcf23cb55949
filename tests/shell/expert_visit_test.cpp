#include <gtest/gtest.h>

#include "shell/tool.h"

// The expert analysis as a user meets it: on the data page, with a device or with a saved log.

namespace zephon {
namespace {

using testing_support::Tool;

simulator::Options overloaded() {
  simulator::Options options;
  options.site = simulator::Story::OverloadedCircuit;
  options.pastSeconds = 20 * 86'400;
  return options;
}

TEST(ExpertVisit, AnalysesTheLogOnThePageAndListsWhatItFound) {
  Tool tool({}, overloaded());
  Main& main = tool.main;
  const Combo& list = main.frame.findingsList;
  tool.press(main.frame.dataBtn);
  main.data.histDataBtn.click();
  main.frame.expertBtn.click();
  ASSERT_TRUE(list.visible() && list.items().size() > 2);
  EXPECT_EQ(list.items()[0], "01. " + main.dict[215 + 3]);
  EXPECT_EQ(tool.dialogs.texts().size(), 2u);  // the voltage, and where the report is to go

  main.frame.findingsList.choose(0);
  const std::size_t overloads = main.frame.CWGraph2.marks().size();
  EXPECT_GT(overloads, 50u);
  EXPECT_EQ(main.data.TreeView1.selection().size(), overloads);
  main.data.maxMinHistBtn.click();  // a graph of the log has them too
  EXPECT_EQ(main.frame.CWGraph2.marks().size(), overloads);

  main.data.tsDataBtn.click();
  EXPECT_TRUE(!list.visible() && main.data.TreeView1.selection().empty());
  main.frame.expertBtn.click();
  EXPECT_EQ(list.items()[0], "01. " + main.dict[215]);
  tool.press(main.frame.dataBtn);
  EXPECT_TRUE(!list.visible() && list.items().empty() && !main.frame.expertBtn.visible());
}

TEST(ExpertVisit, FindsTheSameInASavedLog) {
  Tool tool({}, overloaded());
  Main& main = tool.main;
  tool.press(main.frame.dataBtn);
  main.data.histDataBtn.click();
  main.frame.expertBtn.click();
  const auto downloaded = main.frame.findingsList.items();
  tool.dialogs.saveAnswer = tool.dialogs.openAnswer = tool.settings / "history.csv";
  main.frame.saveBtn.click();
  tool.press(main.frame.dataBtn);
  tool.line.detach(1);
  tool.press(main.frame.dataBtn);
  main.data.histDataBtn.click();
  main.frame.expertBtn.click();
  EXPECT_EQ(main.frame.findingsList.items(), downloaded);
}

}  // namespace
}  // namespace zephon
