#include <velmora/platform/graphics/canvas2d/Operations.h>

#include <algorithm>
#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

double level(double component) { return std::round(std::clamp(component, 0.0, 1.0) * 255); }

}  // namespace

void OperationList::add(Operation operation, std::initializer_list<double> numbers) {
  _numbers.push_back(static_cast<double>(operation));
  _numbers.insert(_numbers.end(), numbers);
}

void OperationList::append(const std::vector<double>& numbers) {
  _numbers.insert(_numbers.end(), numbers.begin(), numbers.end());
}

void OperationList::add(Operation operation, const Color& color) {
  add(operation, {(level(color.red) * 256 + level(color.green)) * 256 + level(color.blue), color.alpha});
}

void OperationList::add(Operation operation, const Path& path) {
  const std::vector<Path::Element> elements = path.elements();
  add(operation, {static_cast<double>(elements.size())});
  const auto begin = [this](OutlineStep step) { _numbers.push_back(static_cast<double>(step)); };
  for (const Path::Element& element : elements) {
    if (const auto* move = std::get_if<Path::Move>(&element)) {
      begin(OutlineStep::move);
      append(move->to);
    } else if (const auto* line = std::get_if<Path::Line>(&element)) {
      begin(OutlineStep::line);
      append(line->to);
    } else if (const auto* curve = std::get_if<Path::Curve>(&element)) {
      begin(OutlineStep::curve);
      append(curve->control1);
      append(curve->control2);
      append(curve->to);
    } else {
      begin(OutlineStep::close);
    }
  }
}

}  // namespace velmora
