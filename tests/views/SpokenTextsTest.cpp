#include <velmora/views/SpokenTexts.h>

#include <cmath>
#include <limits>

#include <velmora/views/CompassView.h>
#include <velmora/views/MoonAzimuthElevationView.h>
#include <velmora/views/MoonCalendarView.h>
#include <velmora/views/MoonPhaseIconView.h>
#include <velmora/views/MoonPositionView.h>
#include <velmora/views/MoonRiseSetDayView.h>
#include <velmora/views/TimelineDayView.h>

#include "tests/views/YearViewTesting.h"

namespace velmora {
namespace {

using testing::MonthViewTest;
using testing::placeAt;
using testing::utc;
using testing::YearViewTest;

std::shared_ptr<GeoLocationData> longyearbyen() {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(78.22, 15.65, "Longyearbyen", "Arctic/Longyearbyen", 0, false);
  return place;
}

/// What is said of the rises and sets of that day.
class SpokenRowsTest : public MonthViewTest {
 protected:
  std::string said(Instant date,
                   std::shared_ptr<GeoLocationData> place = placeAt(testing::greenwichLatitude)) {
    select(date, std::move(place));
    const auto row = std::make_shared<MoonRiseSetDayView>();
    row->setFrame({0, 160, 390, 80});
    row->setPhaseItem(service().GetRiseSetPhaseItemForCurrentDate());
    const auto elements = row->accessibilityElements();
    if (elements.size() != 1) return "";
    EXPECT_EQ(elements[0].frame, (Rect{0, 0, 390, 80}));
    EXPECT_EQ(elements[0].traits, AccessibilityTraits::none);
    return plainBlanks(elements[0].label);
  }

  /// Times are written with a narrow blank.
  static std::string plainBlanks(std::string text) {
    const std::string narrow = "\u202F";
    for (auto at = text.find(narrow); at != std::string::npos; at = text.find(narrow)) {
      text.replace(at, narrow.size(), " ");
    }
    return text;
  }
};

// The times agree with an independent ephemeris to the minute.
TEST_F(SpokenRowsTest, ARowSaysItsDayWithItsRisesAndSetsInTheirOrder) {
  EXPECT_EQ(said(utc(2026, 2, 1)),
            "Feb 1, 2026: moonset 7:46 AM, moonrise 4:13 PM, sunrise 7:39 AM, sunset 4:49 PM");
}

TEST_F(SpokenRowsTest, ASetOfTheNextDayIsSaidInWords) {
  EXPECT_EQ(said(utc(2026, 2, 22)),
            "Feb 22, 2026: moonrise 8:25 AM, moonset 12:24 AM the next day, sunrise 7:00 AM, sunset 5:28 PM");
}

TEST_F(SpokenRowsTest, ADayWithoutAMoonriseSaysTheSetAlone) {
  EXPECT_EQ(said(utc(2026, 2, 7)), "Feb 7, 2026: moonset 9:07 AM, sunrise 7:29 AM, sunset 5:00 PM");
}

TEST_F(SpokenRowsTest, ABodyThatDoesNotCrossTheHorizonIsUpOrDownAllDay) {
  EXPECT_EQ(said(utc(2026, 6, 21), longyearbyen()),
            "Jun 21, 2026: moonset 1:17 AM, moonrise 12:29 PM, Sun up all day");
  EXPECT_EQ(said(utc(2026, 6, 14), longyearbyen()), "Jun 14, 2026: Moon up all day, Sun up all day");
  EXPECT_EQ(said(utc(2026, 12, 9), longyearbyen()), "Dec 9, 2026: Moon down all day, Sun down all day");
  EXPECT_EQ(said(utc(2026, 12, 21), longyearbyen()), "Dec 21, 2026: Moon up all day, Sun down all day");
}

TEST_F(SpokenRowsTest, InTheUsersLanguage) {
  const ScopedLocale german("de_DE");
  MoonPhaseData::resetSharedInstance();
  EXPECT_EQ(said(utc(2026, 2, 22)),
            "22.02.2026: Mondaufgang 08:25, Monduntergang 00:24 am nächsten Tag, Sonnenaufgang 07:00, "
            "Sonnenuntergang 17:28");
  EXPECT_EQ(said(utc(2026, 12, 9), longyearbyen()),
            "09.12.2026: Mond den ganzen Tag unter dem Horizont, Sonne den ganzen Tag unter dem Horizont");
}

TEST_F(SpokenRowsTest, ARowWithoutADayHasNoElement) {
  EXPECT_TRUE(MoonRiseSetDayView().accessibilityElements().empty());
}

TEST_F(MonthViewTest, ADiscSaysItsDayAndPhase) {
  select(utc(2026, 2, 17));
  const auto icon = std::make_shared<MoonPhaseIconView>();
  EXPECT_TRUE(icon->accessibilityElements().empty());
  icon->setFrame({10, 10, 44, 44});
  icon->setPhaseItem(service().GetRiseSetPhaseItemForCurrentDate());
  ASSERT_EQ(icon->accessibilityElements().size(), 1U);
  EXPECT_EQ(icon->accessibilityElements()[0].label, "Feb 17, 2026, New Moon");
  EXPECT_EQ(icon->accessibilityElements()[0].frame, (Rect{0, 0, 44, 44}));
}

// May 2026 begins on a Friday; pictures of 50 points in rows 75 points apart.
TEST_F(MonthViewTest, EachPictureSaysItsDayAndPhase) {
  const auto pictures = std::make_shared<MoonCalendarView>();
  pictures->setFrame({0, 0, 350, 535});
  EXPECT_TRUE(pictures->accessibilityElements().empty()) << "before a day is selected";
  select(utc(2026, 5, 15));
  const auto elements = pictures->accessibilityElements();
  ASSERT_EQ(elements.size(), 31U);
  EXPECT_EQ(elements[0].label, "May 1, 2026, Full Moon");
  EXPECT_EQ(elements[0].frame, (Rect{5 + 5 * 50, 90, 50, 68})) << "the picture and the number under it";
  EXPECT_EQ(elements[30].label, "May 31, 2026, Full Moon");
  EXPECT_EQ(elements[30].frame, (Rect{5, 90 + 5 * 75, 50, 68}));
  EXPECT_TRUE(elements[0].customActions.empty()) << "a touch does nothing there";
}

TEST_F(MonthViewTest, PicturesAskForDrawingWhenDayOrPlaceChange) {
  select(utc(2026, 5, 15));
  const auto pictures = std::make_shared<MoonCalendarView>();
  const auto render = [&] {
    testing::RecordingCanvas canvas;
    pictures->render(canvas);
    EXPECT_FALSE(pictures->needsDisplay());
  };
  render();
  service().changeSelectedDay(1, 6, 2026);
  EXPECT_TRUE(pictures->needsDisplay());
  render();
  service().SetSelectedLocation(placeAt(-33.9));
  EXPECT_TRUE(pictures->needsDisplay());
}

class SpokenYearTest : public YearViewTest {
 protected:
  SpokenYearTest() { show(utc(2026, 5, 15)); }
};

TEST_F(SpokenYearTest, EachMoonIsAButtonThatSaysItsDateAndPhase) {
  const auto elements = year->accessibilityElements();
  ASSERT_EQ(elements.size(), 13U);
  EXPECT_EQ(elements[0].label, "Jan 3, 2026, Full Moon");
  EXPECT_EQ(elements[0].frame, (Rect{8 + 50 * 6, 78, 50, 40 + 14})) << "the disc and the date under it";
  EXPECT_EQ(elements[4].label, "May 1, 2026, Full Moon");
  EXPECT_EQ(elements[5].label, "May 31, 2026, Full Moon");
  EXPECT_EQ(elements[12].label, "Dec 24, 2026, Full Moon");
  for (const AccessibilityElement& element : elements) {
    EXPECT_EQ(element.traits, AccessibilityTraits::button);
    EXPECT_EQ(element.hint, "Tap to select date");
    ASSERT_EQ(element.customActions.size(), 1U);
    EXPECT_EQ(element.customActions[0]->name(), "Select");
  }
}

TEST_F(SpokenYearTest, TheActionOfAMoonSelectsItAsATouchDoes) {
  year->accessibilityElements().at(5).customActions.at(0)->activate();
  ASSERT_NE(year->selectedPhaseItem(), nullptr);
  EXPECT_EQ(year->selectedPhaseItem()->day, 31);
  EXPECT_EQ(service().currentDay(), 31);
  EXPECT_EQ(announced, std::vector<std::string>{"May 31, 2026"});
  EXPECT_TRUE(year->needsDisplay());
}

TEST_F(SpokenYearTest, ElementsAreThoseOfThePhaseAndPlaceOfNow) {
  year->setFilteredPhase(kNewMoon);
  EXPECT_EQ(year->accessibilityElements().at(0).label, "Jan 18, 2026, New Moon");
  const ScopedDevice rightToLeft(Device{.forcedDirection = LayoutDirection::rightToLeft});
  EXPECT_EQ(year->accessibilityElements().at(0).frame.x, 366 - 8 - 50) << "a Sunday";
  year->setPhaseDictionary(nullptr);
  EXPECT_TRUE(year->accessibilityElements().empty());
}

// The full moon of 31 December in Greenwich is one of New Year's Day in Tokyo and stands in January's row.
TEST_F(SpokenYearTest, ANeighbouringYearsMoonSaysItsOwnYear) {
  show(utc(2028, 5, 15), placeAt(35.7, "Asia/Tokyo"));
  EXPECT_EQ(year->accessibilityElements().back().label, "Jan 1, 2029, Full Moon");
}

class SpokenSkyTest : public MonthViewTest {
 protected:
  static AccessibilityElement onlyElementOf(View& view) {
    const auto elements = view.accessibilityElements();
    EXPECT_EQ(elements.size(), 1U);
    return elements.empty() ? AccessibilityElement() : elements[0];
  }

  std::shared_ptr<MoonAzimuthElevationView> arc = std::make_shared<MoonAzimuthElevationView>();
};

TEST_F(SpokenSkyTest, TheArcSaysWhereTheMoonStands) {
  arc->setFrame({0, 0, 300, 300});
  EXPECT_TRUE(arc->accessibilityElements().empty()) << "the disc has no place yet";
  arc->setRadius(100, 0, 180);
  arc->updateLayer();
  EXPECT_TRUE(arc->accessibilityElements().empty());
  arc->setObjectAzimuth(156.4F, 46.6F);
  EXPECT_EQ(onlyElementOf(*arc).label, "Moon");
  EXPECT_EQ(onlyElementOf(*arc).value, "156° southeast, 47° above the horizon");
  EXPECT_EQ(onlyElementOf(*arc).frame, (Rect{0, 0, 300, 300}));
  arc->setObjectAzimuth(359.7F, -12.2F);
  EXPECT_EQ(onlyElementOf(*arc).value, "0° north, 12° below the horizon");
}

TEST_F(SpokenSkyTest, TheCompassSaysWhichBearingIsAtItsTop) {
  const auto compass = std::make_shared<CompassView>();
  compass->setFrame({0, 0, 300, 300});
  EXPECT_EQ(onlyElementOf(*compass).label, "Compass");
  EXPECT_EQ(onlyElementOf(*compass).value, "270° west at the top") << "north lies at the right";
  const double quarterTurn = std::acos(0.0);
  compass->setTransform(AffineTransform::rotation(-quarterTurn));
  EXPECT_EQ(onlyElementOf(*compass).value, "0° north at the top");
  compass->setTransform(AffineTransform::rotation(-quarterTurn - quarterTurn / 2));
  EXPECT_EQ(onlyElementOf(*compass).value, "45° northeast at the top");
}

TEST_F(SpokenSkyTest, EachDirectionIsSaidOverAnEighthOfATurn) {
  EXPECT_EQ(spokenBearing(22), "22° north");
  EXPECT_EQ(spokenBearing(23), "23° northeast");
  EXPECT_EQ(spokenBearing(-1), "359° north");
  EXPECT_EQ(spokenBearing(360 + 180), "180° south");
  EXPECT_EQ(spokenBearing(std::numeric_limits<double>::quiet_NaN()), "");
}

TEST_F(SpokenSkyTest, WhatRoundsToTheHorizonIsNotBelowIt) {
  EXPECT_EQ(spokenHeight(-0.4), "0° above the horizon");
  EXPECT_EQ(spokenHeight(-0.6), "1° below the horizon");
  EXPECT_EQ(spokenHeight(std::numeric_limits<double>::infinity()), "");
}

TEST_F(SpokenSkyTest, BearingsAndHeightsAreInTheUsersLanguageAndDigits) {
  const ScopedLocale arabic("ar_EG");
  EXPECT_EQ(spokenBearing(156), "١٥٦° جنوب شرق");
  EXPECT_EQ(spokenHeight(47), "٤٧° فوق الأفق");
}

TEST_F(SpokenSkyTest, RulerAndChartSayNothing) {
  EXPECT_TRUE(TimelineDayView().accessibilityElements().empty());
  EXPECT_TRUE(std::make_shared<MoonPositionView>()->accessibilityElements().empty());
}

}  // namespace
}  // namespace velmora
