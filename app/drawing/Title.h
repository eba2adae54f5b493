#pragma once

#include <string>

#include <app/drawing/Colours.h>
#include <app/place/Place.h>
#include <velmora/platform/graphics/Canvas.h>

namespace velmora::app {

/// The two lines that stand above a view: the date, the place.
class Title {
 public:
  static constexpr double height = 56;  ///< of the band that it needs, in points

  /// The date has the template's fields in the order of the locale; the note stands behind the place.
  Title(Instant date, std::string_view fields, const Place& place, const std::string& note);

  /// Draws it in the middle of the band, a line that is too wide in smaller letters, or cut.
  void draw(Canvas& canvas, Rect band, const TitleColours& colours) const;

 private:
  std::string _date;
  std::string _place;
};

}  // namespace velmora::app
