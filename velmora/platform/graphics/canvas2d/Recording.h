#pragma once

#include <optional>
#include <vector>

#include <velmora/platform/graphics/canvas2d/Canvas2dCanvas.h>
#include <velmora/platform/graphics/canvas2d/Operations.h>
#include <velmora/platform/graphics/canvas2d/Squares.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The state of a drawing that is written down: what the page is told and when, and which groups need a
/// layer.
class Canvas2dCanvas::Recording {
 public:
  struct Style {
    Color fill = Color::black(), stroke = Color::black();
    double lineWidth = 1, alpha = 1;
    BlendMode blendMode = BlendMode::normal;
  };
  struct State {
    enum class Kind { base, save, group };
    Kind kind = Kind::base;
    std::size_t beginsAt = 0;         ///< in the operations, its first number
    std::size_t paintingsBefore = 0;  ///< how often was painted until then
    Style style;                      ///< as it was set
    Style told;                       ///< as the page knows it
    AffineTransform frame;
    Rect clip;                 ///< holds all that may show, in pixels
    Fingerprint shape;         ///< of clips, dashes and fading groups around
    bool isCollapsed = false;  ///< the frame has no area: nothing shows
  };

  Recording(Size size, double scale);

  OperationList operations;
  Squares squares;

  State& state() { return _states.back(); }
  void save();
  void restore();
  void beginGroup(double alpha);
  void endGroup();
  /// Ends everything that is open.
  void endAll();

  void transform(const AffineTransform& step);
  void clip(const Path& path);
  void setLineDash(const std::vector<double>& lengths, double phase);
  void fill(const Path& path);
  void clear(const Path& path);
  void stroke(const Path& path);

  /// To be asked before anything is painted into the rectangle of the current frame, and told of it.
  bool isShown(const Rect& rect);
  /// Tells the page how to paint next.
  void tellFill();
  void tellStroke();
  void finishPendingClear();

 private:
  /// What is drawn between the beginning and the end of a group, or outside of all.
  struct Group {
    double alpha = 1;
    bool isOverPaint = false;   ///< something below it may show through
    bool reachesBelow = false;  ///< something in it clears or overlays
    std::vector<Rect> painted;  ///< in pixels
  };

  /// What is painted next, of whose operations the first comes now.
  struct Painting {
    Rect pixels;
    std::size_t beginsAt;
    Fingerprint fingerprint;
  };

  void push(State::Kind kind);
  void pop();
  void endLayer(const State& begun);
  void beginPainting(const Rect& pixels);
  void finishPainting();
  void tellCompositing();
  Rect inPixels(const Rect& rect) const;
  bool isOverPaint(const Rect& pixels) const;

  AffineTransform _pixelsOfPoints;
  std::vector<State> _states;
  std::vector<Group> _groups{Group()};
  std::optional<Painting> _painting;
  std::size_t _paintings = 0;
  std::optional<Path> _pendingClear;  ///< waits to see whether the same path covers it at once
};

}  // namespace velmora
