#pragma once

#include <string>
#include <string_view>

namespace velmora {

enum class FontWeight { regular = 400, medium = 500, semibold = 600, bold = 700 };

/// A face asked for by family, size and weight. Which installed face is used is the text engine's choice.
struct Font {
  static constexpr double labelFontSize = 17;        ///< of labels, in points
  static constexpr double systemFontSize = 14;       ///< of standard text, in points
  static constexpr double smallSystemFontSize = 12;  ///< of small text, in points
  static constexpr double captionFontSize = 12;      ///< of captions, in points

  /// What is asked for.
  std::string family = "System";
  double size = systemFontSize;  ///< in points
  FontWeight weight = FontWeight::regular;

  /// The fonts of standard text and of captions.
  static Font systemFont(double size) { return {"System", size, FontWeight::regular}; }
  static Font boldSystemFont(double size) { return {"System", size, FontWeight::bold}; }
  static Font captionFont() { return systemFont(captionFontSize); }

  /// The font of a face's name, "Helvetica" or family and weight as in "AvenirNext-Medium". An unknown weight
  /// is regular.
  static Font named(std::string_view name, double size);

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace velmora
