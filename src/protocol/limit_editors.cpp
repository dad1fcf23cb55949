#include "protocol/limit_editors.h"

namespace zephon {
namespace {

void enableEditors(SetupElements& setup, bool on) {
  for (const auto member : kLimitEditors) (setup.*member).setEnabled(on);
}

}  // namespace

LimitValues editorValues(const SetupElements& setup) {
  LimitValues values{};
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = (setup.*kLimitEditors[i]).value();
  return values;
}

void showLimits(SetupElements& setup, const Limits& limits, double overloadAmps, std::int16_t modelLine) {
  const LimitValues values = {double(limits.OVco), double(limits.OVre), double(limits.OVrs),
                              double(limits.UVrs), double(limits.UVre), double(limits.UVco),
                              overloadAmps};
  enableEditors(setup, false);
  for (std::size_t i = 0; i < values.size(); ++i) (setup.*kLimitEditors[i]).setValue(values[i]);
  enableEditors(setup, true);
  if (modelLine == 1) {
    setup.OVrsNumEdit.setEnabled(false);
    setup.UVrsNumEdit.setEnabled(false);
  }
}

}  // namespace zephon
