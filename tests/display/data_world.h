#pragma once

#include "display/data_page.h"
#include "display/log_views.h"
#include "display/saving.h"
#include "logs/download_world.h"
#include "support/temp_folder.h"

namespace zephon::testing_support {

// The data page at work, with a device that has something in all its logs.
class DataWorld : public DownloadWorld {
 public:
  explicit DataWorld(const simulator::Profile& profile = {}) : DownloadWorld(profile) {
    wireDataPage(main, {[this] {
                   ++lost;
                   stay(Page::None);
                 }});
    wireLogViews(main);
    wireSaving(main);
    layDataPage(main, true);
    main.link.userID = "ZEPHON SIM";
    main.link.chipID = "4C.5A.17";
  }

  // The user unplugs the device and opens the page again: the dead line has been tried as the other one's.
  void unplug() {
    main.link.connected = false;
    main.link.modelLine = static_cast<std::int16_t>(1 - main.link.modelLine);
    stay(Page::Data);
    clearDataPage(main);
    layDataPage(main, true);
  }
  bool logButtonsEnabled(bool on) const {
    return d.tsDataBtn.enabled() == on && d.histDataBtn.enabled() == on && d.cmDataBtn.enabled() == on &&
           d.clrTsDataBtn.enabled() == on && d.clrHistDataBtn.enabled() == on;
  }

  DataElements& d = main.data;
  FrameElements& f = main.frame;
  Graph& graph = main.frame.CWGraph2;
  TempFolder folder;
  int lost = 0;
};

}  // namespace zephon::testing_support
