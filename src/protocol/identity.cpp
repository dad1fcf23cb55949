#include "protocol/identity.h"

#include "protocol/dict_text.h"
#include "protocol/encodings.h"
#include "protocol/exchange.h"
#include "protocol/model_names.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr std::size_t kNameLength = 10;
constexpr std::size_t kKeyUpdating = 100;

void showUserID(Main& main) {
  main.frame.formCaption.setCaption(formCaption(main.link.userID));
  main.setup.userIDtxt.setText(main.link.userID);
}

// The command, then the name one character at a time, at the pace at which the device stores it.
void sendName(Main& main, const std::string& bytes) {
  const WriteInFlight held(main);
  flushPort(main);
  sendText(main, orvantis::kSetUserID.text);
  wait(main, 50);
  for (const char byte : bytes) {
    wait(main, 20);
    sendText(main, std::string_view(&byte, 1));
  }
}

}  // namespace

std::string firmwareText(std::string_view reply, std::int16_t modelLine) {
  std::string text(reply);
  if (modelLine == 0 && !text.empty()) text.insert(1, ".");
  return text;
}

std::string chipText(std::string_view reply) {
  std::string text;
  for (std::size_t i = 0; i < reply.size(); i += 2) {
    if (i > 0) text += '.';
    text += ascii2hex(reply.substr(i, 1));
  }
  return text;
}

std::string nameBytes(std::string_view name) {
  std::string bytes = toWindows1252(name);
  if (bytes.size() < kNameLength) bytes.insert(0, kNameLength - bytes.size(), ' ');
  return bytes.substr(0, kNameLength);
}

bool getFirmwareVersion(Main& main) {
  const bool first = main.link.modelLine == 0;
  const auto reply = countedQuery(main, first ? orvantis::kFirmwareVersion : tessara::kFirmwareVersion);
  if (reply) main.link.firmwareVersion = firmwareText(*reply, main.link.modelLine);
  return reply.has_value();
}

bool getChipID(Main& main) {
  const bool first = main.link.modelLine == 0;
  const auto reply = countedQuery(main, first ? orvantis::kChipID : tessara::kChipID);
  if (reply) main.link.chipID = chipText(*reply);
  return reply.has_value();
}

bool getUserID(Main& main) {
  if (main.link.modelLine == 0) {
    const auto reply = countedQuery(main, orvantis::kUserID);
    if (!reply) return false;
    main.link.userID = fromWindows1252(*reply);
  } else if (main.link.userID.empty()) {
    main.link.userID = kSecondLineID;
  }
  showUserID(main);
  return true;
}

bool setUserID(Main& main) {
  const std::string name = main.setup.userIDtxt.text();
  if (main.link.modelLine != 0) {
    main.link.userID = name;
    return true;
  }
  main.setup.updateIDBtn.setTexts(dictText(main, kKeyUpdating));
  sendName(main, nameBytes(name));
  return getOK(main);
}

}  // namespace zephon
