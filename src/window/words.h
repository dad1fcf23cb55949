#pragma once

#include <QString>

// The window's own words: names of groups and marks, for which the language file has no entry. A caption that
// an element brings along always goes before them.
namespace zephon::words {

// Pages and the buttons beside them.
inline const QString kMeasure = QStringLiteral("Measure");
inline const QString kScope = QStringLiteral("Scope");
inline const QString kChart = QStringLiteral("Chart");
inline const QString kOutlets = QStringLiteral("Outlets");
inline const QString kData = QStringLiteral("Data");
inline const QString kSetup = QStringLiteral("Setup");
inline const QString kPort = QStringLiteral("Port");
inline const QString kHelp = QStringLiteral("Help");
inline const QString kSave = QStringLiteral("Save");
inline const QString kExpert = QStringLiteral("Expert");
inline const QString kPages = QStringLiteral("Pages");

// Zones of a meter.
inline const QString kNormal = QStringLiteral("Normal");
inline const QString kMarginal = QStringLiteral("Marginal");
inline const QString kOutOfRange = QStringLiteral("Out of range");
inline const QString kNotLive = QStringLiteral("Not live");
inline const QString kOff = QStringLiteral("Off");
inline const QString kPressToTurnOff = QStringLiteral("Press to turn this meter off");
inline const QString kPressToTurnOn = QStringLiteral("Press to turn this meter on");

// Quantities, until the language file names them.
inline const QString kLineVoltage = QStringLiteral("RMS Line Voltage");
inline const QString kCurrent = QStringLiteral("RMS Current");
inline const QString kPower = QStringLiteral("Power");
inline const QString kNeutralGround = QStringLiteral("RMS Neutral-Ground Voltage");
inline const QString kFrequency = QStringLiteral("Frequency");
inline const QString kPowerFactor = QStringLiteral("Power Factor");
inline const QString kCrestFactor = QStringLiteral("Crest Factor");
inline const QString kEnergy = QStringLiteral("Energy Usage");
inline const QString kLimitMarks = QStringLiteral("Marks: shutdown and record limits of the conditioner");

// Groups and fields.
inline const QString kDisturbances = QStringLiteral("Disturbances");
inline const QString kShares = QStringLiteral("Share of each disturbance, percent");
inline const QString kRate = QStringLiteral("Rate per kWh");
inline const QString kPerKWh = QStringLiteral("per kWh");
inline const QString kLimits = QStringLiteral("Limits");
inline const QString kIdentity = QStringLiteral("Identity");
inline const QString kClock = QStringLiteral("Clock");
inline const QString kOptions = QStringLiteral("Options");
inline const QString kWiring = QStringLiteral("Supply wiring");
inline const QString kLanguage = QStringLiteral("Language");
inline const QString kComPort = QStringLiteral("COM port");
inline const QString kPortInUse = QStringLiteral("In use: COM");
inline const QString kCom = QStringLiteral("COM");
inline const QString kLogs = QStringLiteral("Logs");
inline const QString kHistory = QStringLiteral("History");
inline const QString kProgress = QStringLiteral("Progress");
inline const QString kPlots = QStringLiteral("Plots");
inline const QString kInterval = QStringLiteral("Interval");
inline const QString kChannels = QStringLiteral("Channels");
inline const QString kTime = QStringLiteral("Time");
inline const QString kTrigger = QStringLiteral("Trigger");
inline const QString kSwitch = QStringLiteral("On and off");
inline const QString kCycle = QStringLiteral("Cycle");
inline const QString kFault = QStringLiteral("Fault");
inline const QString kNoFault = QStringLiteral("No fault");
inline const QString kLinkState = QStringLiteral("Link");
inline const QString kAdvice = QStringLiteral("What to do");

// Buttons, until the language file names them.
inline const QString kKWh = QStringLiteral("kWh");
inline const QString kReset = QStringLiteral("Reset");
inline const QString kClear = QStringLiteral("Clear");
inline const QString kCancel = QStringLiteral("Cancel");
inline const QString kDefaults = QStringLiteral("Defaults");
inline const QString kUpdateLimits = QStringLiteral("Update Limits");
inline const QString kUpdateId = QStringLiteral("Update ID");
inline const QString kSetTime = QStringLiteral("Set Time");
inline const QString kSetTimeAuto = QStringLiteral("Set to PC Time");
inline const QString kAutoTransmit = QStringLiteral("Auto Transmit");
inline const QString kInternalChart = QStringLiteral("Internal Chart");
inline const QString kGroundDetection = QStringLiteral("Ground Detection");
inline const QString kOverloadShutdown = QStringLiteral("Overload Shutdown");
inline const QString kPowerFailHold = QStringLiteral("Power Fail Hold");
inline const QString kDetectPort = QStringLiteral("Detect Port");
inline const QString kConfigurePort = QStringLiteral("Configure Port");
inline const QString kEventLog = QStringLiteral("Time Stamped Log");
inline const QString kAveragePower = QStringLiteral("Average Power");
inline const QString kAverageVoltage = QStringLiteral("Average Voltage");
inline const QString kMaxMin = QStringLiteral("Max/Min");
inline const QString kMaxVolts = QStringLiteral("V Max");
inline const QString kMinVolts = QStringLiteral("V Min");
inline const QString kMaxAmps = QStringLiteral("A Max");
inline const QString kMaxWatts = QStringLiteral("W Max");
inline const QString kChannel1 = QStringLiteral("1: Voltage");
inline const QString kChannel2 = QStringLiteral("2: Current");
inline const QString kChannel3 = QStringLiteral("3: Power");
inline const QString kMorePerDivision = QStringLiteral("More/Div");
inline const QString kLessPerDivision = QStringLiteral("Less/Div");
inline const QString kZoomIn = QStringLiteral("Zoom in");
inline const QString kZoomOut = QStringLiteral("Zoom out");
inline const QString kOneShot = QStringLiteral("One Shot");
inline const QString kVoltage = QStringLiteral("Voltage");
inline const QString kLoadCurrent = QStringLiteral("Current");
inline const QString kHold = QStringLiteral("Hold");

// The page that stands when no other does.
inline const QString kStart = QStringLiteral("Start");
inline const QString kStartTitle = QStringLiteral("Connect to a power conditioner");
inline const QString kStartPort =
    QStringLiteral("Plug in the cable. Press Port to choose the COM port that it got.");
inline const QString kStartPage =
    QStringLiteral("Press Measure, or another page. The connection is made and the model found by itself.");
inline const QString kStartData =
    QStringLiteral("Press Data to open a saved log. That needs no power conditioner.");

}  // namespace zephon::words
