#include <web/host/Colors.h>

#include <velmora/views/VelmoraTheme.h>

namespace velmora::web {
namespace {

/// As the library made them.
struct DarkThemes {
  VelmoraTheme standard = *VelmoraTheme::defaultTheme();
  VelmoraTheme calendar = *VelmoraTheme::calendarTheme();
};

const DarkThemes& darkThemes() {
  static const DarkThemes themes;
  return themes;
}

/// On paper the lit part of a disc is golden, dark enough to be read as text. Bars are dark enough for the
/// icons on them, which overlay makes lighter.
VelmoraTheme lightTheme() {
  constexpr Color gold = {0.6, 0.41, 0.05, 1}, paper = {0.98, 0.98, 0.99, 1}, night = {0.2, 0.25, 0.48, 1};
  VelmoraTheme theme;
  theme.defaultTextColor = gold;
  theme.lightTextColor = gold;
  theme.darkTextColor = Color::withWhite(0.15, 1);
  theme.selectedBackgroundColor = night;
  theme.selectedForegroundColor = {0.3, 0.36, 0.6, 1};
  theme.borderColor = Color::withWhite(0.72, 1);
  theme.backgroundColor = paper;
  theme.headerBackgroundColor = {0.89, 0.9, 0.95, 1};
  theme.dayLightColor = {0.82, 0.62, 0.34, 1};
  theme.moonLightColor = {0.58, 0.65, 0.88, 1};
  return theme;
}

}  // namespace

void useColors(bool isLight) {
  const DarkThemes& dark = darkThemes();
  *VelmoraTheme::defaultTheme() = isLight ? lightTheme() : dark.standard;
  *VelmoraTheme::calendarTheme() = isLight ? lightTheme() : dark.calendar;
}

Color backgroundOfPage() { return VelmoraTheme::calendarTheme()->backgroundColor; }

}  // namespace velmora::web
