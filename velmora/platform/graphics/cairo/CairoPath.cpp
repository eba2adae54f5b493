#include <velmora/platform/graphics/cairo/CairoPath.h>

#include <cmath>
#include <memory>

#include <velmora/platform/graphics/cairo/CairoHandles.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

struct Appender {
  cairo_t* context;

  void operator()(const Path::Move& move) const { cairo_move_to(context, move.to.x, move.to.y); }
  void operator()(const Path::Line& line) const { cairo_line_to(context, line.to.x, line.to.y); }
  void operator()(const Path::Curve& curve) const {
    cairo_curve_to(context, curve.control1.x, curve.control1.y, curve.control2.x, curve.control2.y,
                   curve.to.x, curve.to.y);
  }
  void operator()(const Path::Close&) const { cairo_close_path(context); }
};

struct IsFinite {
  static bool of(Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

  bool operator()(const Path::Move& move) const { return of(move.to); }
  bool operator()(const Path::Line& line) const { return of(line.to); }
  bool operator()(const Path::Curve& curve) const {
    return of(curve.control1) && of(curve.control2) && of(curve.to);
  }
  bool operator()(const Path::Close&) const { return true; }
};

}  // namespace

void setPath(cairo_t* context, const Path& path) {
  cairo_new_path(context);
  const std::vector<Path::Element> elements = path.elements();
  for (const Path::Element& element : elements) {
    if (!std::visit(IsFinite(), element)) return;
  }
  for (const Path::Element& element : elements) std::visit(Appender{context}, element);
}

OutlineInPixels outlineInPixels(cairo_t* context, const Path& path) {
  setPath(context, path);
  cairo_matrix_t frame;
  cairo_get_matrix(context, &frame);
  cairo_identity_matrix(context);
  const std::unique_ptr<cairo_path_t, CairoDeleter> outline(cairo_copy_path(context));
  cairo_set_matrix(context, &frame);
  cairo_new_path(context);
  return {outline->data, outline->data + outline->num_data};
}

}  // namespace velmora
