#include "protocol/limit_coupling.h"

#include <iterator>
#include <optional>

#include "protocol/limit_codes.h"
#include "protocol/limit_editors.h"

namespace zephon {
namespace {

enum class Bound { Minimum, Maximum };

// When `changed` changes, this bound of `target` becomes its value.
struct Coupling {
  std::size_t changed;
  Bound bound;
  std::size_t target;
};
constexpr Coupling kCouplings[] = {
    {editor::OVco, Bound::Maximum, editor::OVre}, {editor::OVco, Bound::Maximum, editor::OVrs},
    {editor::OVre, Bound::Maximum, editor::OVrs}, {editor::OVrs, Bound::Minimum, editor::OVre},
    {editor::UVrs, Bound::Maximum, editor::UVre}, {editor::UVre, Bound::Minimum, editor::UVrs},
    {editor::UVco, Bound::Minimum, editor::UVre}, {editor::UVco, Bound::Minimum, editor::UVrs},
};

struct Gap {
  std::size_t editor;
  std::int16_t nominalVolts;
  double previous, value;  // a step between these
  double behind;           // goes here
};
constexpr Gap kGaps[] = {
    {editor::OVco, 120, 150, 155, 160}, {editor::OVco, 120, 160, 155, 150},
    {editor::OVre, 120, 150, 155, 160}, {editor::OVre, 120, 160, 155, 150},
    {editor::UVco, 120, 0, 5, 80},      {editor::UVco, 120, 80, 75, 0},
    {editor::UVco, 240, 0, 10, 140},    {editor::UVco, 240, 140, 130, 0},
};

// The lowest UVre that the second line has a digit for.
struct Floor {
  std::int16_t nominalVolts;
  double volts;
};
constexpr Floor kFloors[] = {{120, 80}, {240, 140}};

constexpr std::optional<double> kLeave{};  // the editor is left alone

struct Defaults {
  std::int16_t nominalVolts;
  std::int16_t modelLine;
  std::optional<double> volts[6];  // OVco, OVre, OVrs, UVrs, UVre, UVco
};
constexpr Defaults kDefaults[] = {
    {120, 0, {150, 145, 140, 105, 100, 80}},
    {120, 1, {150, 135, kLeave, kLeave, 100, 0}},
    {240, 0, {280, 270, 260, 190, 180, 160}},
    {240, 1, {260, 260, kLeave, kLeave, 180, 140}},
};
constexpr double kDefaultOverload = 25;

NumEdit& editorAt(Main& main, std::size_t which) {
  return main.setup.*kLimitEditors[which];
}

void setMaximum(NumEdit& target, double maximum) {
  target.setMaximum(maximum);
  if (target.enabled() && target.value() > maximum) target.setValue(maximum);
}

void setMinimum(NumEdit& target, double minimum) {
  target.setMinimum(minimum);
  if (target.enabled() && target.value() < minimum) target.setValue(minimum);
}

void raiseFloor(Main& main) {
  NumEdit& UVre = main.setup.UVreNumEdit;
  for (const Floor& floor : kFloors) {
    if (main.link.nominalVolts == floor.nominalVolts && UVre.range().minimum < floor.volts) {
      setMinimum(UVre, floor.volts);
    }
  }
}

void couple(Main& main, std::size_t which, double value) {
  for (const Coupling& coupling : kCouplings) {
    if (coupling.changed != which) continue;
    NumEdit& target = editorAt(main, coupling.target);
    coupling.bound == Bound::Maximum ? setMaximum(target, value) : setMinimum(target, value);
  }
  if (which == editor::UVco && main.link.modelLine == 1) raiseFloor(main);
}

// Where a step lands in a gap of the list, the value behind it.
std::optional<double> valueBehindGap(std::size_t which, std::int16_t nominalVolts, double value,
                                     double previous) {
  for (const Gap& gap : kGaps) {
    if (gap.editor == which && gap.nominalVolts == nominalVolts && gap.value == value &&
        gap.previous == previous) {
      return gap.behind;
    }
  }
  return std::nullopt;
}

bool allows(const NumEdit& editor, double value) {
  return value >= editor.range().minimum && value <= editor.range().maximum;
}

void editorChanged(Main& main, std::size_t which, double value, double previous) {
  NumEdit& changed = editorAt(main, which);
  if (!changed.enabled()) return;
  if (main.link.modelLine == 1) {
    const auto behind = valueBehindGap(which, main.link.nominalVolts, value, previous);
    if (behind && allows(changed, *behind)) return changed.setValue(*behind);  // which comes back and couples
    const double listed = nearestListed(which, main.link.nominalVolts, value);
    if (listed != value && allows(changed, listed)) return changed.setValue(listed);
  }
  couple(main, which, value);
}

}  // namespace

void wireLimitCoupling(Main& main) {
  for (std::size_t which = 0; which < kLimitEditors.size(); ++which) {
    editorAt(main, which).onChange = [&main, which](double value, double previous) {
      editorChanged(main, which, value, previous);
    };
  }
}

void setDefaultLimits(Main& main) {
  for (const Defaults& row : kDefaults) {
    if (row.nominalVolts != main.link.nominalVolts || row.modelLine != main.link.modelLine) continue;
    for (std::size_t which = 0; which < std::size(row.volts); ++which) {
      if (row.volts[which]) editorAt(main, which).setValue(*row.volts[which]);
    }
  }
  main.setup.OLreNumEdit.setValue(kDefaultOverload);
}

}  // namespace zephon
