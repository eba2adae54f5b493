#include <app/drawing/Hosting.h>

#include <algorithm>

namespace velmora::app {

std::shared_ptr<VelmoraTheme> themeOf(const Query& query) {
  const bool isCalendar = query.request.drawing.theme == ThemeChoice::calendarTheme;
  return isCalendar ? VelmoraTheme::calendarTheme() : VelmoraTheme::defaultTheme();
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
