#include <emscripten.h>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include <velmora/Version.h>
#include <velmora/cities/CityTable.h>
#include <velmora/platform/graphics/canvas2d/Canvas2dCanvas.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/system/browser/HandedFiles.h>
#include <web/host/CityAnswers.h>
#include <web/host/Colors.h>
#include <web/host/HostedView.h>
#include <web/host/Json.h>
#include <web/host/Session.h>
#include <web/host/SkyAnswers.h>

// What the page calls; web/src/module/ is the other side. Texts are UTF-8. What is answered holds until the
// next call; null stands for none.

using namespace velmora;
using namespace velmora::web;

namespace {

using Views = std::map<int, std::unique_ptr<HostedView>>;

Views& views() {
  static Views all;
  return all;
}

HostedView& view(int number) { return *views().at(number); }

const char* answered(std::optional<std::string> text) {
  static std::string kept;
  if (!text) return nullptr;
  kept = *std::move(text);
  return kept.c_str();
}

Date dateOf(int year, int month, int day) {
  return Date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
              std::chrono::day(static_cast<unsigned>(day)));
}

std::string jsonOf(Date date) {
  return JsonObject()
      .with("year", static_cast<double>(static_cast<int>(date.year())))
      .with("month", static_cast<double>(static_cast<unsigned>(date.month())))
      .with("day", static_cast<double>(static_cast<unsigned>(date.day())))
      .text();
}

std::string jsonOf(const HostedElement& hosted) {
  const AccessibilityElement& element = hosted.element;
  std::vector<std::string> actions;
  for (const auto& action : element.customActions) actions.push_back(json(std::string_view(action->name())));
  JsonObject object;
  object
      .add("frame", JsonObject()
                        .with("x", element.frame.minX())
                        .with("y", element.frame.minY())
                        .with("width", element.frame.maxX() - element.frame.minX())
                        .with("height", element.frame.maxY() - element.frame.minY())
                        .text())
      .with("label", std::string_view(element.label))
      .with("value", std::string_view(element.value))
      .with("hint", std::string_view(element.hint))
      .with("isButton", element.traits == AccessibilityTraits::button)
      .add("actions", jsonArray(actions));
  if (hosted.day) object.add("day", jsonOf(*hosted.day));
  return object.text();
}

std::unique_ptr<Canvas2dCanvas>& lastCanvas() {
  static std::unique_ptr<Canvas2dCanvas> canvas;
  return canvas;
}

/// What of a drawing on a canvas of that size shows within the rectangle, until the next drawing.
const double* recorded(Size size, double scale, const Rect& within, std::size_t* count,
                       const std::function<void(Canvas&)>& draw) {
  auto& canvas = lastCanvas();
  canvas = std::make_unique<Canvas2dCanvas>(size, scale);
  canvas->save();
  canvas->clip(Path::rect(within));
  draw(*canvas);
  canvas->restore();
  const std::vector<double>& operations = canvas->operations();
  *count = operations.size();
  return operations.data();
}

/// Tells the views when a call has moved the day.
class DayWatch {
 public:
  ~DayWatch() {
    if (Session::shared().day() == _before) return;
    for (const auto& [number, hosted] : views()) hosted->dayChanged();
  }

 private:
  Date _before = Session::shared().day();
};

}  // namespace

extern "C" {

EMSCRIPTEN_KEEPALIVE const char* velmora_web_version() { return VelmoraVersionString; }

EMSCRIPTEN_KEEPALIVE void velmora_web_configure(const char* locale, int uses24Hours, int weekStart,
                                                int secondCalendar, int isLight, int isTablet) {
  Session::shared().configure({.locale = locale,
                               .uses24Hours = uses24Hours != 0,
                               .weekStart = weekStart,
                               .secondCalendar = secondCalendar,
                               .isLight = isLight != 0,
                               .isTablet = isTablet != 0});
}

/// Whether place and day could be selected.
EMSCRIPTEN_KEEPALIVE int velmora_web_select(double latitude, double longitude, const char* name,
                                            const char* zone, int year, int month, int day) {
  return Session::shared().select(latitude, longitude, name, zone, dateOf(year, month, day));
}

EMSCRIPTEN_KEEPALIVE int velmora_web_select_day(int year, int month, int day) {
  const DayWatch watch;
  return Session::shared().selectDay(dateOf(year, month, day));
}

EMSCRIPTEN_KEEPALIVE const char* velmora_web_day() { return answered(jsonOf(Session::shared().day())); }
EMSCRIPTEN_KEEPALIVE const char* velmora_web_today() { return answered(jsonOf(Session::shared().today())); }

EMSCRIPTEN_KEEPALIVE const char* velmora_web_take_announcements() {
  std::vector<std::string> sentences;
  for (const std::string& sentence : Session::shared().takeAnnouncements()) {
    sentences.push_back(json(std::string_view(sentence)));
  }
  return answered(jsonArray(sentences));
}

EMSCRIPTEN_KEEPALIVE void velmora_web_hand_over(const char* path, const char* bytes, std::size_t size) {
  HandedFiles::handOver(path, std::string(bytes, size));
}

EMSCRIPTEN_KEEPALIVE const char* velmora_web_sky_of_day(int year, int month, int day) {
  return answered(skyOfDay(dateOf(year, month, day)));
}
EMSCRIPTEN_KEEPALIVE const char* velmora_web_moment(double at) {
  return answered(momentInTheSky(instantAt(at)));
}
EMSCRIPTEN_KEEPALIVE const char* velmora_web_track(int body, const double* instants, std::size_t count) {
  return answered(track(static_cast<almanac::Body>(body), {instants, count}));
}
EMSCRIPTEN_KEEPALIVE const char* velmora_web_next_phases(double after) {
  return answered(nextPhases(instantAt(after)));
}
EMSCRIPTEN_KEEPALIVE const char* velmora_web_phases(double from, double to) {
  return answered(phasesBetween(instantAt(from), instantAt(to)));
}
EMSCRIPTEN_KEEPALIVE const char* velmora_web_next_eclipses(double after, int count) {
  return answered(nextEclipses(instantAt(after), static_cast<std::size_t>(count)));
}
EMSCRIPTEN_KEEPALIVE const char* velmora_web_calendar_day(int year, int month, int day) {
  return answered(calendarDay(dateOf(year, month, day)));
}

EMSCRIPTEN_KEEPALIVE const char* velmora_web_words(const char* english) { return answered(words(english)); }
EMSCRIPTEN_KEEPALIVE const char* velmora_web_words_for_count(const char* english, double count) {
  return answered(wordsForCount(english, static_cast<std::int64_t>(count)));
}

EMSCRIPTEN_KEEPALIVE void velmora_web_take_cities(const char* bytes, std::size_t size) {
  takeCities(std::string(bytes, size));
}
EMSCRIPTEN_KEEPALIVE const char* velmora_web_cities(const char* prefix, int limit) {
  return answered(citiesNamed(prefix, static_cast<std::size_t>(limit)));
}
EMSCRIPTEN_KEEPALIVE const char* velmora_web_city_near(double latitude, double longitude) {
  return answered(cityNear(latitude, longitude));
}

EMSCRIPTEN_KEEPALIVE const char* velmora_web_background() { return answered(backgroundOfPage().text()); }

EMSCRIPTEN_KEEPALIVE int velmora_web_open_view(const char* kind) {
  static int last = 0;
  auto made = HostedView::named(kind);
  if (!made) return 0;
  views().emplace(++last, std::move(made));
  return last;
}
EMSCRIPTEN_KEEPALIVE void velmora_web_close_view(int number) { views().erase(number); }

EMSCRIPTEN_KEEPALIVE void velmora_web_resize_view(int number, double width, double height, double scale) {
  view(number).resize({width, height}, scale);
}

/// `at` is NaN for none.
EMSCRIPTEN_KEEPALIVE void velmora_web_set_options(int number, int showsNewMoons, double at, double heading,
                                                  int isTilted, int hidesEclipses) {
  view(number).setOptions({.showsNewMoons = showsNewMoons != 0,
                           .at = at == at ? std::optional(instantAt(at)) : std::nullopt,
                           .heading = heading,
                           .isTilted = isTilted != 0,
                           .hidesEclipses = hidesEclipses != 0});
}

EMSCRIPTEN_KEEPALIVE double velmora_web_view_width(int number) { return view(number).size().width; }
EMSCRIPTEN_KEEPALIVE double velmora_web_view_height(int number) { return view(number).size().height; }
EMSCRIPTEN_KEEPALIVE int velmora_web_needs_display(int number) { return view(number).needsDisplay(); }
EMSCRIPTEN_KEEPALIVE double velmora_web_scroll_offset(int number) { return view(number).scrollOffset(); }
EMSCRIPTEN_KEEPALIVE const char* velmora_web_view_background(int number) {
  return answered(view(number).background().text());
}

EMSCRIPTEN_KEEPALIVE const char* velmora_web_pictures(int number) {
  std::vector<std::string> files;
  for (const std::string& file : view(number).pictures()) files.push_back(json(std::string_view(file)));
  return answered(jsonArray(files));
}

/// Draws the view with that many pixels a point; answers the operations' address and puts their count into
/// `count`.
EMSCRIPTEN_KEEPALIVE const double* velmora_web_draw(int number, double scale, std::size_t* count) {
  HostedView& drawn = view(number);
  const Size size = drawn.size();
  return recorded(size, scale, {0, 0, size.width, size.height}, count,
                  [&](Canvas& canvas) { drawn.render(canvas); });
}

/// The same of what shows within a rectangle, in points.
EMSCRIPTEN_KEEPALIVE const double* velmora_web_draw_within(int number, double scale, double x, double y,
                                                           double width, double height, std::size_t* count) {
  HostedView& drawn = view(number);
  return recorded(drawn.size(), scale, {x, y, width, height}, count,
                  [&](Canvas& canvas) { drawn.render(canvas); });
}

/// What the last drawing shows in each of its squares: see `Canvas2dCanvas::squares`.
EMSCRIPTEN_KEEPALIVE const double* velmora_web_squares(std::size_t* count) {
  static std::vector<double> squares;
  squares = lastCanvas()->squares();
  *count = squares.size();
  return squares.data();
}

EMSCRIPTEN_KEEPALIVE int velmora_web_part_count(int number) {
  return static_cast<int>(view(number).partCount());
}

EMSCRIPTEN_KEEPALIVE int velmora_web_part_needs_display(int number, int part) {
  return view(number).partNeedsDisplay(static_cast<std::size_t>(part));
}

/// The same of a part alone.
EMSCRIPTEN_KEEPALIVE const double* velmora_web_draw_part(int number, int part, double scale,
                                                         std::size_t* count) {
  HostedView& drawn = view(number);
  const Size whole = drawn.size();
  const Size size = {whole.width, whole.height / static_cast<double>(drawn.partCount())};
  return recorded(size, scale, {0, 0, size.width, size.height}, count,
                  [&](Canvas& canvas) { drawn.renderPart(canvas, static_cast<std::size_t>(part)); });
}

EMSCRIPTEN_KEEPALIVE void velmora_web_touch_began(int number, double x, double y) {
  const DayWatch watch;
  view(number).touchBegan({x, y});
}
EMSCRIPTEN_KEEPALIVE void velmora_web_touch_moved(int number, double x, double y) {
  const DayWatch watch;
  view(number).touchMoved({x, y});
}
EMSCRIPTEN_KEEPALIVE void velmora_web_touch_ended(int number, double x, double y) {
  const DayWatch watch;
  view(number).touchEnded({x, y});
}
EMSCRIPTEN_KEEPALIVE void velmora_web_touch_cancelled(int number) { view(number).touchCancelled(); }

EMSCRIPTEN_KEEPALIVE const char* velmora_web_elements(int number) {
  std::vector<std::string> values;
  for (const HostedElement& element : view(number).elements()) values.push_back(jsonOf(element));
  return answered(jsonArray(values));
}
EMSCRIPTEN_KEEPALIVE double velmora_web_edition_of_elements(int number) {
  return static_cast<double>(view(number).editionOfElements());
}
EMSCRIPTEN_KEEPALIVE void velmora_web_perform(int number, int element, int action) {
  const DayWatch watch;
  view(number).perform(static_cast<std::size_t>(element), static_cast<std::size_t>(action));
}

}  // extern "C"
