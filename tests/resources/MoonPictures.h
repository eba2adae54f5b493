#pragma once

#include <functional>
#include <memory>
#include <string>

#include <velmora/platform/resources/Image.h>

namespace velmora::shipped {

/// A picture file of the tree, named from the project's root.
std::shared_ptr<const Image> shippedImage(const std::string& path);

struct Pixel {
  int red, green, blue, alpha;

  double brightness() const { return (red + green + blue) / 3.0; }
};

/// Column and row count from the top left.
Pixel pixelAt(const Image& image, int column, int row);

/// One of the pictures of a lunation ("IMG_15") or the one of an unknown phase ("moon_0").
class MoonPicture {
 public:
  static constexpr int size = 256;           ///< pixels a side
  static constexpr double discRadius = 124;  ///< pixels

  explicit MoonPicture(const std::string& name);

  const Image& image() const { return *_image; }

  /// Mean of a property over the disc's pixels for which `isWanted` holds; x to the right and y up in disc
  /// radii.
  double mean(
      const std::function<double(int column, int row)>& property,
      const std::function<bool(double x, double y)>& isWanted = [](double, double) { return true; }) const;

  double brightnessAt(int column, int row) const { return pixelAt(*_image, column, row).brightness(); }

  /// Mean brightness over the pixels around a place given in selenographic degrees, north and east positive.
  double brightnessAround(double latitude, double longitude) const;

 private:
  std::shared_ptr<const Image> _image;
};

}  // namespace velmora::shipped
