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
  QtLoopTest() {
    EXPECT_EQ(::pipe(pipe_.data()), 0);
    lastWarning().clear();
    previous_ = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
      lastWarning() = text.toStdString();
    });
  }
  ~QtLoopTest() override {
    qInstallMessageHandler(previous_);
    for (const int end : pipe_) ::close(end);
  }

  static std::string& lastWarning() {
    static std::string text;
    return text;
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

 private:
  QtMessageHandler previous_;
};

// How often the thread wakes while `run` runs.
int wakeUps(const std::function<void()>& run) {
  int count = 0;
  const auto counting = QObject::connect(QAbstractEventDispatcher::instance(),
                                         &QAbstractEventDispatcher::awake, [&count] { ++count; });
  run();
  QObject::disconnect(counting);
  return count;
}

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
  EXPECT_EQ(sleepUntilMore(in(5000)), Woke::Readable) << "still unread";
  EXPECT_EQ(loop_.sleepUntil(in(-5)), Woke::Deadline);

  ::close(pipe_[1]);
  std::array<char, 8> bytes{};
  EXPECT_EQ(::read(pipe_[0], bytes.data(), bytes.size()), 1);
  EXPECT_EQ(sleepUntilMore(in(5000)), Woke::Readable) << "hung up";
  pipe_[1] = ::dup(pipe_[0]);
}

TEST_F(QtLoopTest, OtherCallsAreServedWhileOneWaitsInOursOrInQtsLoop) {
  std::string order;
  loop_.callAt(in(5), [&] {
    order += 'a';
    waitUntil(in(60));
    order += 'z';
  });
  loop_.callAt(in(15), [&] { order += 'b'; });
  const auto cancelled = loop_.callAt(in(20), [&] { order += '!'; });
  loop_.callAt(in(16), [&] { loop_.cancel(cancelled); });
  QEventLoop box;  // as a message box inside a timed call does
  loop_.callAt(in(25), [&] {
    order += 'c';
    box.exec();
    order += 'e';
  });
  loop_.callAt(in(30), [&] { order += 'd'; });
  loop_.callAt(in(40), [&] { box.quit(); });
  waitUntil(in(120));
  EXPECT_EQ(order, "abcdez");
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
  EXPECT_EQ(lastWarning(), "");
}

TEST_F(QtLoopTest, NothingWakesAnIdleProgram) {
  write();  // unread bytes of a port that nobody watches now
  ASSERT_EQ(sleepUntilMore(in(1000)), Woke::Readable);
  EXPECT_LE(wakeUps([] { QTest::qWait(150); }), 20) << "Qt's own waiting takes a few";
  EXPECT_LE(wakeUps([this] { waitUntil(in(150)); }), 4);
  // Nor does a byte that a sleep further out has been told of.
  loop_.callAt(in(5), [&] { EXPECT_LE(wakeUps([this] { waitUntil(in(100)); }), 6); });
  while (loop_.sleepUntil(in(200), pipe_[0]) == Woke::Readable && loop_.now() < in(-100)) {
  }
  waitUntil(in(120));
}

}  // namespace
}  // namespace zephon
