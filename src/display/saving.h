#pragma once

#include "form/main.h"

namespace zephon {

// What saveBtn saves, by what is on the screen and by how many raw bytes there are.
enum class Saved {
  Nothing,
  Scope,
  LiveChart,
  Events,
  History,
  InternalChart,
  Report,  // of the settings
};
Saved whatToSave(const Main& main);

// Wires saveBtn: the left button saves, the right one turns between the raw form and the other, which the
// caption "Raw" tells. A file that stands already is asked about; every save puts the whole file in place or
// leaves the old one, and tells the user what failed.
void wireSaving(Main& main);

// saveBtn's tooltip, which tells the raw form as the caption does, in the language in use.
void showSaveTooltip(Main& main);

}  // namespace zephon
