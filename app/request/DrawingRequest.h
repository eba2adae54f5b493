#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <velmora/platform/graphics/Geometry.h>
#include <velmora/posters/Paper.h>
#include <velmora/views/AlternateCalendarType.h>

namespace velmora::app {

struct DrawableView;

enum class ThemeChoice { calendarTheme, defaultTheme, dark, light };

/// What a request for a picture says of it.
struct DrawingRequest {
  const DrawableView* view = nullptr;
  std::optional<std::string> output;      ///< path of the file; "-": standard output
  std::optional<std::string> folder;      ///< below which alone it may write; none: anywhere
  std::optional<Size> size;               ///< of the whole picture, in points
  double scale = 1;                       ///< pixels per point of a PNG
  std::optional<std::string> background;  ///< a colour, read where it is drawn
  bool hasTitle = true;
  bool isRightToLeft = false;  ///< whatever the language is
  bool isTablet = false;

  std::optional<ThemeChoice> theme;     ///< the view's own unless given
  Paper paper = Paper::a4;              ///< of posters
  bool isLandscape = false;             ///< whether the sheet lies
  bool alignsWeekdays = false;          ///< whether the months of a poster begin at their weekday
  bool isTilted = false;                ///< whether discs hang as they do in the sky
  bool hasPicture = false;              ///< whether a disc is the picture of the Moon
  std::optional<std::string> holidays;  ///< path of a calendar file that names days
  AlternateCalendarType calendar = kNoAlternateCalendar;
  std::optional<std::int64_t> weekStartDay;  ///< 0 is Sunday; none: the locale's
  bool hidesEclipses = false;
  double heading = 0;  ///< degrees, clockwise from north
};

}  // namespace velmora::app
