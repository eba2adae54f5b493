#include <velmora/posters/MoonPicture.h>

#include <numbers>

#include <velmora/almanac/MoonAxis.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/posters/SkyDisc.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double pictureSide = 256, pictureDisc = 248;  // pixels

constexpr double shadowDepth = 0.92;  // the Earth lights what remains

}  // namespace

MoonPicture::MoonPicture() : _full(Bundle::library().image(fullMoonPicture)) {}

void MoonPicture::draw(Canvas& canvas, Point center, double radius, const MoonLight& light, double north,
                       const Color& shadow) const {
  if (isBlank()) return;
  const double reach = radius * pictureSide / pictureDisc;
  canvas.save();
  canvas.translate(center.x, center.y);
  canvas.rotate(north);
  canvas.drawImage(*_full, {-reach, -reach, 2 * reach, 2 * reach});
  canvas.restore();
  Color shade = shadow;
  shade.alpha = shadowDepth;
  canvas.setFillColor(shade);
  canvas.fill(
      litPart(center, shadowReach * radius, {1 - light.fraction, light.direction + std::numbers::pi}));
}

double northInSky(const almanac::Place& place, Instant at) {
  return -almanac::moonAxisTilt(place, at).value_or(0) * std::numbers::pi / 180;
}

double northUpright(bool isSouthernHemisphere) { return isSouthernHemisphere ? std::numbers::pi : 0; }

}  // namespace velmora
