#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace [[gnu::visibility("hidden")]] velmora {

/// What a visual format says, see LayoutConstraint::constraintsWithVisualFormat.
struct VisualFormat {
  bool isVertical = false;
  std::optional<double> leadingPin;   ///< points from the superview's leading edge to the first view
  std::vector<std::string> views;     ///< at least one
  std::vector<double> gaps;           ///< points between neighbours, one fewer than views
  std::optional<double> trailingPin;  ///< points from the last view to the superview's trailing edge

  /// Reads a format; none where it is malformed.
  static std::optional<VisualFormat> parse(std::string_view format);
};

}  // namespace velmora
