#include "simulator/fault.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "simulator/encode.h"

namespace zephon::simulator {
namespace {

struct KindName {
  std::string_view name;
  FaultKind kind;
  int ownAmount;
};

constexpr std::array<KindName, 10> kKinds = {{
    {"silent", FaultKind::Silent, 0},
    {"short", FaultKind::Short, 1},
    {"stray", FaultKind::Stray, 3},
    {"late", FaultKind::Late, 150},
    {"refuse", FaultKind::Refuse, 0},
    {"cut", FaultKind::Cut, 1},
    {"garbage", FaultKind::Garbage, 0},
    {"doubled", FaultKind::Doubled, 0},
    {"stall", FaultKind::Stall, 1000},
    {"corrupt", FaultKind::Corrupt, 1},
}};

constexpr int kMostAmount = 1'000'000;

int ownAmount(FaultKind kind) {
  return std::find_if(kKinds.begin(), kKinds.end(), [kind](const KindName& row) { return row.kind == kind; })
      ->ownAmount;
}

template <typename Number>
bool readNumber(std::string_view text, Number& number) {
  Number read{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), read);
  if (error != std::errc() || end != text.data() + text.size() || !(read >= 0)) return false;
  number = read;
  return true;
}

bool readSetting(std::string_view name, std::string_view value, Fault& fault) {
  if (name == "amount") return readNumber(value, fault.amount) && fault.amount <= kMostAmount;
  if (name == "at") return readNumber(value, fault.at) && fault.at <= kMostAmount;
  if (name == "count") return readNumber(value, fault.commands);
  if (name == "after") return readNumber(value, fault.afterSeconds);
  if (name == "for") return readNumber(value, fault.forSeconds);
  if (name != "only" || value.empty()) return false;
  fault.only = value;
  return true;
}

// Cuts `text` at the first `mark`: what stands before it, leaving what stands behind.
std::string_view takeUntil(std::string_view& text, char mark) {
  const std::size_t place = text.find(mark);
  const std::string_view before = text.substr(0, place);
  text.remove_prefix(place == std::string_view::npos ? text.size() : place + 1);
  return before;
}

Instant later(Instant now, double seconds) {
  return seconds > 1e9 ? kNever : now + fromMillis(seconds * 1000.0);
}

// Another byte, always the same one, and never one that a reply is found by.
char garbled(char byte) {
  return asChar(asByte(byte) ^ 0x95);
}

std::string doubled(const std::string& bytes) {
  std::string twice;
  for (const char byte : bytes) twice.append(2, byte);
  return twice;
}

// Where in a reply a fault strikes; `own` if its place was not set.
std::size_t placeIn(const std::string& bytes, const Fault& fault, std::size_t own) {
  return std::min(bytes.size(), fault.at < 0 ? own : static_cast<std::size_t>(fault.at));
}

void stall(Spoken& spoken, const Fault& fault) {
  const std::size_t place = placeIn(spoken.bytes, fault, spoken.bytes.size() / 2);
  if (fault.amount == 0) return spoken.bytes.resize(place);
  spoken.stallAt = place;
  spoken.stallMs += fault.amount;
}

void corrupt(std::string& bytes, const Fault& fault) {
  const auto amount = std::min(bytes.size(), static_cast<std::size_t>(fault.amount));
  const std::size_t first = placeIn(bytes, fault, 0);
  for (std::size_t i = 0; i < amount; ++i) {
    const std::size_t place = fault.at < 0 ? (2 * i + 1) * bytes.size() / (2 * amount) : first + i;
    if (place < bytes.size()) bytes[place] = garbled(bytes[place]);
  }
}

}  // namespace

std::optional<Fault> parseFault(std::string_view text) {
  const bool hasSettings = text.find(':') != std::string_view::npos;
  const std::string_view kind = takeUntil(text, ':');
  const auto row =
      std::find_if(kKinds.begin(), kKinds.end(), [kind](const KindName& k) { return k.name == kind; });
  if (row == kKinds.end()) return std::nullopt;
  Fault fault;
  fault.kind = row->kind;
  if (!hasSettings) return fault;
  do {
    std::string_view setting = takeUntil(text, ',');
    const std::string_view name = takeUntil(setting, '=');
    if (!readSetting(name, setting, fault)) return std::nullopt;
  } while (!text.empty());
  return fault;
}

void FaultList::add(const Fault& fault, Instant now) {
  Set set{fault, later(now, fault.afterSeconds), kNever};
  if (set.from != kNever) set.until = later(set.from, fault.forSeconds);
  if (fault.amount < 0) set.fault.amount = ownAmount(fault.kind);
  set_.push_back(set);
}

std::vector<Fault> FaultList::strike(const Heard& heard) {
  std::vector<Fault> struck;
  for (Set& set : set_) {
    const bool meant = set.fault.only.empty() || set.fault.only == heard.command;
    if (!meant || heard.at < set.from || heard.at >= set.until || set.fault.commands == 0) continue;
    if (set.fault.commands != Fault::kEvery) --set.fault.commands;
    struck.push_back(set.fault);
  }
  return struck;
}

bool strikes(const std::vector<Fault>& faults, FaultKind kind) {
  return std::any_of(faults.begin(), faults.end(), [kind](const Fault& fault) { return fault.kind == kind; });
}

Spoken distort(std::string reply, const std::vector<Fault>& faults) {
  Spoken spoken{std::move(reply)};
  std::string& bytes = spoken.bytes;
  for (const Fault& fault : faults) {
    const auto amount = static_cast<std::size_t>(fault.amount);
    switch (fault.kind) {
      case FaultKind::Short:
        bytes.resize(bytes.size() - std::min(bytes.size(), amount));
        break;
      case FaultKind::Stray:
        bytes.insert(placeIn(bytes, fault, 0), amount, asChar(0x55));
        break;
      case FaultKind::Late:
        spoken.lateMs += fault.amount;
        break;
      case FaultKind::Garbage:
        std::transform(bytes.begin(), bytes.end(), bytes.begin(), garbled);
        break;
      case FaultKind::Doubled:
        bytes = doubled(bytes);
        break;
      case FaultKind::Cut:
        bytes.resize(std::min(bytes.size(), amount));
        spoken.cut = true;
        break;
      case FaultKind::Stall:
        stall(spoken, fault);
        break;
      case FaultKind::Corrupt:
        corrupt(bytes, fault);
        break;
      case FaultKind::Silent:
      case FaultKind::Refuse:
        break;
    }
  }
  return spoken;
}

}  // namespace zephon::simulator
