#include "shell/config_file.h"

#include <vector>

#include "text/number.h"
#include "text/strings.h"

namespace zephon {
namespace {

std::string firstField(const std::string& line) {
  const std::string field = split(line, '\t').front();
  return std::string(trimmed(field));
}

void readSwitch(const std::string& line, bool& value) {
  if (line.empty()) return;
  if (line[0] == 'T' || line[0] == 't') value = true;
  if (line[0] == 'F' || line[0] == 'f') value = false;
}

std::vector<std::string> linesOf(std::string_view text) {
  auto lines = split(text, '\n');
  if (lines.back().empty()) lines.pop_back();
  for (std::string& line : lines) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
  }
  return lines;
}

std::string word(bool value) {
  return value ? "True" : "False";
}

}  // namespace

ConfigFile defaultConfig() {
  return {"1", true, true, "EN"};
}

ConfigFile parseConfig(std::string_view text) {
  ConfigFile config;
  const auto lines = linesOf(text);
  if (!lines.empty()) config.port = firstField(lines[0]);
  if (lines.size() > 1) readSwitch(lines[1], config.bannerDisplay);
  if (lines.size() > 2) readSwitch(lines[2], config.checkComSettings);
  if (lines.size() > 3) config.language = firstField(lines[3]);
  const double port = numberAtStart(config.port);
  config.port = port >= 1 && port < 256 ? std::to_string(static_cast<int>(port)) : "1";
  return config;
}

std::string formatConfig(const ConfigFile& config) {
  return config.port + "\t;COM Port\n" +                                           //
         word(config.bannerDisplay) + "\t;Banner Display Toggle\n" +               //
         word(config.checkComSettings) + "\t;Perform COM Port Settings Check\n" +  //
         config.language + "\t;Language\n";
}

}  // namespace zephon
