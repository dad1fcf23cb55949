#include "simulator/wire_queue.h"

#include <algorithm>
#include <utility>

namespace zephon::simulator {
namespace {

constexpr std::int64_t kBitsPerByte = 10;
constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;

std::size_t batchSize(int baud, WireQueue::Batch batch) {
  if (baud == 0) return std::string::npos / 2;
  if (batch == WireQueue::Batch::EachByte) return 1;
  return static_cast<std::size_t>(std::max<std::int64_t>(1, baud / kBitsPerByte / 1000));
}

}  // namespace

WireQueue::WireQueue(EventLoop& loop, int baud, Batch batch, std::function<void(std::string_view)> deliver)
    : loop_(loop), baud_(baud), batch_(batchSize(baud, batch)), deliver_(std::move(deliver)) {}

WireQueue::~WireQueue() {
  loop_.cancel(call_);
}

Instant WireQueue::spanOf(std::size_t bytes) const {
  if (baud_ == 0) return Instant{0};
  const auto bits = static_cast<std::int64_t>(bytes) * kBitsPerByte;
  return Instant{(bits * kNanosecondsPerSecond + baud_ - 1) / baud_};
}

void WireQueue::send(std::string_view bytes, Instant earliest) {
  if (bytes.empty()) return;
  const Instant start = std::max(earliest, free_);
  runs_.push_back({start, std::string(bytes)});
  free_ = start + spanOf(bytes.size());
  if (call_ == 0) schedule();
}

void WireQueue::clear() {
  runs_.clear();
  free_ = Instant{0};
  loop_.cancel(std::exchange(call_, 0));
}

void WireQueue::dropArrived() {
  takeArrived();
  loop_.cancel(std::exchange(call_, 0));
  schedule();
}

std::string WireQueue::takeArrived() {
  const Instant now = loop_.now();
  std::string arrived;
  while (!runs_.empty()) {
    Run& run = runs_.front();
    std::size_t passed = run.done;
    while (passed < run.bytes.size() && run.start + spanOf(passed + 1) <= now) ++passed;
    arrived.append(run.bytes, run.done, passed - run.done);
    run.done = passed;
    if (passed < run.bytes.size()) break;
    runs_.pop_front();
  }
  return arrived;
}

void WireQueue::schedule() {
  if (runs_.empty()) return;
  const Run& run = runs_.front();
  const std::size_t upTo = std::min(run.bytes.size(), run.done + batch_);
  call_ = loop_.callAt(run.start + spanOf(upTo), [this] { tick(); });
}

void WireQueue::tick() {
  call_ = 0;
  const std::string arrived = takeArrived();
  schedule();  // first the next batch: what is told may come back into this queue
  if (!arrived.empty()) deliver_(arrived);
}

}  // namespace zephon::simulator
