#include "platform/event_loop.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/timer.h"
#include "platform/virtual_loop.h"

namespace zephon {
namespace {

TEST(EventLoop, ServesInOrderOfTimeThenOfAddingAndLeavesNewCallsToTheNextPass) {
  VirtualLoop loop;
  std::string log;
  loop.callAt(fromMillis(2), [&] { log += 'c'; });
  loop.callAt(fromMillis(1), [&] {
    log += 'a';
    loop.callAt(Instant{0}, [&] { log += 'd'; });
  });
  loop.callAt(fromMillis(1), [&] { log += 'b'; });
  EXPECT_EQ(loop.sleepUntil(kNever), Woke::Served);
  EXPECT_EQ(log, "ab");
  loop.runOnce();
  EXPECT_EQ(log, "abd");
  EXPECT_EQ(loop.sleepUntil(fromMillis(2)), Woke::Served);
  EXPECT_EQ(log, "abdc");
  EXPECT_EQ(loop.sleepUntil(kNever), Woke::Deadline);  // nothing can ever happen
  EXPECT_EQ(loop.now(), fromMillis(2));
}

TEST(EventLoop, NestedPassServesTheRestOnceAndACancelledCallNever) {
  VirtualLoop loop;
  std::string log;
  EventLoop::CallId doomed = 0;
  const EventLoop::CallId self = loop.callAt(Instant{0}, [&] {
    log += '(';
    for (const auto call : {self, doomed}) loop.cancel(call);  // the first runs already
    loop.callAt(Instant{0}, [&] { log += 'n'; });
    loop.runOnce();
    log += ')';
  });
  loop.callAt(Instant{0}, [&] { log += 'b'; });
  doomed = loop.callAt(Instant{0}, [&] { log += 'x'; });
  for (int pass = 0; pass < 2; ++pass) loop.runOnce();
  EXPECT_EQ(log, "(bn)");
}

TEST(Timer, TicksUntilDisabledAndNestsInItsOwnTick) {
  VirtualLoop loop;
  Timer timer(loop);
  std::string log;
  timer.onTick = [&] {
    log += '(';
    if (log.size() < 2) loop.advance(fromMillis(15));  // a tick that outlasts its period ticks inside itself
    log += ')';
    if (log.size() > 8) timer.setEnabled(false);
  };
  timer.setInterval(10);
  timer.setEnabled(true);
  loop.advance(fromMillis(10));
  EXPECT_EQ(log, "(())");
  loop.advance(fromMillis(1000));
  EXPECT_EQ(log, "(())()()()");
  EXPECT_FALSE(timer.enabled());
}

TEST(Timer, NewIntervalStartsThePeriodAnew) {
  VirtualLoop loop;
  Timer timer(loop);
  int ticks = 0;
  timer.onTick = [&] { ++ticks; };
  timer.setInterval(10);
  timer.setEnabled(true);
  loop.advance(fromMillis(9));
  timer.setInterval(20);
  loop.advance(fromMillis(19));
  EXPECT_EQ(ticks, 0);
  loop.advance(fromMillis(1));
  EXPECT_EQ(ticks, 1);
}

}  // namespace
}  // namespace zephon
