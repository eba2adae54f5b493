#pragma once

#include <memory>

#include <velmora/platform/graphics/Color.h>

namespace velmora {

/// The colours that the calendar and rise/set views draw with.
struct VelmoraTheme {
  Color dayLightColor;   ///< bars of daylight
  Color moonLightColor;  ///< bars of the hours the Moon is up
  Color headerBackgroundColor;
  Color borderColor;
  Color darkTextColor;
  Color defaultTextColor;
  Color lightTextColor;   ///< also discs and frames
  Color backgroundColor;  ///< also the dark part of a disc
  Color selectedBackgroundColor;
  Color selectedForegroundColor;

  /// The two themes that views share: each one object, made on the first call and kept for the process. Who
  /// changes its colours changes them for every view that shares it. For the main thread only.
  static std::shared_ptr<VelmoraTheme> defaultTheme();
  /// What a view without a theme of its own draws with.
  static std::shared_ptr<VelmoraTheme> calendarTheme();

  friend bool operator==(const VelmoraTheme&, const VelmoraTheme&) = default;
};

}  // namespace velmora
