#include "window/qt_loop.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTest>
#include <array>
#include <string>

namespace zephon {
namespace {

class QtLoopTest : public testing::Test {
 protected:
  QtLoopTest() { EXPECT_EQ(::pipe(pipe_.data()), 0); }
  ~QtLoopTest() override {
    for (const int end : pipe_) ::close(end);
  }

  Instant in(double milliseconds) const { return loop_.now() + fromMillis(milliseconds); }
  void write() { ASSERT_EQ(::write(pipe_[1], "x", 1), 1); }
  void waitUntil(Instant end) {
    while (loop_.now() < end) loop_.sleepUntil(end);
  }
  // Sleeps on through what is served meanwhile: Qt may have work of its own.
  Woke sleepUntilMore(Instant end) {
    Woke woke = Woke::Served;
    while (woke == Woke::Served) woke = loop_.sleepUntil(end, pipe_[0]);
    return woke;
  }

  QtLoop loop_;
  std::array<int, 2> pipe_{};
};

TEST_F(QtLoopTest, ASleepEndsForItsReason) {
  const Instant start = loop_.now();
  EXPECT_EQ(sleepUntilMore(start + fromMillis(20)), Woke::Deadline);
  EXPECT_GE(loop_.now() - start, fromMillis(20));

  bool served = false;
  loop_.callAt(in(5), [&] { served = true; });
  while (!served) EXPECT_EQ(loop_.sleepUntil(in(5000)), Woke::Served);

  QTimer::singleShot(5, [] {});  // stands for a click: an event that is none of ours
  EXPECT_EQ(loop_.sleepUntil(in(5000)), Woke::Served);

  loop_.callAt(in(5), [&] { write(); });
  EXPECT_EQ(sleepUntilMore(in(5000)), Woke::Readable);
  EXPECT_EQ(loop_.sleepUntil(in(-5)), Woke::Deadline);

  ::close(pipe_[1]);
  char byte = 0;
  EXPECT_EQ(::read(pipe_[0], &byte, 1), 1);
  EXPECT_EQ(sleepUntilMore(in(5000)), Woke::Readable) << "hung up";
  pipe_[1] = ::dup(pipe_[0]);
}

TEST_F(QtLoopTest, OtherCallsAreServedWhileOneWaitsInOursOrInQtsLoop) {
  std::string order;
  QEventLoop box;  // as a message box inside a timed call does
  loop_.callAt(in(5), [&] {
    order += 'a';
    waitUntil(in(60));
    order += 'e';
  });
  loop_.callAt(in(15), [&] {
    order += 'b';
    box.exec();
    order += 'd';
  });
  loop_.callAt(in(25), [&] { order += 'c'; });
  loop_.callAt(in(40), [&] { box.quit(); });
  waitUntil(in(120));
  EXPECT_EQ(order, "abcde");
}

TEST_F(QtLoopTest, NestedSleepsMayWatchTheSameDescriptor) {
  Woke inner = Woke::Served;
  loop_.callAt(in(5), [&] {
    write();
    inner = sleepUntilMore(in(1000));
  });
  while (inner == Woke::Served) EXPECT_EQ(loop_.sleepUntil(in(5000), pipe_[0]), Woke::Served);
  EXPECT_EQ(inner, Woke::Readable);
  EXPECT_EQ(sleepUntilMore(in(1000)), Woke::Readable);
}

TEST_F(QtLoopTest, NothingWakesAnIdleProgram) {
  int wakes = 0;
  const QObject counter;
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &counter,
                   [&wakes] { ++wakes; });
  loop_.callAt(in(5), [&] {
    write();
    wakes = 0;
    waitUntil(in(100));
    EXPECT_LE(wakes, 6) << "a sleep further out is told of the byte once";
  });
  EXPECT_EQ(sleepUntilMore(in(1000)), Woke::Readable);
  wakes = 0;
  waitUntil(in(150));
  EXPECT_LE(wakes, 4) << "unread bytes of a port that nobody watches now";
}

}  // namespace
}  // namespace zephon
