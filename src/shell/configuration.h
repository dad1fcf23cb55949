#pragma once

#include "form/main.h"

namespace zephon {

// Reads config.txt into the form; without one the defaults hold.
void readConfiguration(Main& main);

// Writes config.txt anew. Tells the user when that fails; the old file then stands.
void writeConfiguration(Main& main);

// saveComBtn: takes over the number of comNumEdit and writes it.
void saveComNumber(Main& main);

}  // namespace zephon
