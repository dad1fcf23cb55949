#pragma once

#include <string>

#include "form/main.h"
#include "platform/memory_line.h"
#include "platform/virtual_loop.h"
#include "shell/dictionary.h"
#include "shell/page_layout.h"
#include "support/fake_dialogs.h"

namespace zephon::testing_support {

// The form with its English texts and nothing behind it: no handler is wired.
struct BareMain {
  explicit BareMain(EventLoop& loop)
      : line(loop),
        clock(loop, 1709649000, -300),
        main({loop, line, clock, dialogs, {ZEPHON_RESOURCES, "/nonexistent", "/nonexistent", {}}}) {
    main.link.firmwareVersion = "1.KD1";
    fault = loadDictionary(main);
  }

  // Lays the page out as its button does.
  void open(bool Pages::*page) {
    main.pages = Pages{};
    main.pages.*page = true;
    pageLayout(main);
  }

  MemoryLine line;
  LoopClock clock;
  FakeDialogs dialogs;
  Main main;
  std::string fault;  // why there are no texts; empty when there are
};

}  // namespace zephon::testing_support
