#pragma once

#include <optional>
#include <variant>
#include <vector>

#include <velmora/platform/graphics/Geometry.h>

namespace velmora {

/// Which corners of a rectangle are rounded, as bits of a mask.
struct Corners {
  /// One bit a corner.
  static constexpr unsigned topLeft = 1;
  static constexpr unsigned topRight = 2;
  static constexpr unsigned bottomLeft = 4;
  static constexpr unsigned bottomRight = 8;
  static constexpr unsigned all = 15;
};

/// An outline to fill, stroke or clip to (non-zero winding). It keeps the figures it was made of and spells
/// them out as lines and Bézier curves on request. Zero and negative sizes are taken by their absolute value.
class Path {
 public:
  /// Begins a figure at the point.
  struct Move {
    /// Where it goes.
    Point to;
    friend bool operator==(const Move&, const Move&) = default;
  };
  /// A straight line to the point.
  struct Line {
    /// Where it goes.
    Point to;
    friend bool operator==(const Line&, const Line&) = default;
  };
  /// A cubic Bézier curve.
  struct Curve {
    /// Its control points and its end.
    Point control1;
    Point control2;
    Point to;
    friend bool operator==(const Curve&, const Curve&) = default;
  };
  /// A straight line back to where the figure began.
  struct Close {
    friend bool operator==(const Close&, const Close&) = default;
  };
  /// See addRect.
  struct Rectangle {
    /// Its edges.
    Rect rect;
    friend bool operator==(const Rectangle&, const Rectangle&) = default;
  };
  /// See addEllipse.
  struct Ellipse {
    /// The edges it touches.
    Rect rect;
    friend bool operator==(const Ellipse&, const Ellipse&) = default;
  };
  /// See addRoundedRect.
  struct RoundedRectangle {
    /// Its edges, the mask of rounded corners and their radii.
    Rect rect;
    unsigned corners;
    Size radii;
    friend bool operator==(const RoundedRectangle&, const RoundedRectangle&) = default;
  };
  /// See addArc.
  struct Arc {
    /// As addArc takes them.
    Point center;
    double radius;
    double startAngle;
    double endAngle;
    bool clockwise;
    friend bool operator==(const Arc&, const Arc&) = default;
  };

  /// What a path is spelt out in, and what it is made of.
  using Element = std::variant<Move, Line, Curve, Close>;
  using Figure = std::variant<Move, Line, Curve, Close, Rectangle, Ellipse, RoundedRectangle, Arc>;

  /// Paths of one figure.
  static Path rect(Rect rect);
  static Path ellipse(Rect rect);
  static Path arc(Point center, double radius, double startAngle, double endAngle, bool clockwise);
  static Path roundedRect(Rect rect, double radius);
  static Path roundedRect(Rect rect, unsigned corners, Size radii);

  /// Adds a step to the figure begun last.
  void moveTo(Point point) { _figures.emplace_back(Move{point}); }
  void lineTo(Point point) { _figures.emplace_back(Line{point}); }
  void curveTo(Point control1, Point control2, Point point) {
    _figures.emplace_back(Curve{control1, control2, point});
  }
  void close() { _figures.emplace_back(Close{}); }

  /// A closed rectangle.
  void addRect(Rect rect) { _figures.emplace_back(Rectangle{rect}); }

  /// The ellipse that touches the rectangle's four edges.
  void addEllipse(Rect rect) { _figures.emplace_back(Ellipse{rect}); }

  /// A part of a circle. Angles are in radians from the positive x axis, growing clockwise as seen; the arc
  /// runs clockwise or against it from the start angle to the end angle, at most once around. A line joins it
  /// to the open figure before it, if there is one.
  void addArc(Point center, double radius, double startAngle, double endAngle, bool clockwise) {
    _figures.emplace_back(Arc{center, radius, startAngle, endAngle, clockwise});
  }

  /// All corners rounded with a radius of at most half the shorter side.
  void addRoundedRect(Rect rect, double radius);

  /// The corners of the mask rounded with separate radii along x and y, each at most half of its side.
  void addRoundedRect(Rect rect, unsigned corners, Size radii) {
    _figures.emplace_back(RoundedRectangle{rect, corners, radii});
  }

  /// Adds the other path's figures.
  void append(const Path& other);

  /// The figures as they were added.
  bool isEmpty() const { return _figures.empty(); }
  const std::vector<Figure>& figures() const { return _figures; }

  /// The figures spelt out in order.
  std::vector<Element> elements() const;

  /// The smallest rectangle that holds every point and control point; none for an empty path.
  std::optional<Rect> boundingBox() const;

  friend bool operator==(const Path&, const Path&) = default;

 private:
  std::vector<Figure> _figures;
};

}  // namespace velmora
