#include "display/chart_series.h"

#include <algorithm>
#include <array>

#include "protocol/dict_text.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::string_view kValuePicture = "###0.0##";
constexpr std::string_view kWholePicture = "##0";

struct ChartAxis {
  const char* name;
  std::size_t key;
  const char* title;  // in the place of a text of the dictionary
  const char* unit;
};
constexpr ChartAxis kAxes[] = {{"vaxis", 139, nullptr, "V"},   {"iaxis", 140, nullptr, "A"},
                               {"paxis", 141, nullptr, "W"},   {"vngaxis", 197, nullptr, "V"},
                               {"faxis", 202, nullptr, "Hz"},  {"pfaxis", 0, "PF, CF", ""},
                               {"euaxis", 131, nullptr, "kWh"}};

struct ChartSeries {
  const char* name;
  std::size_t key, second;  // of the legend; 0 for no second text
  const char* unit;
  std::size_t axis;
  bool sampled;  // a voltage of the second line
};
constexpr std::array<ChartSeries, kChartPlots> kSeries = {{{"voltage", 201, 0, "V", 0, true},
                                                           {"current", 140, 143, "A", 1, false},
                                                           {"power", 141, 143, "W", 2, false},
                                                           {"neutral-ground", 197, 0, "V", 3, true},
                                                           {"frequency", 202, 0, "Hz", 4, false},
                                                           {"power factor", 129, 0, "", 5, false},
                                                           {"crest factor", 130, 0, "", 5, false},
                                                           {"energy", 131, 0, "kWh", 6, false}}};

std::string withUnit(const std::string& text, const char* unit, const char* before, const char* after) {
  return *unit == '\0' ? text : text + before + unit + after;
}

}  // namespace

std::vector<Graph::Axis> chartAxes(const Main& main) {
  std::vector<Graph::Axis> axes;
  for (const ChartAxis& one : kAxes) {
    const std::string title = one.title ? one.title : dictText(main, one.key);
    axes.push_back({one.name, withUnit(title, one.unit, " (", ")"), {}, {}, false});
  }
  return axes;
}

Graph::Plot chartPlot(const Main& main, std::size_t plot, std::shared_ptr<const PlotData> data) {
  const ChartSeries& one = kSeries.at(plot);
  Graph::Plot made;
  made.name = one.name;
  made.legend = dictText(main, one.key) + (one.second == 0 ? "" : ' ' + dictText(main, one.second));
  made.unit = one.unit;
  made.axis = one.axis;
  made.data = std::move(data);
  return made;
}

std::string chartAnnotation(std::size_t plot, double value, bool sampled) {
  const ChartSeries& one = kSeries.at(plot);
  const std::string_view picture = sampled && one.sampled ? kWholePicture : kValuePicture;
  return withUnit(formatPicture(value, picture), one.unit, " ", "");
}

bool isChartGap(const std::array<double, 9>& row) {
  return std::all_of(row.begin() + 1, row.end(), [](double value) { return value == 0; });
}

}  // namespace zephon
