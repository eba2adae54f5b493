#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The state behind a CairoCanvas: the context, what Cairo does not keep itself, and where paint already
/// lies.
class [[gnu::visibility("hidden")]] CairoCanvas::Drawing {
 public:
  struct State {
    enum class Kind { base, save, group };
    Kind kind = Kind::base;
    Color stroke = Color::black();
    Color fill = Color::black();
    double alpha = 1;
    BlendMode blendMode = BlendMode::normal;
    bool isCollapsed = false;     ///< the frame has no area: nothing shows
    std::optional<double> layer;  ///< the alpha of a group's own layer
  };

  Drawing(PictureFormat format, Size size, double scale, Color background);

  const PictureFormat format;
  const Size size;
  const Color background;
  const std::optional<PictureError> sizeError;

  State& state() { return _states.back(); }
  cairo_t* context() const { return _context.get(); }
  cairo_surface_t* surface() const { return _surface.get(); }

  void save();
  void restore();
  void beginGroup(double alpha);
  void endGroup();
  /// Ends everything that is open.
  void endAll();

  void transform(const AffineTransform& transform);
  void clip(const Path& path);
  void fill(const Path& path);
  void clear(const Path& path);

  /// To be asked before anything else is drawn: whether it shows.
  bool isReady();
  /// Sets colour, alpha and blend mode.
  void setPaint(const Color& color);
  /// Notes that something was drawn within the rectangle of the current frame.
  void notePaint(const Rect& rect) { _layers.back().push_back(inPixels(rect)); }

  void noteUncovered(const std::set<std::string>& characters) {
    _uncovered.insert(characters.begin(), characters.end());
  }
  const std::set<std::string>& uncovered() const { return _uncovered; }

 private:
  using PaintedRects = std::vector<Rect>;  ///< in pixels

  void popState();
  Rect inPixels(const Rect& rect) const;
  bool isPainted(const Rect& rect) const;
  void finishPendingClear();

  CairoSurface _surface;
  CairoContext _context;
  std::vector<State> _states{State()};
  std::vector<PaintedRects> _layers{PaintedRects()};
  std::optional<Path> _pendingClear;  ///< waits to see whether the same path covers it at once
  std::set<std::string> _uncovered;
};

}  // namespace velmora
