// as-the-page-says: what the page on hosting shows beside its `main`, whose program is compiled in.
#define main mainOfThePage
#include "program.cpp"
#undef main

#include <cairo.h>

namespace {

constexpr Size size{390, 480};
constexpr double scale = 2;

std::vector<std::uint8_t> pixelsOf(Window& window) {
  CairoCanvas canvas(PictureFormat::png, size, scale);
  window.draw(canvas);
  return canvas.pixels();
}

/// The same from a Cairo context of a host's.
std::vector<std::uint8_t> paintedPixelsOf(Window& window) {
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 780, 960);
  cairo_t* context = cairo_create(surface);
  cairo_scale(context, scale, scale);
  paint(window, context);
  cairo_destroy(context);
  cairo_surface_flush(surface);
  const unsigned char* data = cairo_image_surface_get_data(surface);
  std::vector<std::uint8_t> pixels(data, data + std::size_t{780} * 960 * 4);
  for (std::size_t i = 0; i < pixels.size(); i += 4) std::swap(pixels[i], pixels[i + 2]);
  cairo_surface_destroy(surface);
  return pixels;
}

bool aContextGetsTheSamePixels() {
  MonthWindow window(size);
  return paintedPixelsOf(window) == pixelsOf(window);
}

bool anotherPlaceKeepsTheDay() {
  MoonPhaseData& moon = MoonPhaseData::sharedInstance();
  auto newYork = std::make_shared<GeoLocationData>();
  newYork->SetLocation(40.7, -74.0, "New York", "America/New_York", 0, false);
  goTo(newYork);
  const bool isSame = moon.currentDay() == 18 && moon.currentMonthData().at(2)->day == 17;  // the full moon
  goTo(helsinki());
  return isSame && moon.currentDay() == 18 && moon.currentMonthData().at(2)->day == 18;
}

bool anotherLanguageReachesTheEvents() {
  const auto time = [] { return MoonPhaseData::sharedInstance().currentMonthData().front()->time; };
  speak("ja_JP");
  const std::string japanese = time();
  speak("de_DE");
  return time() != japanese;
}

bool theLastDayEndsTheList() {
  MoonPhaseData::sharedInstance().changeSelectedDay(30, 9, 2024);
  RowsWindow rows(size);
  rows.showMonth();
  const Rect last = rows.elements().back().frame;
  return last.maxY() == size.height;
}

bool otherColoursLookAsFromTheStart() {
  MonthWindow month(size);
  RowsWindow rows(size);
  rows.showMonth();
  const auto former = pixelsOf(rows);
  for (const auto& theme : {VelmoraTheme::calendarTheme(), VelmoraTheme::defaultTheme()}) {
    theme->backgroundColor = Color::white();
    theme->defaultTextColor = theme->darkTextColor = theme->lightTextColor = Color::black();
  }
  followThemes(month, rows);
  MonthWindow newMonth(size);
  RowsWindow newRows(size);
  newRows.showMonth();
  return pixelsOf(rows) != former && pixelsOf(rows) == pixelsOf(newRows) &&
         pixelsOf(month) == pixelsOf(newMonth);
}

}  // namespace

int main() {
  setUp();
  goTo(helsinki());
  MoonPhaseData::sharedInstance().changeSelectedDay(18, 9, 2024);
  const struct {
    const char* name;
    bool (*holds)();
  } claims[] = {{"a context gets the same pixels", aContextGetsTheSamePixels},
                {"another place keeps the day", anotherPlaceKeepsTheDay},
                {"another language reaches the events", anotherLanguageReachesTheEvents},
                {"the last day ends the list", theLastDayEndsTheList},
                {"other colours look as from the start", otherColoursLookAsFromTheStart}};
  int failures = 0;
  for (const auto& claim : claims) {
    if (claim.holds()) continue;
    std::cerr << "does not hold: " << claim.name << '\n';
    ++failures;
  }
  return failures;
}
