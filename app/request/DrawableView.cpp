#include <app/request/DrawableView.h>

#include <algorithm>
#include <string>

namespace velmora::app {
namespace {

constexpr std::string_view yearFields = "y", monthFields = "yMMMM", dayFields = "yMMMMd",
                           momentFields = "yMMMMdjmm";

/// The options of a view that is made for a screen, besides its own: a poster lies on its own paper, holds
/// its own title and is the same from every device.
std::vector<std::string_view> onScreen(std::vector<std::string_view> own = {}) {
  own.insert(own.end(), {"background", "no-title", "tablet"});
  return own;
}

}  // namespace

const std::vector<DrawableView>& allViews() {
  static const std::vector<DrawableView> views = {
      {.name = "disc",
       .summary = "the phase of the day",
       .options = onScreen({"theme", "tilt", "picture"}),
       .titleFields = dayFields,
       .needsTables = true},
      {.name = "month",
       .summary = "the phases of the month, rings around days with an eclipse",
       .options = onScreen({"theme", "calendar", "week-start", "hide-eclipses"}),
       .titleFields = monthFields,
       .needsTables = true},
      {.name = "year",
       .summary = "the full moons of the year, or its new moons: --phase new",
       .options = onScreen({"phase"}),
       .titleFields = yearFields,
       .needsTables = true},
      {.name = "riseset",
       .summary = "rise and set of Moon and Sun, one row per day",
       .options = onScreen({"theme", "calendar"}),
       .titleFields = monthFields,
       .needsTables = true},
      {.name = "images",
       .summary = "the month in pictures of the Moon, north up everywhere",
       .options = onScreen(),
       .titleFields = monthFields,
       .freeTop = 90,
       .needsTables = true},
      {.name = "compass",
       .summary = "a compass and the Moon's path, the Moon on it at its height",
       .options = onScreen({"theme", "heading"}),
       .titleFields = momentFields},
      {.name = "azel",
       .summary = "the Moon's path and position, the zenith at the top",
       .options = onScreen({"theme"}),
       .titleFields = momentFields},
      {.name = "chart",
       .summary = "a fixed example in English: the Moon's paths on five days",
       .options = onScreen()},
      {.name = "timeline", .summary = "the hours of a day", .options = onScreen(), .titleFields = dayFields},
      {.name = "poster",
       .summary = "a poster: the Moons of the year, a column a month",
       .options = {"theme", "paper", "landscape", "align", "tilt"}},
      {.name = "night",
       .summary = "a poster: Sun and Moon from noon to noon, twilights, moonlight",
       .options = {"theme", "paper"}},
      {.name = "darkness",
       .summary = "a poster: the nights of the year, moonlight, the darkest",
       .options = {"theme", "paper"}},
      {.name = "calendar",
       .summary = "a wall calendar: a month a page, a PDF of the year or of --month",
       .options = {"theme", "paper", "tilt", "month", "calendar", "week-start", "ics"}},
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
