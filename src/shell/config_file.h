#pragma once

#include <string>
#include <string_view>

namespace zephon {

// The four settings that outlive the program. "config.txt" has four lines in fixed order; behind the value of
// each stand a tab and a remark that is not read back:
//   1  COM number            ;COM Port
//   2  True or False         ;Banner Display Toggle
//   3  True or False         ;Perform COM Port Settings Check
//   4  language code         ;Language
struct ConfigFile {
  std::string port = "1";
  bool bannerDisplay = false;
  bool checkComSettings = false;
  std::string language = "EN";
};

// The settings of a program that was never configured.
ConfigFile defaultConfig();

// Reads what is there: a file of fewer than four lines gives the values so far, the rest stays as ConfigFile
// starts. Of lines 2 and 3 the first letter counts, T or F in either case. A port under 1 or from 256
// becomes 1.
ConfigFile parseConfig(std::string_view text);

std::string formatConfig(const ConfigFile& config);

}  // namespace zephon
