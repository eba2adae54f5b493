#include <velmora/posters/CalendarPart.h>

namespace [[gnu::visibility("hidden")]] velmora {

CalendarPart::CalendarPart(Sheet& sheet, const CalendarLayout& layout, const CalendarMonth& month,
                           const PosterPlace& place, const MoonPicture& picture)
    : _sheet(sheet),
      _layout(layout),
      _month(month),
      _place(place),
      _picture(picture),
      _local(place.zone),
      _plain(TimeZone::fixed(0)),
      _palette(sheet.palette()),
      _unit(sheet.unit()) {}

void CalendarPart::drawDisc(Point center, double radius, Instant at, const almanac::Illumination& moon,
                            bool isTilted) const {
  const bool isSouthern = _place.place.latitude < 0;
  const MoonLight light = isTilted ? tilted(moon) : upright(moon, isSouthern);
  if (_picture.isBlank()) return drawMoon(_sheet, center, radius, light);
  const double north = isTilted ? northInSky(_place.place, at) : northUpright(isSouthern);
  _picture.draw(_sheet.canvas(), _sheet.onPaper(center), radius, light, north, _palette.moonDark);
}

}  // namespace velmora
