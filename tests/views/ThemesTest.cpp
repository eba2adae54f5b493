#include <gtest/gtest.h>

#include <vector>

#include <velmora/views/UIColorTheme.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora {

namespace {

template <class Theme>
struct ThemeRow {
  const char* name;
  Color Theme::*property;
  Color expected;
};

template <class Theme>
void expectColors(const Theme& theme, const std::vector<ThemeRow<Theme>>& rows) {
  for (const ThemeRow<Theme>& row : rows) EXPECT_EQ(theme.*row.property, row.expected) << row.name;
}

using ControlRows = std::vector<ThemeRow<UIColorTheme>>;
using ViewRows = std::vector<ThemeRow<VelmoraTheme>>;

TEST(UIColorThemeTest, DefaultTheme) {
  expectColors(UIColorTheme::defaultTheme(),
               ControlRows{
                   {"border", &UIColorTheme::borderColor, {0.18, 0.25, 0.45, 0.6}},
                   {"background", &UIColorTheme::backgroundColor, {0.21, 0.25, 0.45, 0.3}},
                   {"selected background", &UIColorTheme::selectedBackgroundColor, {0.18, 0.25, 0.45, 1.0}},
                   {"dark text", &UIColorTheme::darkTextColor, {0.6, 0.6, 0.6, 1.0}},
                   {"default text", &UIColorTheme::defaultTextColor, {0.9, 0.9, 0.9, 1.0}},
                   {"light text", &UIColorTheme::lightTextColor, {0.9, 0.9, 0.9, 1.0}},
                   {"selected foreground",
                    &UIColorTheme::selectedForegroundColor,
                    {117 / 255.0, 146 / 255.0, 233 / 255.0, 1.0}},
               });
}

TEST(UIColorThemeTest, DialogsHaveAnotherBackground) {
  expectColors(UIColorTheme::dialogTheme(),
               ControlRows{
                   {"border", &UIColorTheme::borderColor, {0.18, 0.25, 0.45, 0.6}},
                   {"background", &UIColorTheme::backgroundColor, {0.24, 0.3, 0.54, 0.5}},
                   {"selected background", &UIColorTheme::selectedBackgroundColor, {0.18, 0.25, 0.45, 1.0}},
                   {"dark text", &UIColorTheme::darkTextColor, {0.6, 0.6, 0.6, 1.0}},
                   {"default text", &UIColorTheme::defaultTextColor, {0.9, 0.9, 0.9, 1.0}},
                   {"light text", &UIColorTheme::lightTextColor, {0.9, 0.9, 0.9, 1.0}},
                   {"selected foreground",
                    &UIColorTheme::selectedForegroundColor,
                    {117 / 255.0, 146 / 255.0, 233 / 255.0, 1.0}},
               });
}

TEST(UIColorThemeTest, PagingSegmentedControlsHaveTheDefaultColors) {
  const UIColorTheme standard = UIColorTheme::defaultTheme();
  expectColors(
      UIColorTheme::pagingSegmentedControlTheme(),
      ControlRows{
          {"border", &UIColorTheme::borderColor, standard.borderColor},
          {"background", &UIColorTheme::backgroundColor, standard.backgroundColor},
          {"selected background", &UIColorTheme::selectedBackgroundColor, standard.selectedBackgroundColor},
          {"dark text", &UIColorTheme::darkTextColor, standard.darkTextColor},
          {"default text", &UIColorTheme::defaultTextColor, standard.defaultTextColor},
          {"light text", &UIColorTheme::lightTextColor, standard.lightTextColor},
          {"selected foreground", &UIColorTheme::selectedForegroundColor, standard.selectedForegroundColor},
      });
}

TEST(UIColorThemeTest, DropDownListsHaveAnotherBorderAndOtherBackgrounds) {
  expectColors(UIColorTheme::dropDownListControlTheme(),
               ControlRows{
                   {"border", &UIColorTheme::borderColor, {0.24, 0.3, 0.54, 1.0}},
                   {"background", &UIColorTheme::backgroundColor, {0.24, 0.3, 0.54, 0.3}},
                   {"selected background", &UIColorTheme::selectedBackgroundColor, {0.24, 0.3, 0.54, 0.4}},
                   {"dark text", &UIColorTheme::darkTextColor, {0.6, 0.6, 0.6, 1.0}},
                   {"default text", &UIColorTheme::defaultTextColor, {0.9, 0.9, 0.9, 1.0}},
                   {"light text", &UIColorTheme::lightTextColor, {0.9, 0.9, 0.9, 1.0}},
                   {"selected foreground",
                    &UIColorTheme::selectedForegroundColor,
                    {117 / 255.0, 146 / 255.0, 233 / 255.0, 1.0}},
               });
}

TEST(UIColorThemeTest, EveryCallMakesANewTheme) {
  UIColorTheme changed = UIColorTheme::defaultTheme();
  changed.borderColor = Color::cyan();
  EXPECT_EQ(UIColorTheme::defaultTheme().borderColor, (Color{0.18, 0.25, 0.45, 0.6}));
  EXPECT_EQ(changed.borderColor, Color::cyan());
}

TEST(VelmoraThemeTest, DefaultTheme) {
  expectColors(*VelmoraTheme::defaultTheme(),
               ViewRows{
                   {"default text", &VelmoraTheme::defaultTextColor, {0.7, 0.7, 0.7, 1.0}},
                   {"light text", &VelmoraTheme::lightTextColor, {0.8, 0.8, 0.8, 1.0}},
                   {"dark text", &VelmoraTheme::darkTextColor, {0.6, 0.6, 0.6, 1.0}},
                   {"selected background", &VelmoraTheme::selectedBackgroundColor, {0.89, 0.78, 0.59, 1.0}},
                   {"selected foreground", &VelmoraTheme::selectedForegroundColor, {0.18, 0.25, 0.45, 1.0}},
                   {"border", &VelmoraTheme::borderColor, {0.4, 0.4, 0.4, 1.0}},
                   {"background", &VelmoraTheme::backgroundColor, {0.21, 0.25, 0.45, 0.325}},
                   {"header background", &VelmoraTheme::headerBackgroundColor, {0.21, 0.25, 0.45, 0.325}},
                   {"day light", &VelmoraTheme::dayLightColor, {0.404, 0.317, 0.526, 0.4}},
                   {"moon light", &VelmoraTheme::moonLightColor, {0.18, 0.25, 0.45, 0.8}},
               });
}

TEST(VelmoraThemeTest, CalendarTheme) {
  expectColors(*VelmoraTheme::calendarTheme(),
               ViewRows{
                   {"default text", &VelmoraTheme::defaultTextColor, {0.7, 0.7, 0.7, 1.0}},
                   {"light text", &VelmoraTheme::lightTextColor, {0.8, 0.8, 0.8, 1.0}},
                   {"dark text", &VelmoraTheme::darkTextColor, {0.6, 0.6, 0.6, 1.0}},
                   {"selected background", &VelmoraTheme::selectedBackgroundColor, {0.89, 0.78, 0.59, 1.0}},
                   {"selected foreground", &VelmoraTheme::selectedForegroundColor, {0.18, 0.25, 0.5, 1.0}},
                   {"border", &VelmoraTheme::borderColor, {0.3, 0.3, 0.3, 0.8}},
                   {"background", &VelmoraTheme::backgroundColor, {14 / 255.0, 12 / 255.0, 22 / 255.0, 1.0}},
                   {"header background", &VelmoraTheme::headerBackgroundColor, {0.21, 0.25, 0.45, 0.325}},
                   {"day light", &VelmoraTheme::dayLightColor, {0.404, 0.209, 0.487, 0.4}},
                   {"moon light", &VelmoraTheme::moonLightColor, {0.18, 0.25, 0.45, 0.9}},
               });
}

TEST(VelmoraThemeTest, EachThemeIsOneSharedObject) {
  EXPECT_EQ(VelmoraTheme::calendarTheme(), VelmoraTheme::calendarTheme());
  EXPECT_EQ(VelmoraTheme::defaultTheme(), VelmoraTheme::defaultTheme());
  EXPECT_NE(VelmoraTheme::calendarTheme(), VelmoraTheme::defaultTheme());
}

TEST(VelmoraThemeTest, AChangeIsSeenByAllWhoShareTheTheme) {
  const VelmoraTheme former = *VelmoraTheme::calendarTheme();
  VelmoraTheme::calendarTheme()->borderColor = Color::cyan();
  EXPECT_EQ(VelmoraTheme::calendarTheme()->borderColor, Color::cyan());
  EXPECT_EQ(VelmoraTheme::defaultTheme()->borderColor, Color::withWhite(0.4, 1));
  *VelmoraTheme::calendarTheme() = former;
}

}  // namespace
}  // namespace velmora
