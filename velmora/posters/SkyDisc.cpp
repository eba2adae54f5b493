#include <velmora/posters/SkyDisc.h>

#include <algorithm>

#include <velmora/posters/MoonPicture.h>
#include <velmora/posters/MoonShape.h>

namespace velmora {

void SkyDisc::drawRect(Canvas& canvas, Rect rect) {
  const auto moon = almanac::illumination(_place, _at);
  if (!moon) return;
  constexpr double lineWidth = 1;
  const double radius = (std::min(rect.width, rect.height) - lineWidth) / 2;
  const bool isSouthern = _place.latitude < 0;
  const MoonLight light = _isTilted ? tilted(*moon) : upright(*moon, isSouthern);
  const MoonPicture picture;
  if (_hasPicture && !picture.isBlank())
    return picture.draw(canvas, rect.center(), radius / MoonPicture::shadowReach, light,
                        _isTilted ? northInSky(_place, _at) : northUpright(isSouthern), _dark);
  const Rect square = {rect.midX() - radius, rect.midY() - radius, 2 * radius, 2 * radius};
  canvas.setFillColor(_dark);
  canvas.fillEllipse(square);
  canvas.setFillColor(_lit);
  canvas.fill(litPart(rect.center(), radius, light));
  canvas.setStrokeColor(_lit);
  canvas.setLineWidth(lineWidth);
  canvas.strokeEllipse(square);
}

}  // namespace velmora
