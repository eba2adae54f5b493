#include "Relief.h"

#include "Craters.h"
#include "Noise.h"

namespace moonpictures {
namespace {

constexpr std::uint64_t groundSeed = 31, ridgeSeed = 47, mountainSeed = 53;

double groundHeight(const Vector& place, double mareCover) {
  constexpr double groundGrain = 11, ridgeGrain = 9;            // waves a Moon radius
  constexpr double highlandHeight = 2.4, mareHeight = 0.30;     // kilometres
  constexpr double mareDepth = 1.3, wrinkleRidgeHeight = 0.22;  // kilometres
  const double ground = fractalNoise(groundGrain * place, 7, 0.56, groundSeed);
  const double ridge = 1 - std::abs(fractalNoise(ridgeGrain * place, 2, 0.4, ridgeSeed));
  const double smooth = smoothStep(0.1, 0.5, mareCover);
  return mix(highlandHeight, mareHeight, smooth) * ground +
         smooth * (wrinkleRidgeHeight * std::pow(ridge, 12) - mareDepth);
}

/// Kilometres from a place to the piece of the range.
double distanceFrom(const MountainPiece& piece, const Vector& place) {
  const Vector along = piece.to - piece.from;
  const double share = dot(place - piece.from, along) / dot(along, along);
  return distanceBetween(place, unit(piece.from + std::fmin(1, std::fmax(0, share)) * along));
}

void raise(const MountainPiece& piece, SurfaceMap& relief) {
  constexpr double mountainGrain = 70;  // waves a Moon radius
  const double reach = distanceBetween(piece.from, piece.to) / 2 + 3 * piece.halfWidth;
  relief.visitAround(unit(piece.from + piece.to), reach, [&](const Vector& place, float& height) {
    const double distance = distanceFrom(piece, place) / piece.halfWidth;
    if (distance > 2.5) return;
    const double rugged = 0.7 + 0.5 * fractalNoise(mountainGrain * place, 3, 0.6, mountainSeed);
    const double crest = piece.height * rugged * std::exp(-distance * distance);
    height = std::max(height, static_cast<float>(crest));
  });
}

void dig(const Crater& crater, SurfaceMap& relief) {
  const double reach = ejectaReach * crater.diameter / 2;
  relief.visitAround(crater.centre, reach, [&](const Vector& place, float& height) {
    const double distance = distanceInRadii(crater, place);
    if (distance > ejectaReach) return;
    const double levelled = 0.7 * (1 - smoothStep(0.8, 1.2, distance));
    height = static_cast<float>(height * (1 - levelled) + craterHeight(crater, distance));
  });
}

}  // namespace

SurfaceMap reliefOf(const Catalogue& catalogue, const SurfaceMap& mareCover) {
  SurfaceMap relief;
  relief.visitAll([&](const Vector& place, float& height) {
    height = static_cast<float>(groundHeight(place, mareCover.valueAt(placeOf(place))));
  });
  for (const MountainPiece& piece : catalogue.mountains) raise(piece, relief);
  for (const Crater& crater : catalogue.craters) dig(crater, relief);
  return relief;
}

}  // namespace moonpictures
