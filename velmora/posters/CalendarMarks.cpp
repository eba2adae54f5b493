#include <velmora/posters/CalendarMarks.h>

#include <numbers>

#include <velmora/posters/MoonShape.h>
#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// With its tip that far below the middle of its base.
Path triangle(Point middle, double width, double tip) {
  Path path;
  path.moveTo({middle.x - width / 2, middle.y - tip / 2});
  path.lineTo({middle.x + width / 2, middle.y - tip / 2});
  path.lineTo({middle.x, middle.y + tip / 2});
  path.close();
  return path;
}

}  // namespace

void CalendarMarks::add(Kind kind, Rect room, double width) {
  constexpr double litPartOfMark = 0.32, heightOfArrow = 0.9;
  const Point middle = room.center();
  switch (kind) {
    case Kind::sun:
      return _sun.append(Path::ellipse({middle.x - width / 2, middle.y - width / 2, width, width}));
    case Kind::moon:
      return _moon.append(litPart(middle, width / 2, {litPartOfMark, std::numbers::pi / 2}));
    case Kind::rise:
      return _arrows.append(triangle(middle, width, -heightOfArrow * width));
    case Kind::set:
      return _arrows.append(triangle(middle, width, heightOfArrow * width));
  }
}

void CalendarMarks::draw(Sheet& sheet) const {
  sheet.fill(_sun, sheet.palette().sun);
  sheet.fill(_moon, sheet.palette().ink);
  sheet.fill(_arrows, sheet.palette().quiet);
}

}  // namespace velmora
