#include "display/link_status.h"

#include "comm/mod_comm.h"
#include "protocol/advice_text.h"
#include "protocol/dict_text.h"
#include "protocol/model_names.h"

namespace zephon {
namespace {

std::string port(const Main& main) {
  return "COM" + main.frame.COMlbl.caption();
}

void show(Main& main, const std::string& state, const std::string& advice) {
  main.frame.linkLbl.setCaption(port(main) + "  " + state);
  main.frame.adviceLbl.setCaption(advice);
}

std::string device(const Main& main) {
  const Link& link = main.link;
  const std::string model = productName(link.modelLine);
  const std::string volts = link.nominalVolts > 120 ? "208/240 V" : "120 V";
  return model + "  " + volts + "  " + dictText(main, words::kFirmware) + ' ' + link.firmwareVersion + "  " +
         dictText(main, words::kChip) + ' ' + link.chipID + "  ID " + link.userID;
}

struct LostLine {
  ExchangeFailure why;
  Word state;
  Word advice;
};

constexpr LostLine kLostLines[] = {
    {ExchangeFailure::TimedOut, words::kNoAnswer, words::kNoAnswerAdvice},
    {ExchangeFailure::ShortReply, words::kAnswerBroke, words::kAnswerBrokeAdvice},
    {ExchangeFailure::Refused, words::kRefused, words::kRefusedAdvice},
    {ExchangeFailure::Closed, words::kPortGone, words::kPortGoneAdvice},
};

}  // namespace

void showLinkState(Main& main) {
  show(main, main.link.connected ? device(main) : dictText(main, words::kNotConnected), {});
}

void showConnecting(Main& main) {
  show(main, dictText(main, words::kConnecting), {});
}

void showLinkFailure(Main& main, const std::string& error, const std::string& advice) {
  show(main, error, advice);
}

LostLink lostLink(const Main& main, ExchangeFailure why) {
  if (why == ExchangeFailure::Closed && main.link.table.lastCommError.code > 0) {
    LostLink lost;
    const std::int32_t code = CommGetError(main.link.table, lost.state);
    lost.advice = adviceText(main, portName(main.link), code);
    return lost;
  }
  for (const LostLine& line : kLostLines) {
    if (line.why == why) return {dictText(main, line.state), dictText(main, line.advice)};
  }
  return {dictText(main, words::kNotConnected), {}};
}

void showLinkLost(Main& main, const LostLink& lost) {
  show(main, lost.state, lost.advice);
}

}  // namespace zephon
