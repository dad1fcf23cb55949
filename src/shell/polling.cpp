#include "shell/polling.h"

#include "protocol/measurement.h"
#include "protocol/visit.h"
#include "shell/connection.h"

namespace zephon {
namespace {

constexpr int kTries = 4;

}  // namespace

void pollTick(Main& main) {
  main.timers.measurementTimer.setEnabled(false);
  const PageVisit visit = main.pages.wanted;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    if (!main.pages.measuring || !stands(main, visit)) return;
    if (getMeasurements(main)) {
      if (main.pages.measuring && stands(main, visit)) main.timers.measurementTimer.setEnabled(true);
      return;
    }
  }
  if (!main.pages.measuring || !stands(main, visit)) return;
  main.pages.measuring = false;
  errorSub(main);
}

}  // namespace zephon
