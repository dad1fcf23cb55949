#pragma once

#include <string>

class QWidget;

namespace zephon {

// Where the window stood and how large it was, kept in the file "window" of a folder of the user's own.

// Puts the window where it was left. A first start, a file that says nothing usable and a screen that is gone
// give the usual size in the middle of a screen.
void restorePlace(QWidget& window, const std::string& folder);

// Keeps the place for the next start, making the folder if needed. A disk that can't take it is no matter.
void keepPlace(const QWidget& window, const std::string& folder);

}  // namespace zephon
