#include "protocol/month_names.h"

#include "form/dictionary.h"

namespace zephon {
namespace {

constexpr int kMonthKey = 100;  // of the month before January

}  // namespace

std::string monthString(double theMonth, std::span<const std::string> dict) {
  for (int month = 1; month <= 12; ++month) {
    if (month == theMonth) return dictText(dict, kMonthKey + month);
  }
  return {};
}

}  // namespace zephon
