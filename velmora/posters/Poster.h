#pragma once

#include <string>
#include <vector>

#include <velmora/almanac/Place.h>
#include <velmora/platform/time/TimeZone.h>
#include <velmora/platform/ui/View.h>
#include <velmora/posters/Paper.h>

namespace velmora {

class [[gnu::visibility("hidden")]] Sheet;

/// Where a poster's sky is seen from.
struct PosterPlace {
  almanac::Place place;  ///< that point of the Earth
  TimeZone zone;         ///< of its clocks
  std::string name;      ///< as it stands below the title
};

/// A picture for paper. It fills its frame, of whatever size; made for A4, it is enlarged with the paper, so
/// that it reads the same from the distance that the paper is made for. Its texts are in the language and
/// direction of the process's locale, its values those of the almanac.
class Poster : public View {
 public:
  /// A poster of that place in those inks.
  Poster(PosterPlace place, PaperTheme theme) : _place(std::move(place)), _theme(theme) {}

  void drawRect(Canvas& canvas, Rect rect) override;

  /// One element a text, in reading order.
  std::vector<AccessibilityElement> accessibilityElements() override;

  /// Whether the almanac covers all that it shows; a poster is blank otherwise.
  virtual bool isCovered() const = 0;

  /// Draws all of it on the sheet.
  virtual void compose(Sheet& sheet) const = 0;

 protected:
  /// What it was made with.
  const PosterPlace& place() const { return _place; }
  PaperTheme theme() const { return _theme; }

 private:
  PosterPlace _place;
  PaperTheme _theme;
};

}  // namespace velmora
