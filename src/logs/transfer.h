#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "logs/log_controls.h"
#include "protocol/stay.h"
#include "screen/elements_held.h"

namespace zephon {

// Long replies: a log, or a page of one, that comes for seconds. The page buttons are held meanwhile; what
// ends it from outside is dataPageActive being cleared, the visit being over, or the program closing.

enum class TransferEnd {
  Whole,
  Cancelled,  // from outside
  TimedOut,   // the watchdog ticked, or another exchange has run meanwhile
  Quiet,      // nothing came for the length of a window
  Closed,     // the port failed
};

struct Transfer {
  TransferEnd end = TransferEnd::Whole;
  std::string bytes;  // all that came, however it ended
};

// When to give up; 0 for not at all.
struct Patience {
  double watchdogMs = 0;  // from the start, by Timer1
  double windowMs = 0;    // windows of this length follow each other; one without a byte ends it
};

// What a reply that was given up needs to run out.
inline constexpr Patience kRunOut{12'000, 50};

// Told how many bytes have come so far.
using Progress = std::function<void(std::size_t came)>;

// Gathers until at least `wanted` bytes have come, asleep between them. What is given up counts as an
// abandoned reply.
Transfer receive(Main& main, std::size_t wanted, const Patience& patience, const Progress& progress = {});

// True while nothing has ended the download from outside.
bool goesOn(const Main& main, const Stay& stay);

// Drops what is still on its way from before, for 200 ms at least. False when the download was ended
// meanwhile.
bool drainLine(Main& main, const LogControls& controls);

// What the data page shows for the time of a transfer: the log's button says that it comes, the progress
// stands in the place of its clear button, cancelDataBtn can be pressed, the page buttons can not.
class ShownTransfer {
 public:
  ShownTransfer(Main& main, const LogControls& controls);
  ~ShownTransfer();
  ShownTransfer(const ShownTransfer&) = delete;
  ShownTransfer& operator=(const ShownTransfer&) = delete;

  void show(std::size_t came, std::size_t total);
  // All has come, and is being worked on: a text of the dictionary in the place of the progress.
  void showWork(std::size_t captionKey);

 private:
  void setProgressVisible(bool on);

  Main& main_;
  const LogControls& controls_;
  Stay stay_;
  ElementsHeld held_;  // the page buttons, and the help, which would keep the loop from its bytes
};

// Whether a frame has its wrap flag and write address where they belong.
using FrameCheck = bool (*)(std::string_view frame);

// Sends the command of a log that comes as one frame and gathers it: its last bytes. A frame that does not
// begin as it should may have had stray bytes ahead, and what else comes decides. Nothing when it was ended or
// stopped short; in that case Exchange::shortfall tells how much came, if some of it did.
std::optional<std::string> downloadFrame(Main& main, const LogControls& controls,
                                         const DeviceCommand& command, FrameCheck beginsRight);

// The words of a shortfall: "8195 of 8196 bytes came.", none unless some came.
std::string shortfallText(const Main& main, std::size_t came, std::size_t wanted);

// The end of a download without a log: what it returns. True when it was ended from outside, and, after a
// message, when there is no connection any more; false for a lost link.
bool endWithoutLog(Main& main, const Stay& stay);

}  // namespace zephon
