#include "MoonPictures.h"

#include <cmath>

#include <tests/support/SourceDirectory.h>
#include <velmora/platform/system/FileReading.h>

namespace velmora::shipped {

std::shared_ptr<const Image> shippedImage(const std::string& path) {
  return Image::fromBytes(path, readFile(sourceDirectory() + "/" + path).value());
}

Pixel pixelAt(const Image& image, int column, int row) {
  const auto first = static_cast<std::size_t>(4 * (row * image.pixelSize().width + column));
  const PixelBytes& bytes = image.pixels();
  return {bytes.at(first), bytes.at(first + 1), bytes.at(first + 2), bytes.at(first + 3)};
}

MoonPicture::MoonPicture(const std::string& name)
    : _image(shippedImage("velmora/resources/images/" + name + ".png")) {}

double MoonPicture::mean(const std::function<double(int, int)>& property,
                         const std::function<bool(double, double)>& isWanted) const {
  double sum = 0;
  int count = 0;
  for (int row = 0; row < size; ++row) {
    for (int column = 0; column < size; ++column) {
      const double x = (column + 0.5 - size / 2.0) / discRadius;
      const double y = (size / 2.0 - row - 0.5) / discRadius;
      if (x * x + y * y > 1 || !isWanted(x, y)) continue;
      sum += property(column, row);
      ++count;
    }
  }
  return sum / count;
}

double MoonPicture::brightnessAround(double latitude, double longitude) const {
  constexpr double degree = 3.14159265358979323846 / 180;
  constexpr double reach = 3 / discRadius;
  const double x = std::cos(latitude * degree) * std::sin(longitude * degree);
  const double y = std::sin(latitude * degree);
  return mean([&](int column, int row) { return brightnessAt(column, row); },
              [&](double px, double py) { return std::hypot(px - x, py - y) < reach; });
}

}  // namespace velmora::shipped
