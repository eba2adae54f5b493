#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>
#include <velmora/platform/graphics/cairo/CairoPath.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What saves and groups bring back: Cairo's own state of the context, and beside it what Cairo does not
/// keep.
class DrawingStates {
 public:
  /// A clip as it was set, and those set before it.
  struct Clip {
    OutlineInPixels outline;
    std::optional<Rect> rectangle;  ///< in pixels, if it is one with upright edges
    std::shared_ptr<Clip> outer;

    // One after the other: each from within the one before takes too much of the stack.
    ~Clip() {
      while (outer.use_count() == 1) outer = std::move(outer->outer);
    }
  };

  struct State {
    enum class Kind { base, save, group };
    Kind kind = Kind::base;
    Color stroke = Color::black();
    Color fill = Color::black();
    double alpha = 1;
    BlendMode blendMode = BlendMode::normal;
    bool isCollapsed = false;     ///< the frame has no area: nothing shows
    std::shared_ptr<Clip> clip;   ///< the innermost one
    std::optional<double> layer;  ///< the alpha of a group's own layer
  };

  explicit DrawingStates(cairo_t* context) : _context(context) {}

  State& current() { return _states.back(); }
  const State& current() const { return _states.back(); }
  bool isInGroup() const;

  void save();
  /// Begins a group that is drawn where it lies.
  void beginGroup();
  /// Begins one on a layer of its own, to be laid down with the alpha.
  void beginLayer(double alpha);
  /// Ends the innermost save or group. Whether it was one with a layer, which then has been laid down.
  bool end();

  void transform(const AffineTransform& step);
  void clip(const Path& path);
  /// The part of a rectangle in pixels that the clips let show, if it is known to be a rectangle.
  std::optional<Rect> clipped(Rect pixels) const;
  /// Sets the colour with the alpha, and the blend mode.
  void setPaint(const Color& color) const;

 private:
  State stateOfGroup() const;

  cairo_t* _context;
  std::vector<State> _states{State()};
};

}  // namespace velmora
