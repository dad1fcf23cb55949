#pragma once

#include <string>
#include <vector>

#include "form/capture.h"
#include "form/config.h"
#include "form/counters.h"
#include "form/elements.h"
#include "form/energy.h"
#include "form/exchange.h"
#include "form/findings.h"
#include "form/limits.h"
#include "form/link.h"
#include "form/logs.h"
#include "form/pages.h"
#include "form/readings.h"
#include "form/recording.h"
#include "form/surroundings.h"

namespace zephon {

// The timers of the form beside the exchange's watchdog.
struct FormTimers {
  explicit FormTimers(EventLoop& loop)
      : measurementTimer(loop),
        scopeTimer(loop),
        chartTimer(loop),
        outletTimer(loop),
        Timer2(loop),
        Timer3(loop) {}
  Timer measurementTimer;  // the poll
  Timer scopeTimer;        // the scope's next capture
  Timer chartTimer;        // the live chart
  Timer outletTimer;       // outlet states
  Timer Timer2;            // puts back button captions
  Timer Timer3;            // advances the clock field
};

// The one form, which owns all state. Plain data: what happens to it is in the rooms above.
struct Main {
  explicit Main(Surroundings surroundings)
      : around(std::move(surroundings)),
        exchange(around.loop),
        timers(around.loop),
        frame(elements),
        measurement(elements),
        setup(elements),
        outlets(elements),
        com(elements),
        data(elements),
        chart(elements),
        scope(elements) {}

  Surroundings around;
  bool closing = false;  // the user has closed the program: `ending` follows once no write is under way
  bool ending = false;   // every wait and exchange ends at once, and the stack unwinds

  Link link;
  Exchange exchange;
  Readings readings;
  Counters counters;
  PdEvents pdEvents;
  Limits limits;
  PicImage picImage;
  Energy energy;
  Logs logs;
  Recording recording;
  Config config;
  Findings findings;
  std::vector<std::string> dict;  // texts of the language by key
  Pages pages;
  FormSize formSize;
  Capture capture;
  FormTimers timers;

  ElementList elements;
  FrameElements frame;
  MeasurementElements measurement;
  SetupElements setup;
  OutletElements outlets;
  ComElements com;
  DataElements data;
  ChartElements chart;
  ScopeElements scope;
};

}  // namespace zephon
