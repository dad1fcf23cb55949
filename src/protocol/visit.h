#pragma once

#include "form/main.h"

namespace zephon {

// Visits tell a driver whether the page that it works for is still the one that the user wants: clicks are
// served inside exchanges and pauses, so the page may have been left, or left and opened again, meanwhile.

// The user wants this page now; every earlier visit is over.
PageVisit beginVisit(Main& main, Page page);

// The user has switched this page off; does nothing when another page is wanted already.
void endVisit(Main& main, Page page);

// Nothing is wanted any more: the link is lost.
void endAllVisits(Main& main);

bool stands(const Main& main, const PageVisit& visit);

}  // namespace zephon
