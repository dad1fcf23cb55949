#include "shell/com_page.h"

#include "comm/cable.h"
#include "protocol/asking.h"
#include "protocol/dict_text.h"
#include "shell/configuration.h"
#include "shell/port_search.h"
#include "text/number.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyDone = 31;
constexpr std::size_t kKeyDetect = 39;
constexpr std::size_t kKeyConfigure = 40;
constexpr std::size_t kKeyNoRights = 44;

void showCables(Main& main) {
  main.com.cableLbl.setCaption(cablesText(usbCables(main.around.folders.usbSerial), main.dict));
}

void configure(Main& main) {
  ComElements& page = main.com;
  page.detectComBtn.setEnabled(false);
  page.configComBtn.setEnabled(false);
  const std::string refused = configureCables(main.around.folders.usbSerial, main.dict);
  page.detectComBtn.setEnabled(true);
  page.configComBtn.setEnabled(true);
  showCables(main);
  page.configComBtn.setTexts(dictText(main, refused.empty() ? kKeyDone : kKeyConfigure));
  if (!refused.empty()) tell(main, dictText(main, kKeyNoRights), refused);
}

}  // namespace

void wireComPage(Main& main) {
  main.com.saveComBtn.onChange = [&main](bool pressed) {
    if (pressed) saveComNumber(main);
  };
  main.com.detectComBtn.onChange = [&main](bool on) { on ? searchPorts(main) : stopSearch(main); };
  main.com.configComBtn.onChange = [&main](bool pressed) {
    if (pressed) configure(main);
  };
}

void showComPage(Main& main) {
  ComElements& page = main.com;
  page.comNumEdit.setValue(numberAtStart(main.frame.COMlbl.caption()));
  page.detectComBtn.setTexts(dictText(main, kKeyDetect));
  page.configComBtn.setTexts(dictText(main, kKeyConfigure));
  page.portFoundLbl.setCaption("");
  showCables(main);
}

void leaveComPage(Main& main) {
  stopSearch(main);
}

}  // namespace zephon
