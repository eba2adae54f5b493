// Any text as a visual format: what is read can be written out and read back, gives the constraints it says,
// and places views at finite places.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <velmora/platform/ui/LayoutConstraint.h>
#include <velmora/platform/ui/View.h>
#include <velmora/platform/ui/VisualFormat.h>

namespace velmora {
namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

std::string gapText(double points) { return "-" + std::to_string(static_cast<unsigned>(points)) + "-"; }

std::string written(const VisualFormat& format) {
  std::string text = format.isVertical ? "V:" : "H:";
  if (format.leadingPin) text += "|" + gapText(*format.leadingPin);
  for (std::size_t i = 0; i < format.views.size(); ++i) {
    if (i > 0) text += gapText(format.gaps[i - 1]);
    text += "[" + format.views[i] + "]";
  }
  if (format.trailingPin) text += gapText(*format.trailingPin) + "|";
  return text;
}

void checkReading(std::string_view text, const VisualFormat& format) {
  require(!format.views.empty());
  require(format.gaps.size() + 1 == format.views.size());
  std::string again = written(format);
  const auto reread = VisualFormat::parse(again);
  require(reread.has_value());
  require(written(*reread) == again);
  require(text.find(format.views.front()) != std::string_view::npos);
}

std::size_t countOf(const VisualFormat& format) {
  const std::size_t neighbours = format.gaps.size();
  return neighbours * (format.isVertical ? 1 : 2) + (format.leadingPin ? 1 : 0) +
         (format.trailingPin ? 1 : 0);
}

bool isFinite(Rect rect) {
  return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.width) &&
         std::isfinite(rect.height);
}

void checkLayout(std::string_view text, const std::optional<VisualFormat>& format) {
  const auto root = std::make_shared<View>();
  root->setFrame({0, 0, 320, 480});
  const auto a = std::make_shared<View>();
  const auto b = std::make_shared<View>();
  root->addSubview(a);
  root->addSubview(b);
  const auto constraints = LayoutConstraint::constraintsWithVisualFormat(
      text, LayoutFormatOptions::alignAllTop, {{"a", a.get()}, {"b", b.get()}});
  require(constraints.empty() || (format && constraints.size() == countOf(*format)));
  LayoutConstraint::activate(constraints);
  root->layoutSubviews();
  require(isFinite(a->frame()) && isFinite(b->frame()));
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto format = velmora::VisualFormat::parse(text);
  if (format) velmora::checkReading(text, *format);
  velmora::checkLayout(text, format);
  return 0;
}
