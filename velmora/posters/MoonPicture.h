#pragma once

#include <memory>

#include <velmora/platform/graphics/Canvas.h>
#include <velmora/platform/resources/Image.h>
#include <velmora/posters/MoonShape.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The Moon as one sees it: its picture turned and, over it, the shadow.
class MoonPicture {
 public:
  /// How far the shadow lies over the disc, in radii, so that no bright edge is left around it.
  static constexpr double shadowReach = 1.012;

  /// Of the library's picture; blank where that is missing.
  MoonPicture();

  bool isBlank() const { return _full == nullptr; }

  /// Draws it around the place, its north that far clockwise from straight up, radians.
  void draw(Canvas& canvas, Point center, double radius, const MoonLight& light, double north,
            const Color& shadow) const;

 private:
  std::shared_ptr<const Image> _full;
};

/// The direction of the Moon's north as it hangs in the sky, radians clockwise from straight up.
double northInSky(const almanac::Place& place, Instant at);

/// The same as calendars show it: up, and south of the equator down.
double northUpright(bool isSouthernHemisphere);

}  // namespace velmora
