#include <app/commands/Draw.h>

#include <algorithm>

#include <app/drawing/Drawing.h>
#include <app/drawing/DrawingOptions.h>
#include <app/text/TextTable.h>

namespace velmora::app {
namespace {

/// A whole number where it is one.
Json number(double side) {
  const auto whole = static_cast<std::int64_t>(side);
  return static_cast<double>(whole) == side ? Json(whole) : Json(side);
}

Json json(const Query& query) {
  const Picture picture = drawing().picture(query);
  return {{"view", std::string(picture.view.name)},
          {"output", picture.file},
          {"width", number(picture.size.width)},
          {"height", number(picture.size.height)}};
}

std::string text(const Query& query) {
  const Picture picture = drawing().picture(query);
  return "Wrote " + picture.file + ", " + number(picture.size.width).dump() + " x " +
         number(picture.size.height).dump() + " " + picture.unit + "\n";
}

std::string viewsThatTake(std::string_view option) {
  std::string names;
  for (const DrawableView& view : allViews()) {
    if (std::find(view.options.begin(), view.options.end(), option) != view.options.end())
      names += (names.empty() ? "" : ", ") + std::string(view.name);
  }
  return names;
}

std::string notes() {
  TextTable views({"Views", ""});
  for (const DrawableView& view : allViews())
    views.add({"  " + std::string(view.name), std::string(view.summary)});
  TextTable options({"Options of some views", ""});
  for (const std::string_view option : viewOptions())
    options.add({"  --" + std::string(option), viewsThatTake(option)});
  return views.text(false) + "\n" + options.text(false) +
         "\nCalendars: " + std::string(findOption("calendar")->accepts) + "\n";
}

}  // namespace

const Command& drawCommand() {
  static const Command command{"draw",
                               "a picture: a day's phase, a month, the sky",
                               optionList({{"view"},
                                           pictureOptions(),
                                           viewOptions(),
                                           placeOptions(),
                                           {"date", "time", "json"},
                                           generalOptions()}),
                               "view",
                               json,
                               text,
                               notes};
  return command;
}

}  // namespace velmora::app
