#include <app/drawing/Colours.h>

#include <cmath>

namespace velmora::app {
namespace {

constexpr double leastOpacity = 0.5;
constexpr double middleLuminance = 0.18;  // where light and dark letters are as easy to read

double linear(double component) { return std::pow(component, 2.2); }

/// Ink on paper: a disc's lit part is ink, its dark part the paper.
VelmoraTheme inkOn(const Color& paper, VelmoraTheme theme) {
  theme.defaultTextColor = Color::withWhite(0.25, 1);
  theme.lightTextColor = Color::withWhite(0.44, 1);
  theme.darkTextColor = Color::withWhite(0.35, 1);
  theme.selectedBackgroundColor = {0.62, 0.4, 0.05, 1};
  theme.borderColor = Color::withWhite(0.6, 1);
  theme.backgroundColor = paper;
  theme.headerBackgroundColor = {0.21, 0.25, 0.45, 0.1};
  return theme;
}

}  // namespace

bool isLight(const Color& background) {
  if (background.alpha < leastOpacity) return false;
  const double luminance =
      0.2126 * linear(background.red) + 0.7152 * linear(background.green) + 0.0722 * linear(background.blue);
  return luminance > middleLuminance;
}

ScopedColours::ScopedColours(const Color& background) : _former(*VelmoraTheme::defaultTheme()) {
  if (isLight(background)) *VelmoraTheme::defaultTheme() = inkOn(background, _former);
}

TitleColours titleColoursOn(const Color& background) {
  const VelmoraTheme& theme = isLight(background) ? inkOn(background, {}) : *VelmoraTheme::calendarTheme();
  return {isLight(background) ? theme.defaultTextColor : theme.lightTextColor, theme.darkTextColor};
}

}  // namespace velmora::app
