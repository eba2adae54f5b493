#include <velmora/platform/graphics/cairo/DrawingStates.h>

#include <algorithm>

#include <velmora/platform/graphics/cairo/CairoFrame.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

cairo_operator_t cairoOperator(BlendMode mode) {
  switch (mode) {
    case BlendMode::overlay:
      return CAIRO_OPERATOR_OVERLAY;
    case BlendMode::clear:
      return CAIRO_OPERATOR_CLEAR;
    default:
      return CAIRO_OPERATOR_OVER;
  }
}

}  // namespace

bool DrawingStates::isInGroup() const {
  return std::any_of(_states.begin(), _states.end(),
                     [](const State& state) { return state.kind == State::Kind::group; });
}

void DrawingStates::save() {
  cairo_save(_context);
  _states.push_back(current());
  current().kind = State::Kind::save;
}

DrawingStates::State DrawingStates::stateOfGroup() const {
  State inside = current();
  inside.kind = State::Kind::group;
  inside.alpha = 1;
  inside.blendMode = BlendMode::normal;
  inside.layer.reset();
  return inside;
}

void DrawingStates::beginGroup() {
  cairo_save(_context);
  _states.push_back(stateOfGroup());
}

void DrawingStates::beginLayer(double alpha) {
  cairo_push_group(_context);
  cairo_reset_clip(_context);  // the clip applies when the layer is laid down
  _states.push_back(stateOfGroup());
  current().clip.reset();
  current().layer = alpha;
}

bool DrawingStates::end() {
  const std::optional<double> layer = current().kind == State::Kind::group ? current().layer : std::nullopt;
  _states.pop_back();
  if (layer) {
    cairo_pop_group_to_source(_context);
    cairo_set_operator(_context, CAIRO_OPERATOR_OVER);
    cairo_paint_with_alpha(_context, *layer);
  } else {
    cairo_restore(_context);
  }
  return layer.has_value();
}

void DrawingStates::transform(const AffineTransform& step) {
  if (const auto frame = frameAfter(_context, step)) {
    cairo_set_matrix(_context, &*frame);
  } else {
    current().isCollapsed = true;
  }
}

void DrawingStates::clip(const Path& path) {
  current().clip = std::make_shared<Clip>(
      Clip{outlineInPixels(_context, path), uprightRectangle(frameOf(_context), path), current().clip});
  setPath(_context, path);
  cairo_clip(_context);
}

std::optional<Rect> DrawingStates::clipped(Rect pixels) const {
  for (const Clip* clip = current().clip.get(); clip != nullptr; clip = clip->outer.get()) {
    if (!clip->rectangle) return std::nullopt;
    pixels = pixels.intersection(*clip->rectangle);
  }
  return pixels;
}

void DrawingStates::setPaint(const Color& color) const {
  cairo_set_source_rgba(_context, color.red, color.green, color.blue, color.alpha * current().alpha);
  cairo_set_operator(_context, cairoOperator(current().blendMode));
}

}  // namespace velmora
