#include <velmora/platform/graphics/Path.h>

#include <cmath>
#include <numbers>

namespace velmora {
namespace {

constexpr double fullTurn = 2 * std::numbers::pi;
constexpr double quarterTurn = std::numbers::pi / 2;

/// Length of the control arms of a quarter circle of radius 1: 4/3 (√2 − 1).
constexpr double quarterArm = 0.55228474983079339840;

/// Spells figures out as lines and curves. Every closed figure runs clockwise as seen, so that overlapping
/// ones make a union.
class Outline {
 public:
  std::vector<Path::Element> elements;

  void operator()(const Path::Move& move) { moveTo(move.to); }
  void operator()(const Path::Line& line) { lineTo(line.to); }
  void operator()(const Path::Curve& curve) { curveTo(curve.control1, curve.control2, curve.to); }
  void operator()(const Path::Close&) { close(); }
  void operator()(const Path::Rectangle& figure);
  void operator()(const Path::Ellipse& figure);
  void operator()(const Path::RoundedRectangle& figure);
  void operator()(const Path::Arc& figure);

 private:
  void moveTo(Point point) {
    elements.emplace_back(Path::Move{point});
    _current = point;
    _isOpen = true;
  }
  void lineTo(Point point) {
    if (!_isOpen) return moveTo(point);
    elements.emplace_back(Path::Line{point});
    _current = point;
  }
  void curveTo(Point control1, Point control2, Point point) {
    if (!_isOpen) moveTo(control1);
    elements.emplace_back(Path::Curve{control1, control2, point});
    _current = point;
  }
  void close() {
    if (_isOpen) elements.emplace_back(Path::Close{});
    _isOpen = false;
  }

  /// A quarter of an ellipse around a corner: towards the corner first, then away from it. With a radius of
  /// 0 the corner is square.
  void roundCorner(Point corner, Point end) {
    const Point start = _current;
    if (start == corner || end == corner) {
      if (start != corner) lineTo(corner);
      if (end != corner) lineTo(end);
      return;
    }
    const auto towardsCorner = [&](Point from) {
      return Point{from.x + (corner.x - from.x) * quarterArm, from.y + (corner.y - from.y) * quarterArm};
    };
    curveTo(towardsCorner(start), towardsCorner(end), end);
  }

  Point _current;
  bool _isOpen = false;
};

void Outline::operator()(const Path::Rectangle& figure) {
  const Rect r = figure.rect;
  moveTo({r.minX(), r.minY()});
  lineTo({r.maxX(), r.minY()});
  lineTo({r.maxX(), r.maxY()});
  lineTo({r.minX(), r.maxY()});
  close();
}

void Outline::operator()(const Path::Ellipse& figure) {
  const Rect r = figure.rect;
  moveTo({r.maxX(), r.midY()});
  roundCorner({r.maxX(), r.maxY()}, {r.midX(), r.maxY()});
  roundCorner({r.minX(), r.maxY()}, {r.minX(), r.midY()});
  roundCorner({r.minX(), r.minY()}, {r.midX(), r.minY()});
  roundCorner({r.maxX(), r.minY()}, {r.maxX(), r.midY()});
  close();
}

void Outline::operator()(const Path::RoundedRectangle& figure) {
  const Rect r = figure.rect.standardised();
  const double rx = std::min(std::abs(figure.radii.width), r.width / 2);
  const double ry = std::min(std::abs(figure.radii.height), r.height / 2);
  const auto radii = [&](unsigned corner) { return (figure.corners & corner) != 0 ? Size{rx, ry} : Size{}; };
  const Size topLeft = radii(Corners::topLeft), topRight = radii(Corners::topRight);
  const Size bottomLeft = radii(Corners::bottomLeft), bottomRight = radii(Corners::bottomRight);
  moveTo({r.minX() + topLeft.width, r.minY()});
  lineTo({r.maxX() - topRight.width, r.minY()});
  roundCorner({r.maxX(), r.minY()}, {r.maxX(), r.minY() + topRight.height});
  lineTo({r.maxX(), r.maxY() - bottomRight.height});
  roundCorner({r.maxX(), r.maxY()}, {r.maxX() - bottomRight.width, r.maxY()});
  lineTo({r.minX() + bottomLeft.width, r.maxY()});
  roundCorner({r.minX(), r.maxY()}, {r.minX(), r.maxY() - bottomLeft.height});
  lineTo({r.minX(), r.minY() + topLeft.height});
  roundCorner({r.minX(), r.minY()}, {r.minX() + topLeft.width, r.minY()});
  close();
}

/// The angle from the start to the end in the arc's direction, at most a full turn.
double sweep(const Path::Arc& arc) {
  const double angle = arc.clockwise ? arc.endAngle - arc.startAngle : arc.startAngle - arc.endAngle;
  const double forward = angle < 0 ? std::fmod(angle, fullTurn) + fullTurn : std::min(angle, fullTurn);
  return arc.clockwise ? forward : -forward;
}

void Outline::operator()(const Path::Arc& figure) {
  const double whole = sweep(figure), radius = std::abs(figure.radius);
  if (!std::isfinite(whole)) return;
  const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(whole) / quarterTurn)));
  const double piece = whole / pieces;
  const double arm = 4.0 / 3.0 * std::tan(piece / 4) * radius;
  const auto onCircle = [&](double angle) {
    return figure.center + Point{radius * std::cos(angle), radius * std::sin(angle)};
  };
  const auto along = [&](double angle, double length) {
    return Point{-length * std::sin(angle), length * std::cos(angle)};
  };
  lineTo(onCircle(figure.startAngle));
  for (int i = 0; i < pieces; ++i) {
    const double from = figure.startAngle + piece * i, to = figure.startAngle + piece * (i + 1);
    curveTo(onCircle(from) + along(from, arm), onCircle(to) - along(to, arm), onCircle(to));
  }
}

/// Widens the box to hold each point it is given.
struct Bounds {
  std::optional<Rect> box;

  void include(Point point) {
    if (!box) {
      box = Rect{point.x, point.y, 0, 0};
      return;
    }
    const double left = std::min(box->x, point.x), top = std::min(box->y, point.y);
    box = Rect{left, top, std::max(box->maxX(), point.x) - left, std::max(box->maxY(), point.y) - top};
  }

  void operator()(const Path::Move& move) { include(move.to); }
  void operator()(const Path::Line& line) { include(line.to); }
  void operator()(const Path::Curve& curve) {
    include(curve.control1);
    include(curve.control2);
    include(curve.to);
  }
  void operator()(const Path::Close&) {}
};

}  // namespace

Path Path::rect(Rect rect) {
  Path path;
  path.addRect(rect);
  return path;
}

Path Path::ellipse(Rect rect) {
  Path path;
  path.addEllipse(rect);
  return path;
}

Path Path::arc(Point center, double radius, double startAngle, double endAngle, bool clockwise) {
  Path path;
  path.addArc(center, radius, startAngle, endAngle, clockwise);
  return path;
}

Path Path::roundedRect(Rect rect, double radius) {
  Path path;
  path.addRoundedRect(rect, radius);
  return path;
}

Path Path::roundedRect(Rect rect, unsigned corners, Size radii) {
  Path path;
  path.addRoundedRect(rect, corners, radii);
  return path;
}

void Path::addRoundedRect(Rect rect, double radius) {
  const double most = std::min(std::abs(rect.width), std::abs(rect.height)) / 2;
  const double used = std::min(std::abs(radius), most);
  addRoundedRect(rect, Corners::all, {used, used});
}

void Path::append(const Path& other) {
  const std::vector<Figure> added = other._figures;
  _figures.insert(_figures.end(), added.begin(), added.end());
}

std::vector<Path::Element> Path::elements() const {
  Outline outline;
  for (const Figure& figure : _figures) std::visit(outline, figure);
  return std::move(outline.elements);
}

std::optional<Rect> Path::boundingBox() const {
  Bounds bounds;
  for (const Element& element : elements()) std::visit(bounds, element);
  return bounds.box;
}

}  // namespace velmora
