#include "protocol/visit.h"

namespace zephon {

PageVisit beginVisit(Main& main, Page page) {
  main.pages.wanted = {page, ++main.pages.visits};
  return main.pages.wanted;
}

void endVisit(Main& main, Page page) {
  if (main.pages.wanted.page == page) endAllVisits(main);
}

void endAllVisits(Main& main) {
  beginVisit(main, Page::None);
}

bool stands(const Main& main, const PageVisit& visit) {
  return !main.ending && main.pages.wanted == visit;
}

}  // namespace zephon
