#pragma once

#include <cstdint>
#include <optional>

#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// When the Moon is up in the course of a day, in minutes after midnight.
struct MoonHours {
  std::int64_t from;   ///< the rise; the day's start without one
  std::int64_t until;  ///< the set; before `from` where the Moon is up at midnight

  /// Of a day's rise and set, −1 for none.
  /// Kept: a day with neither counts as wholly moonlit.
  static MoonHours between(std::int64_t rise, std::int64_t set);

  /// Whether the Moon is up at the day's start, sets and rises again: two bars, not one.
  bool isUpAtMidnight() const { return until < from; }
};

/// Where the bars, icons and times of a day lie on a strip of 24 hours: the Moon's in its upper half, the
/// daylight's in its lower half. Everything is given as it reads from left to right; who draws mirrors it.
class RiseSetStrip {
 public:
  static constexpr double iconSide = 20;

  explicit RiseSetStrip(Rect rect);

  Rect rect() const { return _rect; }

  /// Whether the strip shows the rise or set as a moment of its day: 0 to 1440 minutes after midnight.
  static bool isWithinDay(std::int64_t minutes);

  // Bars. Moments outside the day reach beyond the strip.

  /// The one bar of a Moon that rises before it sets.
  Rect moonBar(MoonHours hours) const;
  /// The two bars of a Moon that is up at midnight. The second lasts to the day's end.
  /// Kept: without a set the first is the minute before midnight, a sliver outside the strip.
  Rect moonBarUntilSet(MoonHours hours) const;
  Rect moonBarFromRise(MoonHours hours) const;
  Rect dayBar(std::int64_t sunrise, std::int64_t dayLength) const;

  // Icons and times. They keep to the row in the middle of their bar, the times at the icons' feet.

  /// The icons inside a bar's start and end.
  static Rect iconAtStart(Rect bar);
  static Rect iconAtEnd(Rect bar);

  /// Moonrise, of the text's size: before the bar, or behind the icon where that would leave the strip.
  Rect moonRiseText(Rect bar, Size text) const;
  /// Moonset: behind the bar, or before the icon where that would leave the strip; none where it does not end
  /// within the strip even then.
  std::optional<Rect> moonSetText(Rect bar, Size text) const;
  /// Sunrise ends before its bar, sunset begins behind it, wherever that is.
  static Rect sunRiseText(Rect bar, Size text);
  static Rect sunSetText(Rect bar, Size text);

 private:
  double widthOf(std::int64_t minutes) const;
  double xAt(std::int64_t minutes) const { return _rect.x + widthOf(minutes); }
  double end() const { return _rect.x + _rect.width; }
  double moonTop() const;
  double dayTop() const;
  double barHeight() const;

  Rect _rect;
  float _pointsPerMinute;
};

}  // namespace velmora
