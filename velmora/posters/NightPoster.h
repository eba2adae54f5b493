#pragma once

#include <chrono>

#include <velmora/posters/Poster.h>

namespace velmora {

/// A night from noon to noon: how high Sun and Moon stand, daylight and the three twilights as bands, the
/// Moon's light, its disc, and the times of it all. Made for paper that lies.
class NightPoster final : public Poster {
 public:
  /// The night that begins in the evening of the date.
  NightPoster(PosterPlace place, std::chrono::year_month_day date, PaperTheme theme = PaperTheme::dark)
      : Poster(std::move(place), theme), _date(date) {}

  bool isCovered() const override;
  void compose(Sheet& sheet) const override;

 private:
  std::chrono::year_month_day _date;
};

}  // namespace velmora
