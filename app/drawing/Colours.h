#pragma once

#include <velmora/platform/graphics/Color.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora::app {

/// Whether dark letters are easier to read on the colour than light ones; of a colour that lets most through
/// nothing is known.
bool isLight(const Color& background);

/// Makes the default theme, which all texts of views are drawn with that have no other, readable on the
/// background for as long as it lives.
class ScopedColours {
 public:
  explicit ScopedColours(const Color& background);
  ~ScopedColours() { *VelmoraTheme::defaultTheme() = _former; }
  ScopedColours(const ScopedColours&) = delete;
  ScopedColours& operator=(const ScopedColours&) = delete;

 private:
  VelmoraTheme _former;
};

/// The colours of a title on the background.
struct TitleColours {
  Color date, place;
};
TitleColours titleColoursOn(const Color& background);

}  // namespace velmora::app
