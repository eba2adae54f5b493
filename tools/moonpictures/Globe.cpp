#include "Globe.h"

#include <algorithm>

namespace moonpictures {
namespace {

constexpr int pictureSize = 256;
constexpr double discRadius = 124;  // pixels
constexpr int samplesPerPixel = 4;  // along each side
constexpr int samples = pictureSize * samplesPerPixel;
constexpr double reliefExaggeration = 1.5;

/// The ground's normal, tilted by the slope to the cells beside a place.
Vector normalAt(const SurfaceMap& relief, const Vector& direction) {
  constexpr double step = 1.0 / SurfaceMap::cellsPerDegree;  // degrees
  const Place place = placeOf(direction);
  const auto heightAt = [&](double north, double east) {
    return relief.valueAt({place.latitude + north, place.longitude + east}) * reliefExaggeration / moonRadius;
  };
  const double run = 2 * step * degree;
  const double parallel = std::max(0.1, std::cos(place.latitude * degree));
  const double toEast = (heightAt(0, step) - heightAt(0, -step)) / (run * parallel);
  const double toNorth = (heightAt(step, 0) - heightAt(-step, 0)) / run;
  return unit(direction - toEast * eastOf(direction) - toNorth * northOf(direction));
}

/// What lies outside of shadows on a walk away from the place under the Sun: the ray over the highest ground
/// passed shades all that comes after and lies lower.
class Horizon {
 public:
  /// Share of sunlight on the next ground of the walk, told by its distance from the Moon's axis to the Sun.
  double sunlitShareAt(double outward) {
    constexpr double penumbra = 0.0008;  // Moon radii; a shadow's soft edge
    _highest = std::max(_highest, outward);
    return 1 - std::min(1.0, (_highest - outward) / penumbra);
  }

 private:
  double _highest = -1;
};

/// The light of a pixel's samples on the disc.
struct PixelSum {
  Light light;
  int samples = 0;
};

void append(const PixelSum& sum, Picture& picture) {
  const Light mean = (1.0 / std::max(1, sum.samples)) * sum.light;
  for (const double part : {mean.red, mean.green, mean.blue}) picture.pixels.push_back(encoded(part));
  const int opacity = 255 * sum.samples / (samplesPerPixel * samplesPerPixel);
  picture.pixels.push_back(static_cast<std::uint8_t>(opacity));
}

}  // namespace

Globe::Globe(const SurfaceMap& relief, const SurfaceMap& albedo) {
  for (int row = 0; row < samples; ++row) _rows.push_back(rowAt(row, relief, albedo));
}

Globe::Row Globe::rowAt(int row, const SurfaceMap& relief, const SurfaceMap& albedo) {
  const auto coordinate = [](int sample) {
    return (sample + 0.5 - samples / 2.0) / (discRadius * samplesPerPixel);
  };
  Row line;
  const double y = -coordinate(row);
  for (int column = 0; column < samples; ++column) {
    const double x = coordinate(column);
    const double squared = x * x + y * y;
    if (squared >= 1) continue;
    if (line.samples.empty()) line.first = column;
    const Vector direction{x, y, std::sqrt(1 - squared)};
    const Place place = placeOf(direction);
    const double height = relief.valueAt(place) * reliefExaggeration / moonRadius;
    line.samples.push_back({{normalAt(relief, direction), albedo.valueAt(place)}, (1 + height) * direction});
  }
  return line;
}

std::vector<double> Globe::sunlitShares(const Row& row, const Vector& sun) {
  const auto outward = [&](const Sample& sample) {
    return sample.ground.x * sun.z - sample.ground.z * sun.x;
  };
  const auto firstEast =
      std::partition_point(row.samples.begin(), row.samples.end(),
                           [&](const Sample& sample) { return sun.z > 0 ? outward(sample) < 0 : sun.x > 0; });
  const auto subsolar = static_cast<std::size_t>(firstEast - row.samples.begin());
  std::vector<double> shares(row.samples.size());
  Horizon east, west;
  for (std::size_t i = subsolar; i < shares.size(); ++i)
    shares[i] = east.sunlitShareAt(outward(row.samples[i]));
  for (std::size_t i = subsolar; i-- > 0;) shares[i] = west.sunlitShareAt(-outward(row.samples[i]));
  return shares;
}

Picture Globe::litBy(const Illumination& lamps) const {
  std::vector<PixelSum> sums(pictureSize * pictureSize);
  for (int y = 0; y < samples; ++y) {
    const Row& row = _rows[static_cast<std::size_t>(y)];
    const std::vector<double> sunlit = sunlitShares(row, lamps.sun);
    for (std::size_t i = 0; i < row.samples.size(); ++i) {
      const int x = row.first + static_cast<int>(i);
      PixelSum& sum = sums[static_cast<std::size_t>(y / samplesPerPixel * pictureSize + x / samplesPerPixel)];
      sum.light = sum.light + lightFrom(row.samples[i].spot, lamps, sunlit[i]);
      ++sum.samples;
    }
  }
  Picture picture{pictureSize, pictureSize, {}};
  for (const PixelSum& sum : sums) append(sum, picture);
  return picture;
}

}  // namespace moonpictures
