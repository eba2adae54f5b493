#pragma once

#include <optional>
#include <vector>

#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Where paint lies on the layers of a picture, all in pixels: what is blank needs no clearing, and a picture
/// that cannot clear paints its holes with what they show.
class PaintedLayers {
 public:
  /// The background lies below them all. Colours are known only if `knowsColors`; without them a layer holds
  /// no more paints than lie beside each other, however long it is drawn on.
  PaintedLayers(const Color& background, bool knowsColors)
      : _background(background), _knowsColors(knowsColors) {}

  void begin() { _layers.emplace_back(); }
  /// Lays the topmost down onto the one below it.
  void end();

  /// Notes that something was painted within the rectangle.
  void note(const Rect& box);
  /// Notes of the last paint that it filled the rectangle with the opaque colour. For layers with colours.
  void noteFilled(const Rect& rect, const Color& color);

  /// Whether anything was painted within the rectangle on the topmost layer.
  bool isPainted(const Rect& rect) const;
  /// What a hole in the topmost layer shows, if that is one opaque colour. For layers with colours.
  std::optional<Color> colorBelow(const Rect& rect) const;

 private:
  struct Paint {
    Rect box;     ///< holds all of it
    Rect filled;  ///< the part that is filled with one opaque colour, as far as is known
    Color color;
  };
  using Layer = std::vector<Paint>;

  Color _background;
  bool _knowsColors;
  std::vector<Layer> _layers{Layer()};
};

}  // namespace velmora
