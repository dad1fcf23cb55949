#pragma once

#include "form/main.h"

namespace zephon {

// Brings the device's chart memory, page by page, into chartData; its bytes stay in rawLogBuffer, and
// Logs::shown tells that there is something to plot. A page that does not come is asked for five times.
//
// True when the tables were left in order: rows came, the memory is empty, or the user has ended the
// download. False when an exchange failed while the page was wanted; Exchange::shortfall then tells how much
// came. All other logs go with the old chart, whatever happens.
bool getCMdata(Main& main);

// Empties chartData. A live chart that stood there ends with it.
void forgetChart(Main& main);

}  // namespace zephon
