#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/TimeZone.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/views/AlternateCalendarType.h>

#include "tests/support/GoldenPicture.h"
#include "tests/support/SourceDirectory.h"
#include "web/host/HostedView.h"
#include "web/host/Session.h"

namespace velmora::web {
namespace {

using namespace std::chrono_literals;

struct City {
  const char* name;
  double latitude, longitude;
  const char* zone;
};

constexpr City sanFrancisco{"San Francisco", 37.785, -122.392, "America/Los_Angeles"};
constexpr City cairo{"Cairo", 30.044, 31.236, "Africa/Cairo"};
constexpr City tokyo{"Tokyo", 35.69, 139.692, "Asia/Tokyo"};
constexpr City helsinki{"Helsinki", 60.1699, 24.9384, "Europe/Helsinki"};
constexpr City capeTown{"Cape Town", -33.925, 18.424, "Africa/Johannesburg"};
constexpr City longyearbyen{"Longyearbyen", 78.22, 15.65, "Arctic/Longyearbyen"};

/// web/test/golden.test.mjs draws the same in a browser.
struct Scene {
  const char* name;  ///< of the golden picture
  const char* kind;
  Size size;  ///< of the picture: rise and set are longer, and scrolled to the selected day
  const City& city;
  Date day;
  ViewOptions options;
  Settings settings;
};

void PrintTo(const Scene& scene, std::ostream* out) { *out << scene.name; }

Instant utc(Date day, std::chrono::minutes time) {
  return Instant(std::chrono::sys_days(day).time_since_epoch() + time);
}

const Scene scenes[] = {
    // A week with a day without moonrise, the Islamic day in place of the weekday, the solstice.
    {"page-riseset", "riseset", {390, 560}, sanFrancisco, 2024y / 6 / 24, {}, {}},
    {"page-riseset-arabic",
     "riseset",
     {390, 560},
     cairo,
     2024y / 6 / 14,
     {},
     {.locale = "ar_EG", .secondCalendar = kIslamicUmmAlQuraCalendar}},
    {"page-riseset-japanese", "riseset", {390, 560}, tokyo, 2024y / 6 / 20, {}, {.locale = "ja_JP"}},
    // The colours of the light page.
    {"page-riseset-light", "riseset", {390, 560}, helsinki, 2025y / 9 / 7, {}, {.isLight = true}},
    {"page-month-light", "month", {390, 470}, helsinki, 2025y / 9 / 7, {}, {.isLight = true}},
    {"page-timeline", "timeline", {390, 76}, helsinki, 2025y / 9 / 7, {}, {}},
    {"page-timeline-arabic", "timeline", {390, 76}, cairo, 2025y / 9 / 7, {}, {.locale = "ar_EG"}},
    // The Moon above the horizon and below it, the way of the north and the mirrored one of the south.
    {"page-compass", "compass", {320, 320}, helsinki, 2025y / 9 / 7, {.at = utc(2025y / 9 / 7, 21h)}, {}},
    {"page-compass-south",
     "compass",
     {320, 320},
     capeTown,
     2025y / 9 / 3,
     {.at = utc(2025y / 9 / 3, 10h), .heading = 135},
     {}},
    {"page-arc", "arc", {390, 218}, helsinki, 2025y / 9 / 7, {.at = utc(2025y / 9 / 7, 21h)}, {}},
    {"page-arc-south", "arc", {390, 218}, capeTown, 2025y / 9 / 3, {.at = utc(2025y / 9 / 3, 16h)}, {}},
    {"page-disc-tilted",
     "disc",
     {240, 240},
     helsinki,
     2025y / 9 / 3,
     {.at = utc(2025y / 9 / 3, 18h), .isTilted = true},
     {}},
    {"page-disc-south", "disc", {240, 240}, capeTown, 2025y / 9 / 18, {.at = utc(2025y / 9 / 18, 3h)}, {}},
    // Posters, as they stand on a screen.
    {"page-night", "night", {640, 453}, helsinki, 2025y / 9 / 12, {}, {}},
    {"page-darkness-light", "darkness", {452, 640}, capeTown, 2025y / 9 / 12, {}, {.isLight = true}},
};

/// What the session sets for all that is drawn is set back.
class PageSession {
 protected:
  ScopedLocale _locale{"en_US"};
  ScopedDefaultTimeZone _zone{"Etc/UTC"};
  ScopedDevice _device{Device()};
  Session& _session = Session::shared();
  ScopedMainBundle _resources{sourceDirectory() + "/app/resources"};
};

class PageViewsTest : public PageSession, public ::testing::TestWithParam<Scene> {};

TEST_P(PageViewsTest, LooksAsItShould) {
  const Scene& scene = GetParam();
  const ScopedNow now(utc(scene.day, 12h));
  _session.configure(scene.settings);
  const City& city = scene.city;
  ASSERT_TRUE(_session.select(city.latitude, city.longitude, city.name, city.zone, scene.day));

  const auto view = HostedView::named(scene.kind);
  view->resize(scene.size, 1);
  view->setOptions(scene.options);
  CairoCanvas canvas(PictureFormat::png, scene.size, 1, view->background());
  canvas.translate(0, -view->scrollOffset());
  view->render(canvas);
  EXPECT_TRUE(testing::looksLikeGolden(canvas, scene.name));
}

/// What is said of a day's rises and sets.
std::string saidOf(Date day, const City& city) {
  Session& session = Session::shared();
  session.configure({.uses24Hours = true});
  EXPECT_TRUE(session.select(city.latitude, city.longitude, city.name, city.zone, day));
  const auto list = HostedView::named("riseset");
  list->resize({390, 560}, 1);
  return list->elements().at(static_cast<unsigned>(day.day()) - 1).element.label;
}

class PageRiseSetTest : public PageSession, public ::testing::Test {};

TEST_F(PageRiseSetTest, NothingIsSaidOfAMoonsetThatADayDoesNotHave) {
  EXPECT_EQ(saidOf(2025y / 9 / 3, helsinki), "Sep 3, 2025: moonrise 20:00, sunrise 06:20, sunset 20:18");
}

TEST_F(PageRiseSetTest, AMoonThatStaysUpOrDownIsSaidTo) {
  EXPECT_EQ(saidOf(2026y / 6 / 14, longyearbyen), "Jun 14, 2026: Moon up all day, Sun up all day");
  EXPECT_EQ(saidOf(2026y / 12 / 9, longyearbyen), "Dec 9, 2026: Moon down all day, Sun down all day");
}

TEST_F(PageRiseSetTest, AnotherDayOfTheMonthAsksForTheTwoRowsConcernedAlone) {
  _session.configure({});
  ASSERT_TRUE(
      _session.select(helsinki.latitude, helsinki.longitude, helsinki.name, helsinki.zone, 2025y / 9 / 7));
  const auto list = HostedView::named("riseset");
  list->resize({390, 560}, 1);
  CairoCanvas canvas(PictureFormat::png, list->size(), 1, list->background());
  list->render(canvas);
  ASSERT_TRUE(_session.selectDay(2025y / 9 / 9));
  list->dayChanged();
  std::vector<std::size_t> asking;
  for (std::size_t row = 0; row < list->partCount(); ++row) {
    if (list->partNeedsDisplay(row)) asking.push_back(row + 1);
  }
  EXPECT_EQ(asking, (std::vector<std::size_t>{7, 9}));
  ASSERT_TRUE(_session.selectDay(2025y / 10 / 9));
  list->dayChanged();
  EXPECT_EQ(list->partCount(), 31U);
  EXPECT_TRUE(list->partNeedsDisplay(0));
}

std::vector<std::string> labelsOf(HostedView& view) {
  std::vector<std::string> labels;
  for (const HostedElement& hosted : view.elements()) labels.push_back(hosted.element.label);
  return labels;
}

std::unique_ptr<HostedView> viewOf(const char* kind) {
  auto view = HostedView::named(kind);
  view->resize({390, 470}, 1);
  return view;
}

class PageElementsTest : public PageSession, public ::testing::TestWithParam<const char*> {
 protected:
  void select(const City& city, Date day) {
    ASSERT_TRUE(_session.select(city.latitude, city.longitude, city.name, city.zone, day));
  }
};

TEST_P(PageElementsTest, StayWithinAMonth) {
  _session.configure({});
  select(helsinki, 2025y / 9 / 7);
  const auto view = viewOf(GetParam());
  const std::int64_t before = view->editionOfElements();
  ASSERT_TRUE(_session.selectDay(2025y / 9 / 30));
  view->dayChanged();
  EXPECT_EQ(view->editionOfElements(), before);
  EXPECT_EQ(labelsOf(*view), labelsOf(*viewOf(GetParam())));
}

TEST_P(PageElementsTest, FollowMonthYearPlaceAndLanguage) {
  _session.configure({});
  select(helsinki, 2025y / 9 / 7);
  const auto view = viewOf(GetParam());
  std::vector<std::string> before = labelsOf(*view);
  const auto expectOthers = [&] {
    view->dayChanged();
    const std::vector<std::string> now = labelsOf(*view);
    EXPECT_NE(now, before);
    EXPECT_EQ(now, labelsOf(*viewOf(GetParam())));
    before = now;
  };
  ASSERT_TRUE(_session.selectDay(2026y / 10 / 7));
  expectOthers();
  select(tokyo, 2027y / 2 / 7);
  expectOthers();
  _session.configure({.locale = "de_DE"});
  expectOthers();
}

INSTANTIATE_TEST_SUITE_P(Calendars, PageElementsTest,
                         ::testing::Values("month", "riseset", "year", "pictures"),
                         [](const auto& kind) { return std::string(kind.param); });

INSTANTIATE_TEST_SUITE_P(Scenes, PageViewsTest, ::testing::ValuesIn(scenes), [](const auto& scene) {
  std::string name = scene.param.name;
  std::erase(name, '-');
  return name;
});

}  // namespace
}  // namespace velmora::web
