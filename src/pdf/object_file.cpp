#include "pdf/object_file.h"

#include <cerrno>
#include <limits>

#include "pdf/content.h"

namespace zephon {
namespace {

constexpr std::size_t kBlock = 1 << 16;
constexpr int kMostObjects = std::numeric_limits<std::int16_t>::max();
constexpr std::int64_t kMostOffset = std::numeric_limits<std::int32_t>::max();
constexpr SaveResult kTooLarge{SaveStep::Write, EFBIG};

}  // namespace

SaveResult ObjectFile::open(const std::string& path) {
  pending_.clear();
  offsets_.clear();
  offset_ = 0;
  failure_ = {};
  return save_.begin(path);
}

int ObjectFile::start() {
  if (last() == kMostObjects) {
    check(kTooLarge);
    return last();
  }
  offsets_.push_back(offset_);
  return last();
}

void ObjectFile::write(std::string_view piece) {
  offset_ += static_cast<std::int64_t>(piece.size());
  if (offset_ > kMostOffset) check(kTooLarge);
  append(piece);
}

void ObjectFile::writeLine(std::string_view piece) {
  write(piece);
  append(kCrLf);
}

void ObjectFile::writeMarker(std::string_view marker) {
  append(marker);
  append(kCrLf);
}

SaveResult ObjectFile::finish() {
  flush();
  if (save_.isOpen()) check(save_.finish());
  return failure_;
}

void ObjectFile::append(std::string_view bytes) {
  if (!save_.isOpen()) return;
  pending_ += bytes;
  if (pending_.size() >= kBlock) flush();
}

void ObjectFile::flush() {
  if (save_.isOpen()) check(save_.write(pending_));
  pending_.clear();
}

void ObjectFile::check(const SaveResult& result) {
  if (result) return;
  if (failure_) failure_ = result;
  save_.drop();
}

}  // namespace zephon
