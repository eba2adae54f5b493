#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <app/request/DrawableView.h>
#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/graphics/Geometry.h>
#include <velmora/platform/resources/Image.h>

#include "AppTest.h"
#include "tests/platform/resources/TemporaryFolder.h"
#include "tests/support/PlainNumbers.h"

namespace velmora::app {

inline std::string bytesOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// Whether the view is a poster, which has a sheet of its own under it.
inline bool isOnPaper(const DrawableView& view) {
  return std::find(view.options.begin(), view.options.end(), "paper") != view.options.end();
}

/// As on a tablet, but for a poster, which is the same from every device.
inline std::vector<std::string> onATablet(std::vector<std::string> arguments) {
  if (!isOnPaper(*findView(arguments.front()))) arguments.emplace_back("--tablet");
  return arguments;
}

/// A PNG that the program wrote.
class DrawnPicture {
 public:
  explicit DrawnPicture(const std::filesystem::path& file)
      : _image(Image::fromBytes(file.filename().string(), bytesOf(file))) {
    EXPECT_NE(_image, nullptr) << file << " is no picture";
  }

  PixelSize size() const { return _image ? _image->pixelSize() : PixelSize(); }
  const PixelBytes& pixels() const { return _image->pixels(); }

  /// Red, green, blue, alpha.
  std::array<int, 4> pixel(std::int64_t x, std::int64_t y) const {
    const auto at = static_cast<std::size_t>(4 * (y * size().width + x));
    return {pixels()[at], pixels()[at + 1], pixels()[at + 2], pixels()[at + 3]};
  }

  bool has(const Color& color, std::int64_t x, std::int64_t y) const {
    const auto found = pixel(x, y);
    const std::array wanted = {color.red, color.green, color.blue, color.alpha};
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      if (std::abs(found[i] - std::lround(wanted[i] * 255)) > 1) return false;
    }
    return true;
  }

  /// How many pixels in the rectangle have the colour.
  int count(const Color& color, Rect within) const { return gather(color, within).first; }
  int count(const Color& color) const { return count(color, whole()); }

  /// The middle of all pixels that have the colour.
  Point middle(const Color& color) const {
    const auto [count, sum] = gather(color, whole());
    EXPECT_GT(count, 0) << "nothing has the colour " << color.text();
    return {sum.x / count, sum.y / count};
  }

  Rect whole() const { return {0, 0, static_cast<double>(size().width), static_cast<double>(size().height)}; }

 private:
  std::pair<int, Point> gather(const Color& color, Rect within) const {
    int count = 0;
    Point sum;
    for (auto y = std::lround(within.minY()); y < std::lround(within.maxY()); ++y) {
      for (auto x = std::lround(within.minX()); x < std::lround(within.maxX()); ++x) {
        if (!has(color, x, y)) continue;
        ++count;
        sum = sum + Point{static_cast<double>(x), static_cast<double>(y)};
      }
    }
    return {count, sum};
  }

  std::shared_ptr<const Image> _image;
};

/// Width and height that an SVG or a PDF states, in points.
Size statedSize(const std::filesystem::path& file);

/// Draws into a folder of its own.
class PictureTest : public AppTest {
 protected:
  std::string path(const std::string& name) const { return (_folder.path() / name).string(); }

  /// Runs `draw` with the arguments, the file last, and answers its path.
  std::string draw(std::vector<std::string> arguments, const std::string& name = "picture.png") const {
    arguments.insert(arguments.begin(), "draw");
    arguments.insert(arguments.end(), {"-o", path(name)});
    answer(arguments);
    return path(name);
  }

  DrawnPicture picture(std::vector<std::string> arguments) const {
    return DrawnPicture(draw(std::move(arguments)));
  }

  const TemporaryFolder& folder() const { return _folder; }

 private:
  TemporaryFolder _folder;
};

}  // namespace velmora::app
