#pragma once

#include <array>
#include <cstddef>

#include "form/elements.h"
#include "form/limits.h"

namespace zephon {

// The seven limit editors of the setup page, in the order in which they are written.
namespace editor {
enum : std::size_t { OVco, OVre, OVrs, UVrs, UVre, UVco, OLre };
}

template <class Value>
using PerEditor = std::array<Value, 7>;

inline constexpr PerEditor<NumEdit SetupElements::*> kLimitEditors = {
    &SetupElements::OVcoNumEdit, &SetupElements::OVreNumEdit, &SetupElements::OVrsNumEdit,
    &SetupElements::UVrsNumEdit, &SetupElements::UVreNumEdit, &SetupElements::UVcoNumEdit,
    &SetupElements::OLreNumEdit};

// Volts, and the amps of the overload record point.
using LimitValues = PerEditor<double>;

LimitValues editorValues(const SetupElements& setup);

// Shows what the device holds. The editors are disabled meanwhile, so that their coupling keeps still. The
// second line's restore points are fixed: their editors stay disabled.
void showLimits(SetupElements& setup, const Limits& limits, double overloadAmps, std::int16_t modelLine);

}  // namespace zephon
