#include <velmora/views/UIColorTheme.h>

namespace velmora {

UIColorTheme UIColorTheme::defaultTheme() {
  UIColorTheme theme;
  theme.borderColor = {0.18, 0.25, 0.45, 0.6};
  theme.backgroundColor = {0.21, 0.25, 0.45, 0.3};
  theme.selectedBackgroundColor = {0.18, 0.25, 0.45, 1};
  theme.darkTextColor = Color::withWhite(0.6, 1);
  theme.defaultTextColor = Color::withWhite(0.9, 1);
  theme.lightTextColor = Color::withWhite(0.9, 1);
  theme.selectedForegroundColor = {117.0 / 255, 146.0 / 255, 233.0 / 255, 1};
  return theme;
}

UIColorTheme UIColorTheme::dialogTheme() {
  UIColorTheme theme = defaultTheme();
  theme.backgroundColor = {0.24, 0.3, 0.54, 0.5};
  return theme;
}

UIColorTheme UIColorTheme::pagingSegmentedControlTheme() { return defaultTheme(); }

UIColorTheme UIColorTheme::dropDownListControlTheme() {
  UIColorTheme theme = defaultTheme();
  theme.backgroundColor = {0.24, 0.3, 0.54, 0.3};
  theme.selectedBackgroundColor = {0.24, 0.3, 0.54, 0.4};
  theme.borderColor = {0.24, 0.3, 0.54, 1};
  return theme;
}

}  // namespace velmora
