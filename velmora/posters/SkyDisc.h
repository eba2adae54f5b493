#pragma once

#include <velmora/almanac/Place.h>
#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/ui/View.h>

namespace velmora {

/// The library's picture of the full Moon, north up, which is turned and shadowed where the Moon is shown as
/// a picture.
inline constexpr const char* fullMoonPicture = "IMG_27";

/// The Moon's disc as it hangs in the sky of a place: lit as much, and from where, as it is seen there with
/// the zenith up. As large as fits its frame; nothing for a moment that the almanac does not cover.
class SkyDisc : public View {
 public:
  /// At the moment, in the colours of its two parts.
  SkyDisc(const almanac::Place& place, Instant at, const Color& lit, const Color& dark)
      : _place(place), _at(at), _lit(lit), _dark(dark) {}

  /// Shows the Moon's picture in place of two colours, where the library has it.
  void setHasPicture(bool hasPicture) { _hasPicture = hasPicture; }
  /// Whether the zenith is up, as from the beginning, or north, and south of the equator south, is.
  void setIsTilted(bool isTilted) { _isTilted = isTilted; }

  void drawRect(Canvas& canvas, Rect rect) override;

 private:
  almanac::Place _place;
  Instant _at;
  Color _lit, _dark;
  bool _hasPicture = false, _isTilted = true;
};

}  // namespace velmora
