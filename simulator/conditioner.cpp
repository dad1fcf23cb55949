#include "simulator/conditioner.h"

#include <algorithm>

#include "simulator/encode.h"

namespace zephon::simulator {
namespace {

// Drops the oldest half when there is more than `most`, so that keeping stays cheap.
template <typename Log>
void keepWithin(Log& log, std::size_t most) {
  if (log.size() > most) log.erase(log.begin(), log.end() - static_cast<std::ptrdiff_t>(most / 2));
}

double secondsOf(Instant instant) {
  return std::chrono::duration<double>(instant).count();
}

}  // namespace

Conditioner::Conditioner(EventLoop& loop, const Profile& profile, const Options& options)
    : loop_(loop),
      options_(options),
      device_(profile, options),
      parser_(knownCommands(profile)),
      inbound_(loop, options.paced ? profile.baud() : 0, WireQueue::Batch::EachByte,
               [this](std::string_view bytes) { arrived(bytes); }),
      outbound_(loop, options.paced ? profile.baud() : 0, WireQueue::Batch::UpToOneMillisecond,
                [this](std::string_view bytes) { said(bytes); }) {}

Device& Conditioner::device() {
  device_.advanceTo(secondsOf(loop_.now()));
  return device_;
}

void Conditioner::hear(std::string_view bytes, int baud) {
  if (lineDead_) return;
  if (baud == profile().baud()) {
    inbound_.send(bytes, loop_.now());
    return;
  }
  parser_.reset();
  keepNoise(parser_.takeNoise());
  keepNoise(bytes);
}

void Conditioner::lineOpened(bool /*open*/) {
  linePurged();
}

// The far end forgets what it has not sent yet and what has reached it; what the device goes on saying still
// comes.
void Conditioner::linePurged() {
  inbound_.clear();
  outbound_.dropArrived();
}

void Conditioner::arrived(std::string_view bytes) {
  for (const char byte : bytes) {
    if (lineDead_) return;
    if (const Command* command = parser_.take(byte, loop_.now())) answer(*command);
    keepNoise(parser_.takeNoise());
  }
}

void Conditioner::answer(const Command& command) {
  heard_.push_back(parser_.heard());
  keepWithin(heard_, options_.heardKept);
  lastReply_.clear();
  const std::vector<Fault> faults = faults_.strike(parser_.heard());
  if (strikes(faults, FaultKind::Silent)) return;
  const Answer reply = run(command, faults);
  if (reply) speak(distort(*reply, faults));
}

Answer Conditioner::run(const Command& command, const std::vector<Fault>& faults) {
  Device& upToNow = device();
  const std::string& data = parser_.heard().data;
  if (command.access == Access::Read) return command.run(upToNow, data);
  if (strikes(faults, FaultKind::Refuse)) {
    if (profile().line == Line::Orvantis || data.empty()) return std::nullopt;
    return std::string(1, asChar(asByte(data[0]) ^ 1));  // a wrong echo
  }
  Answer reply = command.run(upToNow, data);
  upToNow.look();
  return reply;
}

void Conditioner::speak(const Spoken& spoken) {
  const double pause = options_.paced ? options_.answerMs : 0.0;
  const Instant start = loop_.now() + fromMillis(pause + spoken.lateMs);
  const std::string_view bytes = spoken.bytes;
  const std::size_t stallAt = std::min(spoken.stallAt, bytes.size());
  outbound_.send(bytes.substr(0, stallAt), start);
  outbound_.send(bytes.substr(stallAt), std::max(start, outbound_.freeAt()) + fromMillis(spoken.stallMs));
  lastReply_ = spoken.bytes;
  sent_ += spoken.bytes;
  keepWithin(sent_, options_.sentKept);
  if (spoken.cut) lineDead_ = true;
}

void Conditioner::said(std::string_view bytes) {
  say(bytes, profile().baud());
}

void Conditioner::clearFaults() {
  faults_.clear();
  restoreLine();
}

void Conditioner::cutLine() {
  lineDead_ = true;
  inbound_.clear();
  outbound_.clear();
}

void Conditioner::keepNoise(std::string_view bytes) {
  noise_ += bytes;
  keepWithin(noise_, options_.sentKept);
}

void Conditioner::clearLog() {
  heard_.clear();
  noise_.clear();
  sent_.clear();
  lastReply_.clear();
}

}  // namespace zephon::simulator
