#include <app/drawing/DrawableView.h>

#include <algorithm>
#include <string>

#include <app/drawing/CalendarViews.h>
#include <app/drawing/Hosting.h>
#include <app/drawing/SkyViews.h>
#include <velmora/views/MoonCalendarView.h>
#include <velmora/views/MoonPositionView.h>
#include <velmora/views/TimelineDayView.h>

namespace velmora::app {
namespace {

constexpr std::string_view yearFields = "y", monthFields = "yMMMM", dayFields = "yMMMMd",
                           momentFields = "yMMMMdjmm";

// Wide enough for Korean hours.
constexpr double phoneTimelineWidth = 540;
constexpr double timelineHeight = 76, timelineMargin = 6;
constexpr double margin = 10;

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
  timeline->setFrame(Rect{0, 0, size.width, size.height}.inset(margin, timelineMargin));
  auto host = makeHost(size);
  host->addSubview(timeline);
  return host;
}

}  // namespace

const std::vector<DrawableView>& allViews() {
  static const std::vector<DrawableView> views = {
      {.name = "disc",
       .summary = "the phase of the day",
       .options = {"theme"},
       .titleFields = dayFields,
       .needsTables = true,
       .usualSize = fixedSize<240, 240>,
       .make = makeDisc},
      {.name = "month",
       .summary = "the phases of the month, its eclipses in rings",
       .options = {"theme", "calendar", "week-start", "hide-eclipses"},
       .titleFields = monthFields,
       .needsTables = true,
       .usualSize = monthSize,
       .make = makeMonth},
      {.name = "year",
       .summary = "the full moons of the year, or its new moons",
       .options = {"phase"},
       .titleFields = yearFields,
       .needsTables = true,
       .usualSize = yearSize,
       .make = makeYear},
      {.name = "riseset",
       .summary = "rise and set of Moon and Sun, a row a day",
       .options = {"theme", "calendar"},
       .titleFields = monthFields,
       .needsTables = true,
       .usualSize = riseSetSize,
       .make = makeRiseSet},
      {.name = "images",
       .summary = "the month in pictures of the Moon",
       .titleFields = monthFields,
       .freeTop = 90,
       .needsTables = true,
       .usualSize = fixedSize<390, 560>,
       .make = makeView<MoonCalendarView>},
      {.name = "compass",
       .summary = "the Moon's way and place over a compass",
       .options = {"theme", "heading"},
       .titleFields = momentFields,
       .usualSize = fixedSize<390, 390>,
       .make = makeCompass},
      {.name = "azel",
       .summary = "the Moon's way and place, the zenith up",
       .options = {"theme"},
       .titleFields = momentFields,
       .usualSize = fixedSize<390, 390>,
       .make = makeElevationArc},
      {.name = "chart",
       .summary = "a fixed sample: the Moon's ways on five days",
       .usualSize = fixedSize<390, 390>,
       .make = makeView<MoonPositionView>},
      {.name = "timeline",
       .summary = "the hours of a day",
       .titleFields = dayFields,
       .usualSize = timelineSize,
       .make = makeTimeline},
  };
  return views;
}

const DrawableView* findView(std::string_view name) {
  const auto& views = allViews();
  const auto found =
      std::find_if(views.begin(), views.end(), [&](const DrawableView& view) { return view.name == name; });
  return found == views.end() ? nullptr : &*found;
}

std::string_view viewNames() {
  static const std::string names = [] {
    std::string list;
    for (const DrawableView& view : allViews()) list += (list.empty() ? "" : ", ") + std::string(view.name);
    return list;
  }();
  return names;
}

}  // namespace velmora::app
