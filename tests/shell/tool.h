#pragma once

#include "shell/config_file.h"
#include "shell/start.h"
#include "support/bench.h"
#include "support/temp_folder.h"

namespace zephon::testing_support {

// The whole tool without a window, started in a language, with a simulated device on COM1.
class Tool : public Bench {
 public:
  explicit Tool(const simulator::Profile& profile = {}, simulator::Options options = World::quiet(),
                const std::string& language = "EN")
      : device(loop, profile, options) {
    main.around.folders.config = settings / "";
    main.around.folders.state = settings / "state";
    main.around.folders.program = ZEPHON_RESOURCES;
    settings.put("config.txt", formatConfig({"1", true, true, language}));
    line.attach(&device, 1);
    started = formLoad(main, "");
  }
  ~Tool() override { line.detach(1); }

  void press(Button& button) { button.click(); }
  const PortRecord& port() const { return main.link.table.ports[0]; }
  bool idle() const {
    const FormTimers& t = main.timers;
    return !port().open && !main.link.connected && !main.exchange.Timer1.enabled() &&
           !t.measurementTimer.enabled() && !t.outletTimer.enabled() && !t.chartTimer.enabled() &&
           !t.scopeTimer.enabled();
  }

  TempFolder settings;
  simulator::Conditioner device;
  Started started;
};

}  // namespace zephon::testing_support
