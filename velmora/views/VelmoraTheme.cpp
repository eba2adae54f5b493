#include <velmora/views/VelmoraTheme.h>

namespace velmora {
namespace {

VelmoraTheme defaultColors() {
  VelmoraTheme theme;
  theme.defaultTextColor = Color::withWhite(0.7, 1);
  theme.lightTextColor = Color::withWhite(0.8, 1);
  theme.darkTextColor = Color::withWhite(0.6, 1);
  theme.selectedBackgroundColor = {0.89, 0.78, 0.59, 1};
  theme.selectedForegroundColor = {0.18, 0.25, 0.45, 1};
  theme.borderColor = Color::withWhite(0.4, 1);
  theme.backgroundColor = {0.21, 0.25, 0.45, 0.325};
  theme.headerBackgroundColor = {0.21, 0.25, 0.45, 0.325};
  theme.dayLightColor = {0.404, 0.317, 0.526, 0.4};
  theme.moonLightColor = {0.18, 0.25, 0.45, 0.8};
  return theme;
}

VelmoraTheme calendarColors() {
  VelmoraTheme theme = defaultColors();
  theme.selectedForegroundColor = {0.18, 0.25, 0.5, 1};
  theme.borderColor = Color::withWhite(0.3, 0.8);
  theme.backgroundColor = {14.0 / 255, 12.0 / 255, 22.0 / 255, 1};
  theme.dayLightColor = {0.404, 0.209, 0.487, 0.4};
  theme.moonLightColor = {0.18, 0.25, 0.45, 0.9};
  return theme;
}

}  // namespace

std::shared_ptr<VelmoraTheme> VelmoraTheme::defaultTheme() {
  static const auto theme = std::make_shared<VelmoraTheme>(defaultColors());
  return theme;
}

std::shared_ptr<VelmoraTheme> VelmoraTheme::calendarTheme() {
  static const auto theme = std::make_shared<VelmoraTheme>(calendarColors());
  return theme;
}

}  // namespace velmora
