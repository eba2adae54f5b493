#pragma once

#include <chrono>

#include <velmora/posters/Poster.h>

namespace velmora {

/// How the poster of a year shows its days.
struct YearPosterStyle {
  PaperTheme theme = PaperTheme::dark;  ///< light or dark paper
  bool alignsWeekdays = false;          ///< whether months begin at the line of their weekday
  bool isTilted = false;                ///< whether the discs hang as they do in the sky of the place
  unsigned firstWeekday = 1;            ///< of the lines by weekdays, 0 is Sunday
};

/// A year of Moons on a sheet: each day's disc as it is lit in the evening at the place, the principal phases
/// with their time, eclipses that are seen from there in rings. A column a month where the sheet stands, a
/// row a month where it lies.
class YearPoster final : public Poster {
 public:
  /// Of the days of the year.
  YearPoster(PosterPlace place, std::chrono::year year, const YearPosterStyle& style = {})
      : Poster(std::move(place), style.theme), _year(year), _style(style) {}

  bool isCovered() const override;
  void compose(Sheet& sheet) const override;

 private:
  std::chrono::year _year;
  YearPosterStyle _style;
};

}  // namespace velmora
