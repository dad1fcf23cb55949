// The simulated conditioner as a program: it serves a pseudo-terminal that other programs open as a serial
// port.

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string_view>
#include <vector>

#include "platform/poll_loop.h"
#include "simulator/conditioner.h"
#include "simulator/program/arguments.h"
#include "simulator/program/port_link.h"
#include "simulator/program/pty.h"

namespace {

using namespace zephon;
using namespace zephon::simulator;

constexpr int kUsageError = 2;

// The longest that a signal may stay unnoticed when it comes just before the loop goes to sleep.
constexpr Instant kLongestSleep = std::chrono::milliseconds(500);

volatile std::sig_atomic_t stopped = 0;

void stopOnSignals() {
  struct sigaction action {};
  action.sa_handler = [](int) { stopped = 1; };
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signal, &action, nullptr);
}

int complain(const std::string& text, int status) {
  std::fprintf(stderr, "zephon-simulator: %s\n", text.c_str());
  return status;
}

void announce(const Profile& profile, const PortLink& link, const Pty& pty) {
  std::printf("%s, %d V, firmware %s, at %s (%s)\n", profile.line == Line::Orvantis ? "Orvantis" : "Tessara",
              profile.rating, profile.version().c_str(), link.path().c_str(), pty.path().c_str());
  std::fflush(stdout);
}

void serve(PollLoop& loop, Conditioner& device, Pty& pty) {
  device.say = [&pty](std::string_view bytes, int baud) { pty.write(bytes, baud); };
  while (stopped == 0) {
    if (loop.sleepUntil(loop.now() + kLongestSleep, pty.descriptor()) == Woke::Readable) {
      const std::string bytes = pty.read();
      if (!bytes.empty()) device.hear(bytes, pty.baud());
    }
    device.device();  // time passes for it too while nobody asks
  }
}

int run(const Arguments& arguments) {
  stopOnSignals();
  PollLoop loop;
  const auto pty = Pty::open(loop);
  if (!pty) return complain(std::string("no pseudo-terminal: ") + std::strerror(errno), EXIT_FAILURE);
  Conditioner device(loop, arguments.profile, arguments.options);
  for (const Fault& fault : arguments.faults) device.addFault(fault);
  device.device().forceFault(arguments.outletFault);
  device.hold(arguments.held);
  PortLink link;
  const std::string error = link.put(arguments.portsFolder, arguments.port, pty->path());
  if (!error.empty()) return complain(error, EXIT_FAILURE);
  if (!arguments.quiet) announce(arguments.profile, link, *pty);
  serve(loop, device, *pty);
  return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string_view> words(argv + 1, argv + argc);
  const char* folder = std::getenv("ZEPHON_PORTS");
  const Arguments arguments = parseArguments(words, folder == nullptr ? "" : folder, std::time(nullptr));
  if (!arguments.error.empty()) return complain(arguments.error, kUsageError);
  if (arguments.help || arguments.listCommands) {
    const std::string text = arguments.help ? helpText() : commandListing(arguments.profile.line);
    std::fputs(text.c_str(), stdout);
    return EXIT_SUCCESS;
  }
  return run(arguments);
}
