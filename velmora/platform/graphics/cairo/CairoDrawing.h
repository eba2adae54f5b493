#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>
#include <velmora/platform/graphics/cairo/CairoText.h>
#include <velmora/platform/graphics/cairo/DrawingStates.h>
#include <velmora/platform/graphics/cairo/PaintedLayers.h>
#include <velmora/platform/graphics/cairo/ShapeKey.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What a CairoCanvas draws with: the context, its states, where paint already lies, and from these how each
/// figure, text and image is drawn.
class [[gnu::visibility("hidden")]] CairoCanvas::Drawing {
 public:
  Drawing(PictureFormat format, Size size, double scale, Color background);
  /// On a host's context.
  Drawing(cairo_t * host, Size size);
  ~Drawing();
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;

  const std::optional<PictureFormat> format;  ///< none on a host's context
  const Size size;
  const Color background;

  /// Why nothing is drawn any more, if it is for the size.
  const std::optional<PictureError>& sizeError() const { return _sizeError; }
  DrawingStates::State& state() { return _states.current(); }
  cairo_t* context() const { return _context.get(); }
  cairo_surface_t* surface() const { return _surface.get(); }

  void save() { _states.save(); }
  void restore();
  void beginGroup(double alpha);
  void endGroup();
  /// Ends everything that is open.
  void endAll();

  void transform(const AffineTransform& step);
  void clip(const Path& path);
  void fill(const Path& path);
  void stroke(const Path& path);
  void clear(const Path& path);
  /// The run is part of the line, which is the text's.
  void drawGlyphs(const GlyphRun& run, const ShapedLine& line, const std::string& text);
  void drawImage(const Image& image, const Rect& rect);

  bool becamePixels() const { return _becamePixels; }

  /// To be asked before anything else is drawn: whether it shows.
  bool isReady();

  void noteUncovered(const std::set<std::string>& characters) {
    _uncovered.insert(characters.begin(), characters.end());
  }
  const std::set<std::string>& uncovered() const { return _uncovered; }

 private:
  void endState();
  /// Whether there is anything to clear along a line or a text. If so, the page of a vector picture becomes
  /// pixels.
  bool canClear(const Rect& box);
  void becomePixels();
  /// Counts pixels that a vector picture is made of; the picture is in error if they are too many.
  void addPixels(double count);
  void cover(const Path& path, const Rect& box);
  void drawFigure(const ShapeKey& key, const Path& path, const Rect& box, const std::function<void()>& draw);
  /// Draws without keeping the pixels.
  void drawOnce(const Rect& box, const std::function<void()>& draw);
  /// Draws as pixels in a picture that is made of shapes, such as an SVG.
  void drawOverlay(const Rect& box, const std::function<void()>& draw);
  void notePaint(const Rect& box);
  void finishPendingClear();

  std::optional<PictureError> _sizeError;
  CairoSurface _surface;  ///< none on a host's context
  CairoContext _context;
  bool _isVector;     ///< the surface records what is drawn, so that it cannot clear
  bool _keepsShapes;  ///< its pixels are like those of any other picture
  bool _becamePixels = false;
  double _pixelsOfVector = 0;
  DrawingStates _states;
  PaintedLayers _painted;
  std::optional<Path> _pendingClear;  ///< waits to see whether the same path covers it at once
  std::set<std::string> _uncovered;
};

}  // namespace velmora
