#include <app/commands/Draw.h>

#include <app/drawing/Drawing.h>
#include <app/drawing/DrawingOptions.h>
#include <app/text/TextTable.h>

namespace velmora::app {
namespace {

Json json(const Query& query) {
  const Picture picture = drawing().picture(query);
  return {{"view", std::string(picture.view.name)},
          {"output", picture.file},
          {"width", picture.width},
          {"height", picture.height}};
}

std::string text(const Query& query) {
  const Picture picture = drawing().picture(query);
  return "Wrote " + picture.file + ", " + std::to_string(picture.width) + " x " +
         std::to_string(picture.height) + " " + picture.unit + "\n";
}

std::string notes() {
  TextTable views({"Views", ""});
  for (const DrawableView& view : allViews())
    views.add({"  " + std::string(view.name), std::string(view.summary)});
  return views.text(false);
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
