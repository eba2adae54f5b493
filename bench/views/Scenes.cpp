#include "bench/views/Scenes.h"

#include <cstdlib>
#include <iostream>
#include <utility>

#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonCalendarView.h>
#include <velmora/views/MoonPhaseYearView.h>
#include <velmora/views/MoonRiseSetMonthView.h>
#include <velmora/views/iPhoneCalendarView.h>

namespace velmora::bench {
namespace {

std::shared_ptr<GeoLocationData> greenwich() {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(51.48, 0, "Greenwich", "Europe/London", 0, false);
  return place;
}

std::shared_ptr<GeoLocationData> sanFrancisco() {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(37.78549082, -122.39184303, "San Francisco, CA", "America/Los_Angeles", 0, false);
  return place;
}

void select(std::shared_ptr<GeoLocationData> place, const DateComponents& noon) {
  const Instant instant = Calendar(*place->timezone).date(noon);
  MoonPhaseData::sharedInstance().SetSelectedLocation(std::move(place), instant);
}

template <typename AnyView>
std::shared_ptr<AnyView> onPhone(std::shared_ptr<AnyView> view) {
  view->setFrame({0, 0, phone.width, phone.height});
  return view;
}

std::shared_ptr<iPhoneCalendarView> calendar() {
  select(greenwich(), {.year = 2024, .month = 6, .day = 20, .hour = 12});
  return onPhone(std::make_shared<iPhoneCalendarView>());
}

}  // namespace

std::shared_ptr<View> month() { return calendar(); }

std::shared_ptr<View> monthOfTwoCalendars() {
  const auto view = calendar();
  view->setAlternateCalendarType(kIslamicUmmAlQuraCalendar);
  return view;
}

std::shared_ptr<View> pictureMonth() {
  select(greenwich(), {.year = 2024, .month = 6, .day = 20, .hour = 12});
  return onPhone(std::make_shared<MoonCalendarView>());
}

std::shared_ptr<View> year() {
  select(greenwich(), {.year = 2026, .month = 5, .day = 31, .hour = 12});
  const auto view = onPhone(std::make_shared<MoonPhaseYearView>());
  view->calendarLocationChanged();
  return view;
}

std::shared_ptr<View> riseSetMonth() {
  constexpr std::int64_t selectedDay = 15;
  select(sanFrancisco(), {.year = 2024, .month = 7, .day = selectedDay, .hour = 12});
  const auto days = std::make_shared<MoonRiseSetMonthView>();
  days->installDayViews();
  const double height = days->intrinsicContentSize().height;
  days->setFrame({0, -days->offsetForDay(selectedDay), phone.width, height});
  const auto screen = nothing();
  screen->addSubview(days);
  return screen;
}

std::shared_ptr<View> nothing() { return onPhone(std::make_shared<View>()); }

void draw(View& view, PictureFormat format, double scale) {
  CairoCanvas canvas(format, phone, scale);
  view.render(canvas);
  if (const auto error = canvas.error()) {
    std::cerr << error->message << '\n';
    std::exit(EXIT_FAILURE);
  }
}

}  // namespace velmora::bench
