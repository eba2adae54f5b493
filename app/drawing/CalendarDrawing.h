#pragma once

#include <memory>
#include <vector>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>

namespace velmora::app {

Size calendarSize(const Query& query);
/// The page of the month, or of the day's. Throws BadInput where it is not covered, and for
/// a file of holidays that cannot be read.
std::shared_ptr<View> makeCalendar(const Query& query, Size size);
/// Those of a document: the page of the month, or those of the day's year.
std::vector<std::shared_ptr<View>> makeCalendarPages(const Query& query, Size size);

}  // namespace velmora::app
