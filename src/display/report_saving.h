#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// Reports for the user's customer. Each is written under the name that the user has chosen, with saveBtn held
// meanwhile. A PDF then opens in the desktop's viewer; where there is none, the user is told where it lies.

// The findings that stand. Asks for the file's name first; a cancelled question ends silently.
void saveExpertReport(Main& main);

// The log of events.
void saveEventReport(Main& main, const std::string& path);

// The settings that the setup page shows, as a text file. Asks for its name first. No viewer opens.
void saveSetupReport(Main& main);

}  // namespace zephon
