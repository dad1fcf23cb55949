#pragma once

#include "display/page_exits.h"
#include "form/main.h"

namespace zephon {

// The scope's page: captures follow each other for as long as it is on and not held, each drawn as it comes.
// More than five that fail in a row are a lost link; one that a change of the form's size broke doesn't
// count.

// Wires scopeTimer and the page's buttons.
void wireScopePage(Main& main, const PageExits& exits);

// Shows the page's elements and takes the graph and rawLogBuffer for it.
void layScopePage(Main& main);

// Starts capturing. Always true.
bool startScopePage(Main& main);

// Stops capturing, hides everything of the page and gives the graph and rawLogBuffer back. Does nothing on
// another page.
void clearScopePage(Main& main);

// Whether a sample of the armed channel, from the first up to half the last one's number (ties to even), lies
// beyond the one-shot level: above a positive one, below a negative one. A level of 0 fires on nothing.
bool triggers(const Capture& capture);

}  // namespace zephon
