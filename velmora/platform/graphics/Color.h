#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// A device RGB colour; components and alpha run from 0 to 1.
struct Color {
  /// Components, 0 to 1.
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  /// A grey level.
  static constexpr Color withWhite(double grey, double alpha) { return {grey, grey, grey, alpha}; }

  /// Colours by name.
  static constexpr Color white() { return {1, 1, 1, 1}; }
  static constexpr Color black() { return {0, 0, 0, 1}; }
  static constexpr Color clear() { return {0, 0, 0, 0}; }
  static constexpr Color purple() { return {0.5, 0, 0.5, 1}; }
  static constexpr Color orange() { return {1, 0.5, 0, 1}; }
  static constexpr Color cyan() { return {0, 1, 1, 1}; }
  static constexpr Color yellow() { return {1, 1, 0, 1}; }

  /// The colour of a text "#RRGGBB" or "#RRGGBBAA" in hexadecimal digits of either case; none for any other.
  static std::optional<Color> fromText(std::string_view text);

  /// The colour as "#RRGGBBAA", components outside 0 to 1 brought to the nearer end.
  std::string text() const;

  friend bool operator==(const Color&, const Color&) = default;
};

}  // namespace velmora
