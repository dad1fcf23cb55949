#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zephon {

// The form's outer size, as the window tells it.
struct FormSize {
  int width = 0;
  int height = 0;
  bool operator==(const FormSize&) const = default;
};

// The scope: what it captures, how it shows it, and the last capture. Modes: 0 nothing, 1 voltage, 2 current,
// 3 voltage and current. What the user changes during a capture waits in the ...Next values for its end.
struct Capture {
  std::int16_t scopeModeNow = 0;
  std::int16_t scopeModeNext = 0;
  bool scopeModeChanged = false;  // scopeModeNext is another one
  std::int16_t modeBefore = 0;    // of the pass before; another one needs a pause
  float ch1Scale = 100;           // volts a division
  float ch2Scale = 4;             // amperes a division
  float ch3Scale = 400;           // watts a division
  float xScale = 1;               // time factor: 0.125 to 4
  float xScaleNext = 1;

  std::int16_t oneShotMode = 0;  // 0 off, 1 armed on voltage, 2 armed on current
  double oneShotLevel = 0;       // volts or amperes
  bool scopeHeld = false;        // the picture is frozen
  bool formResized = false;      // the form's size has changed during the last capture, which broke it
  FormSize sizeRead;             // the form's size when it was last looked at
  int failures = 0;              // captures failed in a row

  // Samples of the last capture; a channel that it did not have is empty.
  std::vector<double> scopeV, scopeA, scopeW;
  std::int16_t capturedMode = 0;
  float capturedXScale = 1;

  // While the scope's page is shown rawLogBuffer has the capture's bytes, and these are the log's; on the
  // other pages it is the other way round.
  std::string otherBytes;
  bool pageShown = false;
};

}  // namespace zephon
