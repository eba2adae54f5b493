#include <velmora/posters/Palette.h>

#include <algorithm>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

Color hex(const char* text) { return Color::fromText(text).value(); }

Palette darkPalette() {
  return {.paper = hex("#10131C"),
          .ink = hex("#F3EFE4"),
          .quiet = hex("#9AA1B2"),
          .line = hex("#333A4C"),
          .accent = hex("#F2B84B"),
          .sun = hex("#E08A12"),
          .moonLit = hex("#F3EFE4"),
          .moonDark = hex("#272D3D"),
          .moonRim = hex("#4A5268"),
          .daylight = hex("#E3D3AB"),
          .civil = hex("#9FA9BE"),
          .nautical = hex("#66779A"),
          .astronomical = hex("#3B4B70"),
          .night = hex("#182037"),
          .moonlight = hex("#BFD0F0")};
}

Palette lightPalette() {
  return {.paper = hex("#FDFBF6"),
          .ink = hex("#1B2135"),
          .quiet = hex("#666D80"),
          .line = hex("#D6D3CA"),
          .accent = hex("#B4530A"),
          .sun = hex("#D98A00"),
          .moonLit = hex("#FFFDF5"),
          .moonDark = hex("#2B3350"),
          .moonRim = hex("#2B3350"),
          .daylight = hex("#F6EBCB"),
          .civil = hex("#BFC8D9"),
          .nautical = hex("#8796B5"),
          .astronomical = hex("#51628C"),
          .night = hex("#1F2947"),
          .moonlight = hex("#C9D7F2")};
}

}  // namespace

const Palette& Palette::of(PaperTheme theme) {
  static const Palette dark = darkPalette(), light = lightPalette();
  return theme == PaperTheme::dark ? dark : light;
}

const Color& Palette::sky(Daypart part) const {
  switch (part) {
    case Daypart::daylight:
      return daylight;
    case Daypart::civil:
      return civil;
    case Daypart::nautical:
      return nautical;
    case Daypart::astronomical:
      return astronomical;
    case Daypart::night:
      break;
  }
  return night;
}

Color mixed(const Color& from, const Color& to, double share) {
  const auto between = [&](double a, double b) { return a + (b - a) * share; };
  return {between(from.red, to.red), between(from.green, to.green), between(from.blue, to.blue),
          between(from.alpha, to.alpha)};
}

Daypart daypartAt(double sunAltitude) {
  const auto passed = std::count_if(std::begin(daypartLimits), std::end(daypartLimits),
                                    [&](double limit) { return sunAltitude < limit; });
  return static_cast<Daypart>(passed);
}

}  // namespace velmora
