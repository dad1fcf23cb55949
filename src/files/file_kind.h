#pragma once

#include <span>
#include <string>
#include <string_view>

#include "text/calendar.h"

namespace zephon {

// The tables that can be saved.
enum class FileKind { Scope, LiveChart, Events, History, InternalChart };

// What a saved file tells of its making: when, and which device the table came from. Texts are UTF-8.
struct FileStamp {
  CalendarTime now;
  std::string userID;
  std::string firmwareVersion;
  std::string chipID;
  int nominalVolts = 120;
  int modelLine = 0;  // 1 is the second line
};

inline constexpr std::string_view kSoftwareVersion = "4.4";

// The present date and time at the head of a file.
std::string stampDate(const CalendarTime& now);

// The title of a kind's .csv file, UTF-8: "Historical Log".
std::string fileTitle(FileKind kind, std::span<const std::string> dict);

// The name that a save offers, "PCS Historical Log 03-05-2013 14.02.07.csv" for the extension ".csv". What no
// file name can hold becomes "-".
std::string defaultFileName(FileKind kind, std::string_view extension, std::span<const std::string> dict,
                            const CalendarTime& now);

// The same for any text in front: the text, a blank, the date and time, the extension.
std::string stampedFileName(std::string text, std::string_view extension, const CalendarTime& now);

}  // namespace zephon
