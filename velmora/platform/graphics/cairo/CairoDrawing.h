#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>
#include <velmora/platform/graphics/cairo/CairoText.h>
#include <velmora/platform/graphics/cairo/ShapeKey.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The state behind a CairoCanvas: the context, what Cairo does not keep itself, and where paint already
/// lies.
class [[gnu::visibility("hidden")]] CairoCanvas::Drawing {
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

  Drawing(PictureFormat format, Size size, double scale, Color background);
  ~Drawing();
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;

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

  void transform(const AffineTransform& step);
  /// The frame that the step leads to from the current one; none if it has no area or is not finite.
  std::optional<cairo_matrix_t> frameAfter(const AffineTransform& step) const;
  void clip(const Path& path);
  void fill(const Path& path);
  void stroke(const Path& path);
  void clear(const Path& path);
  /// The run is part of the line with the serial.
  void drawGlyphs(const GlyphRun& run, std::uint64_t lineSerial);
  void drawImage(const Image& image, const Rect& rect);

  /// To be asked before anything else is drawn: whether it shows.
  bool isReady();
  /// Sets colour, alpha and blend mode.
  void setPaint(const Color& color);
  /// Notes that something was drawn within the rectangle of the current frame.
  void notePaint(const Rect& rect) { _layers.back().push_back({visiblePixels(rect), {}, {}}); }

  void noteUncovered(const std::set<std::string>& characters) {
    _uncovered.insert(characters.begin(), characters.end());
  }
  const std::set<std::string>& uncovered() const { return _uncovered; }

 private:
  struct Paint {
    Rect box;     ///< in pixels, holds all of it
    Rect filled;  ///< the part that is filled with one opaque colour, as far as is known
    Color color;
  };
  using Layer = std::vector<Paint>;

  /// What covers pixels: a figure, glyphs or an image.
  struct Shape {
    ShapeKey key;  ///< all that tells it from others of its outline, frame and clips
    std::optional<OutlineInPixels> outline;  ///< of a figure
    Rect box;                                ///< holds all of it
    cairo_content_t content;     ///< with colours of its own, or to be drawn with the paint that is set
    std::function<void()> draw;  ///< onto the context
  };

  void popState();
  void cover(const Path& path, const Rect& box);
  bool isWorthKeeping(const Path& path) const;
  /// Draws without keeping the pixels.
  void drawOnce(const Rect& box, const std::function<void()>& draw);
  /// Draws by way of pixels in a picture that has none.
  void drawOverlay(const Rect& box, const std::function<void()>& draw);
  void place(const Shape& shape);
  ShapeKey keyInPlace(const Shape& shape, const Rect& pixels) const;
  CairoSurface makePixels(const Shape& shape, const Rect& pixels);
  void layDown(cairo_surface_t * pixels, cairo_content_t content, Point topLeft);
  /// The whole pixels that the rectangle of the current frame touches.
  Rect inPixels(const Rect& rect) const;
  /// Those that the clip lets show, or a rectangle around them.
  Rect visiblePixels() const;
  Rect visiblePixels(const Rect& rect) const { return visiblePixels().intersection(inPixels(rect)); }
  bool isPainted(const Rect& pixels) const;
  /// Notes of the last paint that it filled the path with the opaque colour.
  void noteFilled(const Path& path);
  /// What a hole in the layer shows, if that is one opaque colour.
  std::optional<Color> colorBelow(const Rect& pixels) const;
  void finishPendingClear();

  CairoSurface _surface;
  CairoContext _context;
  std::vector<State> _states{State()};
  std::vector<Layer> _layers{Layer()};
  std::optional<Path> _pendingClear;  ///< waits to see whether the same path covers it at once
  std::set<std::string> _uncovered;
};

}  // namespace velmora
