#include "display/link_status.h"

#include "comm/mod_comm.h"

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
  const std::string model = link.modelLine == 0 ? "Orvantis PCS" : "Tessara PCS";
  const std::string volts = link.nominalVolts > 120 ? "208/240 V" : "120 V";
  return model + "  " + volts + "  firmware " + link.firmwareVersion + "  chip " + link.chipID + "  ID " +
         link.userID;
}

struct LostLine {
  ExchangeFailure why;
  const char* state;
  const char* advice;
};

constexpr LostLine kLostLines[] = {
    {ExchangeFailure::TimedOut, "no answer from the conditioner",
     "Check that the conditioner has power and that the cable is plugged in at both ends."},
    {ExchangeFailure::ShortReply, "the answer broke off",
     "Check the cable for a loose plug, and keep it away from power wiring."},
    {ExchangeFailure::Refused, "the conditioner refused the request",
     "Open the page again and repeat the step."},
    {ExchangeFailure::Closed, "the port is gone",
     "Check that the USB cable is still plugged in at the computer."},
};

}  // namespace

void showLinkState(Main& main) {
  show(main, main.link.connected ? device(main) : "not connected", {});
}

void showConnecting(Main& main) {
  show(main, "connecting", {});
}

void showLinkFailure(Main& main, const std::string& error, const std::string& advice) {
  show(main, error, advice);
}

LostLink lostLink(const Main& main, ExchangeFailure why) {
  if (why == ExchangeFailure::Closed && main.link.table.lastCommError.code > 0) {
    LostLink lost;
    const std::int32_t code = CommGetError(main.link.table, lost.state);
    lost.advice = main.around.serial.advice("COM" + std::to_string(main.link.commPort), code);
    return lost;
  }
  for (const LostLine& line : kLostLines) {
    if (line.why == why) return {line.state, line.advice};
  }
  return {"not connected", {}};
}

void showLinkLost(Main& main, const LostLink& lost) {
  show(main, lost.state, lost.advice);
}

}  // namespace zephon
