#pragma once

#include <chrono>

#include <velmora/posters/Poster.h>

namespace velmora {

/// A year as a carpet, a row a night from noon to noon by the clocks of the place: daylight, the three
/// twilights, night and the moonlight on it, moonrise and moonset, changes of the clocks as steps, and beside
/// it the darkest night of each month. Made for paper that stands.
class DarknessPoster final : public Poster {
 public:
  /// The nights that begin in the evenings of the year.
  DarknessPoster(PosterPlace place, std::chrono::year year, PaperTheme theme = PaperTheme::dark)
      : Poster(std::move(place), theme), _year(year) {}

  bool isCovered() const override;
  void compose(Sheet& sheet) const override;

 private:
  std::chrono::year _year;
};

}  // namespace velmora
