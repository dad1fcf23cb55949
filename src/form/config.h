#pragma once

#include <string>

namespace zephon {

// What config.txt holds beside the COM number, which is the caption of COMlbl.
struct Config {
  bool bannerDisplay = false;
  bool checkComSettings = false;
  std::string language = "EN";
};

}  // namespace zephon
