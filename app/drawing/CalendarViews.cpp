#include <app/drawing/CalendarViews.h>

#include <algorithm>
#include <utility>

#include <app/answers/Days.h>
#include <app/answers/ShippedData.h>
#include <app/drawing/Hosting.h>
#include <app/drawing/RiseSetWidth.h>
#include <app/text/Errors.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/posters/SkyDisc.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonPhaseIconView.h>
#include <velmora/views/MoonPhaseYearView.h>
#include <velmora/views/MoonRiseSetDayView.h>
#include <velmora/views/MoonRiseSetMonthView.h>
#include <velmora/views/UIControls.h>
#include <velmora/views/iPhoneCalendarView.h>

namespace velmora::app {
namespace {

/// Around the disc, in points; of a small picture a share of its side.
constexpr double discMargin = 10, discMarginShare = 1.0 / 24;

void checkCalendarOfRows(AlternateCalendarType calendar) {
  if (calendar == kChineseCalendar || calendar == kIndianCalendar)
    throw BadInput(
        "draw riseset does not take that calendar; accepted: hebrew, islamic, buddhist or japanese");
}

std::int64_t phaseOfYear(const Request& request) {
  const std::int64_t phase = request.phase.value_or(kFullMoon);
  if (phase != kFullMoon && phase != kNewMoon)
    throw BadInput("draw year does not show the quarters; accepted for phase: new or full");
  return phase;
}

/// Draws the rows of a list with what reaches beyond them: the time of a sunset at the end of the day.
class UncutRows final : public View {
 public:
  explicit UncutRows(std::shared_ptr<MoonRiseSetMonthView> list) : _list(std::move(list)) {}

  void drawRect(Canvas& canvas, Rect) override {
    _list->layoutSubviews();
    const Rect list = _list->frame();
    for (const auto& row : _list->subviews()) {
      const Rect place = row->frame();
      canvas.save();
      canvas.translate(list.x + place.x, list.y + place.y);
      canvas.clip(Path::rect({-list.x, 0, bounds().width, place.height}));
      canvas.beginGroup(1);
      row->drawRect(canvas, row->bounds());
      canvas.endGroup();
      canvas.restore();
    }
  }

 private:
  std::shared_ptr<MoonRiseSetMonthView> _list;
};

/// From the almanac's sky: as it hangs there, or as a picture, or both.
std::shared_ptr<View> makeSkyDisc(const Query& query, Size size) {
  const auto theme = themeOf(query);
  auto disc = std::make_shared<SkyDisc>(query.place.observer(), presentOf(query), theme->lightTextColor,
                                        theme->backgroundColor);
  disc->setIsTilted(query.request.drawing.isTilted);
  disc->setHasPicture(query.request.drawing.hasPicture);
  disc->setFrame(squareIn(size).inset(discMargin, discMargin));
  auto host = makeHost(size);
  host->addSubview(disc);
  return host;
}

}  // namespace

std::shared_ptr<View> makeDisc(const Query& query, Size size) {
  const DrawingRequest& drawing = query.request.drawing;
  if (drawing.isTilted || drawing.hasPicture) return makeSkyDisc(query, size);
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const auto phases = service.currentMonthPhaseDictionary();
  const auto theme = themeOf(query);
  auto disc = std::make_shared<MoonPhaseIconView>();
  const Rect square = squareIn(size);
  const double margin = std::min(discMargin, square.width * discMarginShare);
  disc->setFrame(square.inset(margin, margin));
  disc->setPhaseItem(phases->at(service.currentDay()));
  disc->setStrokeColor(theme->lightTextColor);
  disc->setFillColor(theme->lightTextColor);
  disc->setPhaseBackgroundColor(theme->backgroundColor);
  disc->setIsSouthernHemisphere(service.isSouthernHemisphere());
  auto host = makeHost(size);
  host->addSubview(disc);
  return host;
}

std::shared_ptr<View> makeMonth(const Query& query, Size size) {
  const DrawingRequest& drawing = query.request.drawing;
  auto month = std::make_shared<iPhoneCalendarView>();
  month->setFrame({0, 0, size.width, size.height});
  month->setColorTheme(themeOf(query));
  month->setAlternateCalendarType(drawing.calendar);
  month->setWeekStartDay(drawing.weekStartDay.value_or(Locale::current().firstWeekday() - 1));
  month->setHideEclipeInfo(drawing.hidesEclipses);
  return month;
}

std::shared_ptr<View> makeYear(const Query& query, Size size) {
  auto year = std::make_shared<MoonPhaseYearView>();
  year->setFrame({0, 0, size.width, size.height});
  year->setFilteredPhase(phaseOfYear(query.request));
  year->calendarLocationChanged();
  return year;
}

void checkMoonPictures(const Query&) {
  std::vector<std::string> names;
  for (const auto& [day, number] : *MoonPhaseData::sharedInstance().currentMonthImageDictionary())
    names.push_back("IMG_" + std::to_string(number));
  checkPictures(Bundle::library(), names);
}

void checkFullMoonPicture(const Query&) { checkPictures(Bundle::library(), {fullMoonPicture}); }

void checkPictureOfDisc(const Query& query) {
  if (query.request.drawing.hasPicture) checkFullMoonPicture(query);
}

void checkIcons(const Query&) { checkPictures(Bundle::main(), {"moonrise", "moonset", "sunrise", "sunset"}); }

std::shared_ptr<View> makeRiseSet(const Query& query, Size size) {
  const DrawingRequest& drawing = query.request.drawing;
  checkCalendarOfRows(drawing.calendar);
  auto list = std::make_shared<MoonRiseSetMonthView>();
  list->setAlternateCalendarType(drawing.calendar);
  list->installDayViews();
  for (const auto& row : list->subviews())
    std::static_pointer_cast<MoonRiseSetDayView>(row)->setColorTheme(themeOf(query));
  const double height = list->intrinsicContentSize().height;
  const double farthest = std::max(height - size.height, 0.0);
  const double wanted = list->offsetForDay(MoonPhaseData::sharedInstance().currentDay());
  const double beside = drawing.size ? 0 : riseSetWidth().beside;
  const double left = UIControls::isUserInterfaceRightToLeft() ? beside : 0;
  list->setFrame({left, -std::min(wanted, farthest), size.width - beside, height});
  auto host = std::make_shared<UncutRows>(list);
  host->setFrame({0, 0, size.width, size.height});
  return host;
}

}  // namespace velmora::app
