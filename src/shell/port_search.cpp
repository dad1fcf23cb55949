#include "shell/port_search.h"

#include <algorithm>
#include <cctype>
#include <cerrno>

#include "comm/mod_comm.h"
#include "protocol/advice_text.h"
#include "protocol/dict_text.h"
#include "protocol/exchange.h"
#include "protocol/identity.h"
#include "protocol/model_names.h"
#include "protocol/visit.h"
#include "shell/connection.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyDetect = 39;
constexpr std::size_t kKeySearching = 41;
constexpr std::size_t kKeyNotFound = 42;
constexpr std::size_t kKeyFound = 43;

constexpr std::int16_t kPorts = 256;
constexpr double kPauseMs = 10;
constexpr double kSilenceMs = 30;  // longer than a cable holds bytes back

void closeEveryPort(Main& main) {
  for (std::int16_t id = 1; id <= kPorts; ++id) CommClose(portOf(main), id);
}

const PortRecord& port(const Main& main) {
  return main.link.table.ports[static_cast<std::size_t>(main.link.commPort - 1)];
}

bool looksLikeVersion(const std::string& text) {
  return !text.empty() && std::isdigit(static_cast<unsigned char>(text[0])) &&
         std::ranges::all_of(text, [](unsigned char c) { return c > ' ' && c < 0x7F; });
}

bool isSilent(Main& main) {
  std::string unasked;
  wait(main, kSilenceMs);
  return CommRead(portOf(main), main.link.commPort, unasked, 1) == 0;
}

// Any four bytes pass for a version. A conditioner says the same one again, and nothing unasked.
bool conditionerAnswers(Main& main) {
  if (!getFirmwareVersion(main)) return false;
  const std::string version = main.link.firmwareVersion;
  return looksLikeVersion(version) && isSilent(main) && getFirmwareVersion(main) &&
         main.link.firmwareVersion == version;
}

// What there is to say about a number whose port did not lead to a conditioner.
std::string noteOf(const Main& main, bool opened) {
  if (opened) return filledText(dictText(main, words::kNobodyAnswers), {portName(main.link)});
  const CommError& error = main.link.table.lastCommError;
  if (error.code == ENOENT) return {};
  const std::string advice = adviceText(main, portName(main.link), error.code);
  return portName(main.link) + ": " + (advice.empty() ? error.message : advice);
}

// One search: a visit of its own, so that whatever ends it ends the exchange that it waits for too.
class Search {
 public:
  explicit Search(Main& main) : main_(main), visit_(beginVisit(main, Page::Com)) {}

  bool stands() const { return zephon::stands(main_, visit_); }
  const std::string& notes() const { return notes_; }

  // True with the link open to the conditioner. False when there is none, or the search was stopped.
  bool run() {
    Link& link = main_.link;
    const std::string version = link.firmwareVersion;
    for (link.commPort = 1;; ++link.commPort) {
      showProgress();
      if (tryPort() || !stands()) return stands();
      if (link.commPort == kPorts) break;
    }
    link.firmwareVersion = version;
    return false;
  }

 private:
  // Both lines on one number. A port that can't be opened at one speed can't be at the other.
  bool tryPort() {
    Link& link = main_.link;
    bool opened = false;
    for (link.modelLine = 0; link.modelLine < 2; ++link.modelLine) {
      wait(main_, opened ? kPauseMs : 0);
      if (!stands()) return false;
      opened = openPort(main_);
      forgetAbandonedReply(main_);  // nobody has been asked anything here yet
      if (opened && conditionerAnswers(main_)) return true;
      if (!stands()) return false;  // whoever stopped it has closed the port
      if (!port(main_).open) break;
      CommClose(portOf(main_), link.commPort);
    }
    link.modelLine = 0;
    note(noteOf(main_, opened));
    return false;
  }

  void showProgress() {
    main_.com.searchProgSlide.setValue(main_.link.commPort);
    main_.com.portFoundLbl.setCaption(
        filledText(dictText(main_, words::kSearchingPort), {portName(main_.link)}));
  }
  void note(const std::string& text) {
    if (!text.empty()) notes_ += (notes_.empty() ? "" : "\n") + text;
  }

  Main& main_;
  PageVisit visit_;
  std::string notes_;
};

// Who answered, as far as it tells.
std::string foundText(Main& main) {
  const Link& link = main.link;
  std::string text = portName(main.link) + ": " + productName(link.modelLine) + ", " +
                     dictText(main, words::kFirmware) + ' ' + link.firmwareVersion;
  if (getChipID(main)) text += ", " + dictText(main, words::kChip) + ' ' + link.chipID;
  if (getUserID(main)) text += ", ID " + link.userID;
  return text;
}

void begin(Main& main) {
  ComElements& page = main.com;
  main.link.searching = true;
  page.configComBtn.setEnabled(false);
  page.detectComBtn.setTexts(dictText(main, kKeySearching));
  page.searchProgSlide.setVisible(true);
}

// Puts the page back. The button goes off last: by then there is no search that this could stop.
void end(Main& main, std::size_t captionKey, const std::string& outcome) {
  ComElements& page = main.com;
  main.link.searching = false;
  page.searchProgSlide.setVisible(false);
  page.portFoundLbl.setCaption(outcome);
  page.detectComBtn.setTexts(dictText(main, captionKey));
  page.configComBtn.setEnabled(true);
  page.detectComBtn.setValue(false);
}

void found(Main& main, const Search& search) {
  const std::string who = foundText(main);
  if (!search.stands()) return;
  main.com.comNumEdit.setValue(main.link.commPort);
  disconnectSub(main);
  // A configuration can't name the last number.
  const bool keeps = main.link.commPort < kPorts;
  end(main, kKeyFound, who + "." + (keeps ? "\n" + dictText(main, words::kSaveFound) : std::string()));
}

}  // namespace

void searchPorts(Main& main) {
  closeEveryPort(main);
  if (main.link.connected) errorSub(main);
  main.com.configComBtn.setValue(false);
  if (main.ending || !main.pages.comOn) return main.com.detectComBtn.setValue(false);
  begin(main);
  Search search(main);
  const bool answered = search.run();
  if (!search.stands()) return;
  if (answered) return found(main, search);
  end(main, kKeyNotFound, search.notes().empty() ? dictText(main, words::kNoPorts) : search.notes());
}

void stopSearch(Main& main) {
  if (!main.link.searching) return;
  if (main.pages.wanted.page == Page::Com) beginVisit(main, Page::Com);
  CommClose(portOf(main), main.link.commPort);
  end(main, kKeyDetect, {});
}

}  // namespace zephon
