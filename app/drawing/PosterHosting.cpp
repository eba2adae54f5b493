#include <app/drawing/PosterHosting.h>

#include <app/text/Errors.h>

namespace velmora::app {

PosterPlace posterPlaceOf(const Query& query) {
  const Place& place = query.place;
  return {place.observer(), place.zone, place.location.name.value_or(place.location.locationText)};
}

PaperTheme paperThemeOf(const Query& query) {
  switch (query.request.drawing.theme.value_or(ThemeChoice::dark)) {
    case ThemeChoice::dark:
      return PaperTheme::dark;
    case ThemeChoice::light:
      return PaperTheme::light;
    default:
      throw BadInput("theme calendar or default is not for posters; accepted: dark or light");
  }
}

std::shared_ptr<View> filling(std::shared_ptr<Poster> poster, Size size) {
  if (!poster->isCovered()) throw BadInput("part of the poster lies outside the years 1900 to 2100");
  poster->setFrame({0, 0, size.width, size.height});
  return poster;
}

}  // namespace velmora::app
