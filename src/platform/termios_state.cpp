#include "platform/termios_state.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace zephon {
namespace {

struct Speed {
  int baud;
  speed_t code;
};

constexpr Speed kSpeeds[] = {{300, B300},       {600, B600},        {1200, B1200},     {2400, B2400},
                             {4800, B4800},     {9600, B9600},      {19200, B19200},   {38400, B38400},
                             {57600, B57600},   {115200, B115200},  {230400, B230400}, {460800, B460800},
                             {921600, B921600}, {1000000, B1000000}};

constexpr std::array<tcflag_t, 4> kSizes{CS5, CS6, CS7, CS8};  // of 5 to 8 data bits

tcflag_t parityFlags(char parity) {
  if (parity == 'N') return 0;
  return parity == 'O' ? PARENB | PARODD : PARENB;
}

char parityLetter(tcflag_t flags) {
  if (!(flags & PARENB)) return 'N';
  return flags & PARODD ? 'O' : 'E';
}

}  // namespace

LineState lineStateOf(const termios& terminal) {
  const auto speed = std::ranges::find(kSpeeds, ::cfgetospeed(&terminal), &Speed::code);
  const auto size = std::ranges::find(kSizes, terminal.c_cflag & CSIZE);
  return {speed == std::end(kSpeeds) ? 0 : speed->baud, parityLetter(terminal.c_cflag),
          5 + static_cast<int>(size - kSizes.begin()), terminal.c_cflag & CSTOPB ? 2 : 1};
}

bool makeBareLine(termios& terminal, const LineState& state) {
  const auto speed = std::ranges::find(kSpeeds, state.baud, &Speed::baud);
  if (speed == std::end(kSpeeds)) return false;
  if (state.dataBits < 5 || state.dataBits > 8) return false;
  terminal.c_iflag = 0;
  terminal.c_oflag = 0;
  terminal.c_lflag = 0;
  terminal.c_cflag = CREAD | CLOCAL | HUPCL | kSizes[static_cast<std::size_t>(state.dataBits - 5)] |
                     parityFlags(state.parity) | (state.stopBits == 2 ? CSTOPB : 0u);
  terminal.c_cc[VMIN] = 1;  // so that a read without bytes differs from one of a line that hung up
  terminal.c_cc[VTIME] = 0;
  return ::cfsetispeed(&terminal, speed->code) == 0 && ::cfsetospeed(&terminal, speed->code) == 0;
}

}  // namespace zephon
