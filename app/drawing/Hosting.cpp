#include <app/drawing/Hosting.h>

#include <algorithm>

#include <app/text/Errors.h>

namespace velmora::app {

std::shared_ptr<VelmoraTheme> themeOf(const Query& query) {
  const ThemeChoice theme = query.request.drawing.theme.value_or(ThemeChoice::calendarTheme);
  if (theme == ThemeChoice::dark || theme == ThemeChoice::light)
    throw BadInput("theme dark or light is for posters; accepted: calendar or default");
  return theme == ThemeChoice::calendarTheme ? VelmoraTheme::calendarTheme() : VelmoraTheme::defaultTheme();
}

std::shared_ptr<View> makeHost(Size size) {
  auto host = std::make_shared<View>();
  host->setFrame({0, 0, size.width, size.height});
  return host;
}

Rect squareIn(Size size) {
  const double side = std::min(size.width, size.height);
  return {(size.width - side) * 0.5, (size.height - side) * 0.5, side, side};
}

}  // namespace velmora::app
