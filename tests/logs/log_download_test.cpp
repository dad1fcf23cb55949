#include <gtest/gtest.h>

#include "logs/chart_memory.h"
#include "logs/download_world.h"
#include "logs/event_log.h"
#include "logs/history_log.h"
#include "logs/transfer.h"

namespace zephon {
namespace {

using simulator::Fault;
using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::DownloadWorld;
using testing_support::kLogCases;
using testing_support::LogCase;

// The log as the device has sent it: the end of all that it has said.
bool broughtWhole(const DownloadWorld& world) {
  const std::string& raw = world.main.logs.rawLogBuffer;
  const std::string& sent = world.device.sent();
  if (raw.size() == kEventFrameBytes || raw.size() == kHistoryFrameBytes) return sent.ends_with(raw);
  const std::size_t pages = raw.size() / kChartPageBytes;
  std::string stream;
  for (std::size_t page = pages; page > 0; --page)
    stream += sent.substr(sent.size() - page * kChartReplyBytes + 2, kChartPageBytes);
  return pages > 0 && raw == stream;
}

class Download : public ::testing::TestWithParam<LogCase> {
 protected:
  const LogCase& log() const { return GetParam(); }
  Button& button(DownloadWorld& world) { return world.main.data.*log().controls.button; }
  std::string ownCaption(DownloadWorld& world) { return world.main.dict[log().controls.captionKey]; }
  // Everything that a transfer turns is as before.
  void expectCalm(DownloadWorld& world) {
    EXPECT_EQ(button(world).caption(), ownCaption(world));
    EXPECT_FALSE(world.main.data.cancelDataBtn.visible());
    EXPECT_FALSE(world.main.data.dataProgSlide.visible());
    EXPECT_TRUE(world.pageButtonsEnabled(true));
    EXPECT_FALSE(world.main.exchange.Timer1.enabled());
    if (log().controls.clear) {
      EXPECT_TRUE((world.main.data.*log().controls.clear).visible());
    }
  }
};

INSTANTIATE_TEST_SUITE_P(Logs, Download, ::testing::ValuesIn(kLogCases),
                         [](const auto& one) { return one.param.name; });

TEST_P(Download, BringsTheDevicesBytesAndTheirRows) {
  DownloadWorld world;
  world.main.logs.tsData.resize(3);
  world.main.logs.histData.resize(3);
  const double start = world.nowMs();
  ASSERT_TRUE(log().get(world.main));
  EXPECT_NEAR(world.nowMs() - start, log().seconds * 1000, log().seconds * 40);
  const Logs& logs = world.main.logs;
  EXPECT_TRUE(broughtWhole(world));
  const UtcOffset offset = utcOffset(world.clock.now());
  const bool events = log().get == getTSdata;
  const bool history = log().get == getHistData;
  EXPECT_TRUE(logs.tsData == (events ? decodeEventFrame(logs.rawLogBuffer, 120, offset) : LogTable<8>()));
  EXPECT_TRUE(logs.histData ==
              (history ? decodeHistoryFrame(logs.rawLogBuffer, 120, offset) : LogTable<12>()));
  if (!events && !history) {
    EXPECT_TRUE(logs.chartData == decodeChartMemory(logs.rawLogBuffer, offset).rows);
  }
  EXPECT_GT(logs.tsData.size() + logs.histData.size() + logs.chartData.size(), 100U);
  EXPECT_EQ(world.main.data.TreeView1.visible(), events || history);
  EXPECT_EQ(world.main.data.PavgHistBtn.visible(), history);
  EXPECT_EQ(world.main.frame.saveBtn.visible(), events || history);
  expectCalm(world);
}

TEST_P(Download, ShowsItsProgressWithThePageButtonsHeld) {
  DownloadWorld world;
  world.main.frame.ScopeBtn.setEnabled(false);
  double before = 0;
  for (double share : {0.5, 0.7, 0.9}) {
    world.later(share * log().seconds * 1000, [&] {
      EXPECT_EQ(button(world).caption(), world.main.dict[79]);
      EXPECT_TRUE(world.main.data.cancelDataBtn.visible() && world.main.data.dataProgSlide.visible());
      if (log().controls.clear) {
        EXPECT_FALSE((world.main.data.*log().controls.clear).visible());
      }
      EXPECT_TRUE(world.pageButtonsEnabled(false));
      EXPECT_GT(world.main.data.dataProgSlide.value(), before);
      before = world.main.data.dataProgSlide.value();
    });
  }
  ASSERT_TRUE(log().get(world.main));
  EXPECT_GT(before, log().get == getCMdata ? 30.0 : 50.0);  // the memory is not full
  EXPECT_FALSE(world.main.frame.ScopeBtn.enabled()) << "what was off stays off";
  EXPECT_TRUE(world.main.frame.measBtn.enabled());
}

// How a fault ends.
struct Ending {
  Fault fault;
  bool good;           // what the download returns
  bool whole;          // with the device's rows
  const char* short_;  // of how much came, in the message or for it
};

TEST_P(Download, EndsEachFaultAsItMust) {
  const bool history = log().get == getHistData;
  const bool chart = log().get == getCMdata;
  const char* lessOne = history ? "110598 of 110599 bytes came." : "8195 of 8196 bytes came.";
  const char* half = history ? "4000 of 110599 bytes came."
                     : chart ? "4000 of 393216 bytes came."
                             : "4000 of 8196 bytes came.";
  const char* none = "";
  const Ending endings[] = {
      {{.kind = FaultKind::Silent}, false, false, none},
      {{.kind = FaultKind::Silent, .commands = 1}, chart, chart, none},
      {{.kind = FaultKind::Short, .commands = 1}, history || chart, chart, chart ? none : lessOne},
      {{.kind = FaultKind::Late, .commands = 1}, true, true, none},
      {{.kind = FaultKind::Stall, .amount = 300, .commands = 1}, true, true, none},
      {{.kind = FaultKind::Stall, .amount = 0, .at = 4000}, history, false, half},
      {{.kind = FaultKind::Cut, .amount = 4000}, history, false, half},
  };
  for (const Ending& ending : endings) {
    DownloadWorld world;
    Fault fault = ending.fault;
    fault.only = log().command;
    world.device.addFault(fault);
    const auto what = static_cast<int>(fault.kind);
    EXPECT_EQ(log().get(world.main), ending.good) << what;
    if (ending.whole) {
      EXPECT_TRUE(broughtWhole(world)) << what;
    } else {
      EXPECT_TRUE(world.tablesEmpty()) << what;
    }
    const bool told = ending.good && !ending.whole;
    ASSERT_EQ(world.dialogs.shown().size(), told ? 1U : 0U) << what;
    if (told) {
      EXPECT_EQ(world.dialogs.texts()[0], world.main.dict[208]);
    }
    EXPECT_EQ(told ? world.dialogs.shown()[0].detail : world.main.exchange.shortfall, ending.short_) << what;
    expectCalm(world);
  }
}

TEST_P(Download, AnyBytesAreDecodedSomehow) {
  for (const FaultKind kind : {FaultKind::Garbage, FaultKind::Doubled, FaultKind::Corrupt}) {
    DownloadWorld world;
    world.device.addFault({.kind = kind, .only = log().command});
    EXPECT_TRUE(log().get(world.main));
    expectCalm(world);
  }
}

TEST_P(Download, APortThatFailsEndsItAtOnce) {
  for (const double seconds : {0.1, 0.8}) {
    DownloadWorld world;
    world.later(seconds * 1000, [&] { world.line.detach(1); });
    EXPECT_FALSE(log().get(world.main));
    EXPECT_LT(world.nowMs(), 6000);
    expectCalm(world);
  }
  DownloadWorld world;
  world.later(240, [&] { world.line.failNext(MemoryLine::Call::Write, 5, 100); });
  EXPECT_FALSE(log().get(world.main));
  expectCalm(world);
}

// Whatever ends it, whenever: silently and within a second, and the next download is whole again.
TEST_P(Download, EndsFromOutsideAtAnyMoment) {
  for (double moment = 1; moment < log().seconds * 1000; moment *= 2.3) {
    DownloadWorld world;
    double ended = 0;
    world.later(moment, [&] {
      ended = world.nowMs();
      world.main.pages.dataPageActive = false;  // as cancelDataBtn does
    });
    EXPECT_TRUE(log().get(world.main)) << moment;
    EXPECT_LT(world.nowMs(), ended + 500) << moment;
    EXPECT_TRUE(world.tablesEmpty()) << moment;
    EXPECT_TRUE(world.dialogs.shown().empty()) << moment;
    expectCalm(world);
    world.main.pages.dataPageActive = true;
    EXPECT_TRUE(log().get(world.main)) << moment;
    EXPECT_TRUE(broughtWhole(world)) << moment;
  }
}

TEST_P(Download, LeavingAndClosingEndItSilently) {
  for (double moment = 1; moment < log().seconds * 1000; moment *= 2.3) {
    for (const bool closing : {false, true}) {
      DownloadWorld world;
      world.later(moment, [&] { closing ? void(world.main.ending = true) : world.stay(Page::Setup); });
      EXPECT_TRUE(log().get(world.main)) << moment;
      EXPECT_LT(world.nowMs(), moment + 500) << moment;
      EXPECT_TRUE(world.tablesEmpty() && world.dialogs.shown().empty()) << moment;
      EXPECT_TRUE(world.pageButtonsEnabled(true)) << moment;
      EXPECT_FALSE(world.main.exchange.Timer1.enabled()) << moment;
    }
  }
}

TEST(FrameDownload, StrayBytesAheadAreDropped) {
  for (const LogCase& log : {kLogCases[0], kLogCases[1]}) {
    DownloadWorld world;
    world.device.addFault({.kind = FaultKind::Stray, .only = log.command});
    ASSERT_TRUE(log.get(world.main)) << log;
    EXPECT_TRUE(broughtWhole(world)) << log;
    EXPECT_FALSE(world.main.exchange.replyAbandoned) << log;
  }
}

TEST(EventDownload, TheSecondLinesTableStandsInForItsLog) {
  DownloadWorld world(makeProfile(Line::Tessara));
  ASSERT_TRUE(getTSdata(world.main));
  const Logs& logs = world.main.logs;
  EXPECT_EQ(logs.tsData.size(), 60U);
  EXPECT_TRUE(logs.rawLogBuffer.empty());
  EXPECT_EQ(world.main.data.TreeView1.tooltip(), world.main.dict[214]);
  EXPECT_EQ(world.main.data.tsDataBtn.caption(), world.main.dict[36]);
  for (const char* silent : {"+", "t"}) {
    world.device.addFault({.kind = FaultKind::Silent, .only = silent, .commands = 1});
    EXPECT_FALSE(getTSdata(world.main)) << silent;
    EXPECT_TRUE(world.tablesEmpty()) << silent;
  }
}

TEST(EventDownload, AnEmptyLogIsAnEmptyTreeThatCanBeSaved) {
  DownloadWorld world;
  world.device.device().events.ring().clear();
  ASSERT_TRUE(getTSdata(world.main));
  EXPECT_TRUE(world.main.data.TreeView1.visible() && world.main.data.TreeView1.empty());
  EXPECT_TRUE(world.main.frame.saveBtn.visible() && world.main.frame.expertBtn.visible());
  world.device.device().history.ring().clear();
  world.device.addFault({.kind = FaultKind::Corrupt, .amount = 1, .at = 19, .only = "gD"});  // no flag
  ASSERT_TRUE(getHistData(world.main));
  EXPECT_TRUE(world.main.data.TreeView1.visible() && world.main.data.TreeView1.empty());
  EXPECT_TRUE(world.main.frame.saveBtn.visible());
  EXPECT_FALSE(world.main.frame.expertBtn.visible() || world.main.data.PavgHistBtn.visible());
}

TEST(HistoryDownload, ClearingIsConfirmedByTheDevice) {
  DownloadWorld world;
  EXPECT_TRUE(setClrHistData(world.main));
  EXPECT_EQ(world.commands().back(), "s@Y");
  world.device.addFault({.kind = FaultKind::Refuse});
  EXPECT_FALSE(setClrHistData(world.main));
}

// The pages asked for, by their addresses' first bytes.
std::string pagesAsked(const DownloadWorld& world) {
  std::string pages;
  for (const auto& heard : world.device.heard()) {
    if (heard.command == "g`")
      pages += std::to_string(static_cast<unsigned char>(heard.data[1]) / 128 +
                              2 * static_cast<unsigned char>(heard.data[0])) +
               " ";
  }
  return pages;
}

TEST(ChartDownload, ReadsUpToTheEndOfWhatIsRecorded) {
  DownloadWorld world({}, 8);  // 57,600 bytes
  ASSERT_TRUE(getCMdata(world.main));
  EXPECT_EQ(pagesAsked(world), "4 5 ");
  EXPECT_EQ(world.main.logs.shown, ShownLog::Chart);
  EXPECT_GT(world.main.logs.chartData.size(), 2800U);
}

TEST(ChartDownload, AnEmptyMemoryIsNoFailure) {
  DownloadWorld world({}, 0);
  ASSERT_TRUE(getCMdata(world.main));
  EXPECT_TRUE(world.main.logs.chartData.empty());
  EXPECT_EQ(world.main.logs.shown, ShownLog::None);
}

// A memory of four pages that is full: the fifth page reads as empty, or says nothing at all.
TEST(ChartDownload, ASmallMemoryIsReadWhole) {
  simulator::Profile profile;
  profile.chartMemory = simulator::ChartFitted::FourPages;
  for (const bool silentBehind : {false, true}) {
    DownloadWorld world(profile, 60);
    double shown = 0;
    if (silentBehind) {
      world.later(11'950, [&] {
        shown = world.main.data.dataProgSlide.value();
        world.device.addFault({.kind = FaultKind::Silent, .only = "g`"});
      });
    }
    ASSERT_TRUE(getCMdata(world.main));
    EXPECT_EQ(pagesAsked(world), silentBehind ? "4 5 6 7 8 8 8 8 8 " : "4 5 6 7 8 ");
    EXPECT_GE(world.main.logs.rawLogBuffer.size(), 131'072U);
    EXPECT_GT(world.main.logs.chartData.size(), 6500U);
    if (silentBehind) {
      EXPECT_GT(shown, 95) << "of 131073 bytes";
    }
  }
}

TEST(ChartDownload, APageThatDoesNotComeIsAskedForFiveTimes) {
  DownloadWorld world;
  world.device.addFault({.kind = FaultKind::Silent, .only = "g`", .commands = 4});
  ASSERT_TRUE(getCMdata(world.main));
  EXPECT_EQ(pagesAsked(world), "4 4 4 4 4 5 6 7 8 ");
  world.device.clearLog();
  world.device.addFault({.kind = FaultKind::Silent, .only = "g`", .commands = 5});
  const double start = world.nowMs();
  EXPECT_FALSE(getCMdata(world.main));
  EXPECT_EQ(pagesAsked(world), "4 4 4 4 4 ");
  EXPECT_NEAR(world.nowMs() - start, 250 + 5 * 650, 60);
}

}  // namespace
}  // namespace zephon
