#include <app/drawing/ViewMaking.h>

#include <map>

#include <app/drawing/CalendarDrawing.h>
#include <app/drawing/CalendarViews.h>
#include <app/drawing/DarknessDrawing.h>
#include <app/drawing/Hosting.h>
#include <app/drawing/NightDrawing.h>
#include <app/drawing/SkyViews.h>
#include <app/drawing/UsualSizes.h>
#include <app/drawing/YearPosterDrawing.h>
#include <velmora/views/MoonCalendarView.h>
#include <velmora/views/MoonPositionView.h>
#include <velmora/views/TimelineDayView.h>

namespace velmora::app {
namespace {

// Wide enough for Korean hours.
constexpr double phoneTimelineWidth = 540;
constexpr double timelineHeight = 76, timelineMargin = 6;
constexpr double viewMargin = 10;

/// A view that needs nothing but its frame.
template <class ViewClass>
std::shared_ptr<View> makeView(const Query&, Size size) {
  auto view = std::make_shared<ViewClass>();
  view->setFrame({0, 0, size.width, size.height});
  return view;
}

template <int width, int height>
Size fixedSize(const Query&) {
  return {width, height};
}

Size timelineSize(const Query& query) {
  return {query.request.drawing.isTablet ? tabletWidth : phoneTimelineWidth, timelineHeight};
}

std::shared_ptr<View> makeTimeline(const Query&, Size size) {
  auto timeline = std::make_shared<TimelineDayView>();
  timeline->setFrame(Rect{0, 0, size.width, size.height}.inset(viewMargin, timelineMargin));
  auto host = makeHost(size);
  host->addSubview(timeline);
  return host;
}

}  // namespace

const ViewMaking& makingOf(const DrawableView& view) {
  static const std::map<std::string_view, ViewMaking> makings = {
      {"disc", {.usualSize = fixedSize<240, 240>, .make = makeDisc, .checkResources = checkPictureOfDisc}},
      {"month", {monthSize, makeMonth}},
      {"year", {yearSize, makeYear}},
      {"riseset", {.usualSize = riseSetSize, .make = makeRiseSet, .checkResources = checkIcons}},
      {"images",
       {.usualSize = fixedSize<390, 560>,
        .make = makeView<MoonCalendarView>,
        .checkResources = checkMoonPictures}},
      {"compass", {.usualSize = fixedSize<390, 390>, .make = makeCompass, .note = moonText}},
      {"azel", {.usualSize = fixedSize<390, 390>, .make = makeElevationArc, .note = moonText}},
      {"chart", {fixedSize<390, 390>, makeView<MoonPositionView>}},
      {"timeline", {timelineSize, makeTimeline}},
      {"poster", {yearPosterSize, makeYearPoster}},
      {"night", {nightSize, makeNight}},
      {"darkness", {darknessSize, makeDarkness}},
      {"calendar",
       {.usualSize = calendarSize,
        .make = makeCalendar,
        .makePages = makeCalendarPages,
        .checkResources = checkFullMoonPicture}},
  };
  return makings.at(view.name);
}

}  // namespace velmora::app
