#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include <velmora/platform/resources/ImageDecoder.h>

namespace velmora {

/// A named picture, kept as it was encoded (PNG) and decoded when its pixels are first asked for. Immutable,
/// held by shared pointer, and usable from any thread.
class Image {
  struct Key {};

 public:
  /// The picture in the bytes; empty if they do not begin like a picture. `scale` is the number of pixels
  /// that make one point.
  static std::shared_ptr<const Image> fromBytes(std::string name, std::string encoded, double scale = 1.0);

  /// For `fromBytes` and `mirrored` alone.
  Image(Key, std::string name, std::shared_ptr<const std::string> encoded, double scale, PixelSize pixelSize,
        bool isMirrored);

  /// Tells it from every other picture of the process, mirrored ones included.
  std::uint64_t serial() const { return _serial; }
  /// The name it was given.
  const std::string& name() const { return _name; }
  /// The picture as it was encoded; a mirrored copy's is that of its original.
  const std::string& encodedBytes() const { return *_encoded; }
  double scale() const { return _scale; }
  PixelSize pixelSize() const { return _pixelSize; }
  bool isMirrored() const { return _isMirrored; }

  /// The same picture with left and right exchanged.
  std::shared_ptr<const Image> mirrored() const;

  /// The pixels as the picture is seen, mirroring included; empty if the picture turns out to be damaged.
  const PixelBytes& pixels() const;

 private:
  PixelBytes decodedPixels() const;

  std::uint64_t _serial;
  std::string _name;
  std::shared_ptr<const std::string> _encoded;
  double _scale;
  PixelSize _pixelSize;
  bool _isMirrored;
  mutable std::once_flag _isDecoded;
  mutable PixelBytes _pixels;
};

}  // namespace velmora
