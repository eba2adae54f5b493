#include <app/request/DrawingOptions.h>

#include <algorithm>
#include <string>

#include <app/request/DrawableView.h>
#include <app/text/Errors.h>
#include <app/text/TextTable.h>
#include <app/text/ValueTexts.h>

namespace velmora::app {
namespace {

// Bounds for what is written into messages; what a picture can have depends on its scale.
constexpr double longestSide = 1e6, largestScale = 1e6;

bool isWithin(double number, double limit) { return number > 0 && number <= limit; }

Size size(const std::string& text) {
  const auto times = text.find('x');
  const auto width = numberFromText(text.substr(0, times));
  const auto height = times == std::string::npos ? std::nullopt : numberFromText(text.substr(times + 1));
  if (!width || !height) throw BadInput("is not a size");
  if (!isWithin(*width, longestSide) || !isWithin(*height, longestSide)) throw BadInput("is out of range");
  return {*width, *height};
}

double scale(double number) {
  if (!isWithin(number, largestScale)) throw BadInput("is out of range");
  return number;
}

ThemeChoice theme(const std::string& text) {
  return oneOf<ThemeChoice>(text, {{"calendar", ThemeChoice::calendarTheme},
                                   {"default", ThemeChoice::defaultTheme},
                                   {"dark", ThemeChoice::dark},
                                   {"light", ThemeChoice::light}});
}

bool alignsWeekdays(const std::string& text) {
  return oneOf<bool>(text, {{"date", false}, {"weekday", true}});
}

Paper paper(const std::string& text) {
  return oneOf<Paper>(
      text, {{"A4", Paper::a4}, {"A3", Paper::a3}, {"letter", Paper::letter}, {"24x36", Paper::inches24x36}});
}

AlternateCalendarType calendar(const std::string& text) {
  return oneOf<AlternateCalendarType>(text, {{"hebrew", kHebrewCalendar},
                                             {"islamic", kIslamicUmmAlQuraCalendar},
                                             {"buddhist", kBuddhistCalendar},
                                             {"japanese", kJapaneseCalendar},
                                             {"chinese", kChineseCalendar},
                                             {"indian", kIndianCalendar}});
}

std::int64_t weekday(const std::string& text) {
  return oneOf<std::int64_t>(text, {{"sunday", 0},
                                    {"monday", 1},
                                    {"tuesday", 2},
                                    {"wednesday", 3},
                                    {"thursday", 4},
                                    {"friday", 5},
                                    {"saturday", 6}});
}

const DrawableView* view(const std::string& text) {
  const DrawableView* view = findView(text);
  if (!view) throw BadInput("is not known");
  return view;
}

double degreesOfTurn(double number) {
  if (!(number >= -360 && number <= 360)) throw BadInput("is out of range");
  return number;
}

std::string viewsThatTake(std::string_view option) {
  std::string names;
  for (const DrawableView& view : allViews()) {
    if (std::find(view.options.begin(), view.options.end(), option) != view.options.end())
      names += (names.empty() ? "" : " ") + std::string(view.name);
  }
  return names;
}

}  // namespace

std::vector<Option> drawingOptions() {
  using Switch = Option::Switch;
  using Number = Option::Number;
  using Text = Option::Text;
  using R = Request;
  using S = const std::string;
  return {
      {"view", "VIEW", "what to draw", viewNames(), Text([](R& r, S& v) { r.drawing.view = view(v); })},
      {.name = "output",
       .valueName = "FILE",
       .help = "file to write (-o): .png, .svg, .pdf or - (stdout)",
       .accepts = "",
       .read = Text([](R& r, S& v) { r.drawing.output = v; }),
       .letter = 'o'},
      {.name = "pictures",
       .valueName = "FOLDER",
       .help = "where lines may write pictures; without it they cannot",
       .accepts = "",
       .read = Text([](R& r, S& v) { r.drawing.folder = v; }),
       .onlyOnCommandLine = true},
      {"size", "WxH", "width and height in points (default: the view's own)",
       "width x height in points, such as 390x600, of 1 to 16384 pixels a side, 64 million at most",
       Text([](R& r, S& v) { r.drawing.size = size(v); })},
      {"scale", "NUMBER", "pixels per point of a PNG (default: 1)",
       "a number above 0 that leaves at most 16384 pixels a side, 64 million at most",
       Number([](R& r, double v) { r.drawing.scale = scale(v); })},
      {"background", "COLOR", acceptedColors, acceptedColors,
       Text([](R& r, S& v) { r.drawing.background = v; })},
      {"no-title", "", "leave out the date and the place above the view", "",
       Switch([](R& r) { r.drawing.hasTitle = false; })},
      {"rtl", "", "lay out from right to left, whatever the language is", "",
       Switch([](R& r) { r.drawing.isRightToLeft = true; })},
      {"tablet", "", "lay out as on a tablet", "", Switch([](R& r) { r.drawing.isTablet = true; })},
      {"theme", "NAME", "colours: calendar or default; of posters: dark or light",
       "calendar, default, dark or light", Text([](R& r, S& v) { r.drawing.theme = theme(v); })},
      {"paper", "NAME", "sheet of a poster: A4 (default), A3, letter or 24x36", "A4, A3, letter or 24x36",
       Text([](R& r, S& v) { r.drawing.paper = paper(v); })},
      {"landscape", "", "turn the sheet on its side: a month is a row", "",
       Switch([](R& r) { r.drawing.isLandscape = true; })},
      {"align", "NAME", "align the days of months by date (default) or weekday", "date or weekday",
       Text([](R& r, S& v) { r.drawing.alignsWeekdays = alignsWeekdays(v); })},
      {"tilt", "", "turn the disc as it is seen in the sky of the place", "",
       Switch([](R& r) { r.drawing.isTilted = true; })},
      {"picture", "", "draw the disc as the real picture of the Moon", "",
       Switch([](R& r) { r.drawing.hasPicture = true; })},
      {"calendar", "NAME", "also show the day of this calendar, in brackets",
       "hebrew, islamic, buddhist, japanese, chinese or indian",
       Text([](R& r, S& v) { r.drawing.calendar = calendar(v); })},
      {.name = "ics",
       .valueName = "FILE",
       .help = "name the days of this calendar file, such as holidays",
       .accepts = "",
       .read = Text([](R& r, S& v) { r.drawing.holidays = v; }),
       .onlyOnCommandLine = true},
      {"week-start", "DAY", "first weekday of the month (default: the locale's)",
       "sunday, monday, tuesday, wednesday, thursday, friday or saturday",
       Text([](R& r, S& v) { r.drawing.weekStartDay = weekday(v); })},
      {"hide-eclipses", "", "draw no rings around days with an eclipse", "",
       Switch([](R& r) { r.drawing.hidesEclipses = true; })},
      {"heading", "DEGREES", "direction you face, at the top (default: 0, north)",
       "-360 to 360 degrees, clockwise from north",
       Number([](R& r, double v) { r.drawing.heading = degreesOfTurn(v); })},
  };
}

const std::vector<std::string_view>& pictureOptions() {
  static const std::vector<std::string_view> names = {"output", "size", "scale", "rtl"};
  return names;
}

const std::vector<std::string_view>& viewOptions() {
  static const std::vector<std::string_view> names = {
      "theme", "paper",      "landscape",     "align", "tilt",    "picture",    "month",    "calendar",
      "ics",   "week-start", "hide-eclipses", "phase", "heading", "background", "no-title", "tablet"};
  return names;
}

std::string calendarNotes() { return "Calendars: " + std::string(findOption("calendar")->accepts) + "\n"; }

std::string viewNotes() {
  TextTable views({"Views", ""});
  for (const DrawableView& view : allViews())
    views.add({"  " + std::string(view.name), std::string(view.summary)});
  TextTable options({"Options of views", ""});
  for (const std::string_view option : viewOptions())
    options.add({"  --" + std::string(option), viewsThatTake(option)});
  return views.text(false) + "\n" + options.text(false) + "\n" + calendarNotes();
}

bool isOfOtherViews(std::string_view option, const DrawableView& view) {
  const auto holds = [&](const auto& names) {
    return std::find(names.begin(), names.end(), option) != names.end();
  };
  return holds(viewOptions()) && !holds(view.options);
}

}  // namespace velmora::app
