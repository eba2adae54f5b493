#include <velmora/views/iPhoneCalendarView.h>

#include <functional>
#include <optional>
#include <utility>

#include <velmora/views/TodayInSelectedMonth.h>

#include "tests/views/DrawnView.h"
#include "tests/views/MonthViewTesting.h"

namespace velmora {
namespace {

using testing::MonthViewTest;
using testing::placeAt;
using testing::RecordingCanvas;
using testing::utc;

/// Counts the posts of "CalenderDateChanged".
class PostCounter {
 public:
  int count = 0;

 private:
  NotificationCenter::Subscription _subscription =
      NotificationCenter::defaultCenter().subscribe(kCalenderDateChangedNotification, [this] { ++count; });
};

// February 2026 begins on a Sunday and has 28 days: four rows without a blank cell.
class MonthSelectionTest : public MonthViewTest {
 protected:
  MonthSelectionTest() {
    select(utc(2026, 2, 14));
    render();
  }

  void render() {
    RecordingCanvas canvas;
    view->render(canvas);
    ASSERT_FALSE(view->needsDisplay());
  }

  static Point middleOf(std::int64_t column, std::int64_t row) {
    return {6 + 53 * static_cast<double>(column) + 22, 40 + 100 * static_cast<double>(row) + 50};
  }

  void tap(Point point) {
    view->touchesBegan(Touch(point));
    view->touchesEnded(Touch(point));
  }
};

TEST_F(MonthViewTest, ANewViewShowsWeeksFromSundayWithEclipsesAndNoOtherCalendar) {
  EXPECT_EQ(view->selectedDate(), std::nullopt);
  EXPECT_EQ(view->padding(), 0);
  EXPECT_EQ(view->weekStartDay(), 0);
  EXPECT_EQ(view->alternateCalendarType(), kNoAlternateCalendar);
  EXPECT_EQ(view->colorTheme(), nullptr);
  EXPECT_FALSE(view->hideEclipeInfo());
  EXPECT_TRUE(view->axElements().empty());
}

TEST_F(MonthViewTest, WithoutAThemeItTakesTheSharedCalendarThemeForItsOwn) {
  EXPECT_EQ(view->calendarTheme(), VelmoraTheme::calendarTheme());
  EXPECT_EQ(view->colorTheme(), VelmoraTheme::calendarTheme());
}

TEST_F(MonthViewTest, AThemeOfItsOwnStaysUntilItIsTakenAway) {
  const auto own = std::make_shared<VelmoraTheme>();
  view->setColorTheme(own);
  EXPECT_EQ(view->calendarTheme(), own);
  view->setColorTheme(nullptr);
  EXPECT_EQ(view->calendarTheme(), VelmoraTheme::calendarTheme());
}

TEST_F(MonthViewTest, ThePlaceDecidesOnTheHemisphere) {
  EXPECT_FALSE(view->isSouthernHemisphere()) << "without a place";
  select(utc(2026, 2, 14), placeAt(-0.01));
  EXPECT_TRUE(view->isSouthernHemisphere());
  select(utc(2026, 2, 14), placeAt(0));
  EXPECT_FALSE(view->isSouthernHemisphere()) << "on the equator";
}

TEST_F(MonthViewTest, TodayIsADayOfTheSelectedMonthOnly) {
  EXPECT_EQ(todayInSelectedMonth(service()), 0) << "before a month is selected";
  select(utc(2026, 2, 14));
  EXPECT_EQ(todayInSelectedMonth(service()), 24);
  select(utc(2026, 1, 24));
  EXPECT_EQ(todayInSelectedMonth(service()), 0) << "the month before";
  select(utc(2025, 2, 24));
  EXPECT_EQ(todayInSelectedMonth(service()), 0) << "the year before";
}

TEST_F(MonthSelectionTest, DrawingTakesTheServicesDate) {
  EXPECT_EQ(view->selectedDate(), utc(2026, 2, 14));
  view->setSelectedDate(std::nullopt);
  draw();
  EXPECT_EQ(view->selectedDate(), utc(2026, 2, 14));
}

TEST_F(MonthSelectionTest, ADateSelectedElsewhereAsksForDrawing) {
  service().SetSelectedDate(utc(2026, 2, 15));
  EXPECT_EQ(view->selectedDate(), utc(2026, 2, 15));
  EXPECT_TRUE(view->needsDisplay());
}

TEST_F(MonthSelectionTest, AnotherMomentOfTheSameDayIsAnotherDate) {
  service().SetSelectedDate(utc(2026, 2, 14, 13));
  EXPECT_EQ(view->selectedDate(), utc(2026, 2, 14, 13));
  EXPECT_TRUE(view->needsDisplay());
}

TEST_F(MonthSelectionTest, TheDateThatTheViewHasAsksForNothing) {
  NotificationCenter::defaultCenter().post(kCalenderDateChangedNotification);
  EXPECT_FALSE(view->needsDisplay());
}

TEST_F(MonthSelectionTest, AViewThatIsGoneIsNotTold) {
  auto other = std::make_shared<iPhoneCalendarView>();
  const std::weak_ptr<iPhoneCalendarView> watched = other;
  other.reset();
  EXPECT_TRUE(watched.expired());
  service().SetSelectedDate(utc(2026, 2, 15));
  EXPECT_EQ(view->selectedDate(), utc(2026, 2, 15));
}

TEST_F(MonthSelectionTest, PickingADaySelectsItsStartAtThePlace) {
  select(utc(2026, 2, 14), placeAt(35.7, "Asia/Tokyo"));
  view->changeSelectedDay(20);
  EXPECT_EQ(service().currentDay(), 20);
  EXPECT_EQ(service().currentDate(), utc(2026, 2, 19, 15));
  EXPECT_EQ(view->selectedDate(), utc(2026, 2, 19, 15));
  EXPECT_TRUE(view->needsDisplay());
}

TEST_F(MonthSelectionTest, PickingAnotherDayPostsOnceFromTheServiceAndOnceFromTheView) {
  const PostCounter posts;
  view->changeSelectedDay(20);
  EXPECT_EQ(posts.count, 2);
}

TEST_F(MonthSelectionTest, PickingTheSelectedDayPostsAndAnnouncesAllTheSame) {
  const PostCounter posts;
  view->changeSelectedDay(14);
  EXPECT_EQ(posts.count, 1);
  EXPECT_EQ(announced, std::vector<std::string>{"Feb 14, 2026"});
  EXPECT_EQ(view->selectedDate(), utc(2026, 2, 14)) << "the moment stays too";
  EXPECT_TRUE(view->needsDisplay());
}

TEST_F(MonthSelectionTest, TheAnnouncementComesBetweenTheTwoPosts) {
  std::vector<std::string> order;
  const auto subscription = NotificationCenter::defaultCenter().subscribe(kCalenderDateChangedNotification,
                                                                          [&] { order.push_back("post"); });
  const ScopedAnnouncementSink sink([&](const std::string& text) { order.push_back(text); });
  view->changeSelectedDay(20);
  EXPECT_EQ(order, (std::vector<std::string>{"post", "Feb 20, 2026", "post"}));
}

TEST_F(MonthSelectionTest, DayZeroIsTheLastDayOfTheMonthBefore) {
  view->changeSelectedDay(0);
  EXPECT_EQ(service().currentDay(), 31);
  EXPECT_EQ(service().currentMonth(), 1);
  EXPECT_EQ(announced, std::vector<std::string>{"Jan 31, 2026"});
}

TEST_F(MonthSelectionTest, DayZeroOfTheFirstJanuaryCoveredStaysUnselected) {
  select(utc(2000, 1, 5));
  view->changeSelectedDay(0);
  EXPECT_EQ(service().currentDate(), utc(2000, 1, 5));
  EXPECT_EQ(announced, std::vector<std::string>{"Jan 5, 2000"});
}

TEST_F(MonthSelectionTest, AnnouncementsKeepLanguageAndZoneOfTheFirst) {
  select(utc(2026, 2, 14), placeAt(35.7, "Asia/Tokyo"));
  view->changeSelectedDay(20);
  const ScopedLocale german("de_DE");
  select(utc(2026, 2, 14), placeAt(21.3, "Pacific/Honolulu"));
  view->changeSelectedDay(20);
  EXPECT_EQ(announced, (std::vector<std::string>{"Feb 20, 2026", "Feb 20, 2026"}));
  ProcessValues::resetAll();
  view->changeSelectedDay(21);
  EXPECT_EQ(announced.back(), "21.02.2026");
}

// When a day begins on Kiritimati, the one before it begins in Honolulu.
TEST_F(MonthSelectionTest, AnAnnouncementInTheFirstZoneMayNameTheDayBefore) {
  select(utc(2026, 2, 14), placeAt(21.3, "Pacific/Honolulu"));
  view->changeSelectedDay(20);
  select(utc(2026, 2, 14), placeAt(1.9, "Pacific/Kiritimati"));
  view->changeSelectedDay(20);
  EXPECT_EQ(announced, (std::vector<std::string>{"Feb 20, 2026", "Feb 19, 2026"}));
}

TEST_F(MonthViewTest, WithoutADateNothingIsAnnounced) {
  const PostCounter posts;
  view->changeSelectedDay(0);
  EXPECT_TRUE(announced.empty());
  EXPECT_EQ(posts.count, 1);
}

TEST_F(MonthSelectionTest, EveryDayIsPickedInItsCell) {
  for (std::int64_t day = 1; day <= 28; ++day) {
    tap(middleOf((day - 1) % 7, (day - 1) / 7));
    EXPECT_EQ(service().currentDay(), day);
    EXPECT_EQ(service().currentMonth(), 2);
  }
}

TEST_F(MonthSelectionTest, FromRightToLeftTheFirstDayIsPickedOnTheRight) {
  const ScopedDevice mirrored(testing::mirroredDevice);
  tap({389 - 20, 90});
  EXPECT_EQ(service().currentDay(), 1);
  tap({389 - 20 - 53, 190});
  EXPECT_EQ(service().currentDay(), 9);
}

TEST_F(MonthSelectionTest, APlaceInAnotherViewIsCountedFromTheViewsOwnCorner) {
  const auto screen = std::make_shared<View>();
  screen->setFrame({0, 0, 500, 600});
  screen->addSubview(view);
  view->setFrame({100, 50, 389, 450});
  tap(Point{100, 50} + middleOf(2, 1));
  EXPECT_EQ(service().currentDay(), 10);
}

TEST_F(MonthSelectionTest, AFingerThatMovesWithinTheCellPicksIt) {
  view->touchesBegan(Touch(middleOf(2, 1)));
  view->touchesMoved(Touch(middleOf(2, 1) + Point{10, 20}));
  view->touchesEnded(Touch(middleOf(2, 1) + Point{12, 22}));
  EXPECT_EQ(service().currentDay(), 10);
}

TEST_F(MonthSelectionTest, AFingerThatMovesToAnotherCellPicksNothing) {
  view->touchesBegan(Touch(middleOf(2, 1)));
  view->touchesMoved(Touch(middleOf(3, 1)));
  view->touchesEnded(Touch(middleOf(3, 1)));
  EXPECT_EQ(service().currentDay(), 14);
  EXPECT_TRUE(announced.empty());
}

TEST_F(MonthSelectionTest, AFingerThatComesBackPicksNothing) {
  view->touchesBegan(Touch(middleOf(2, 1)));
  view->touchesMoved(Touch(middleOf(3, 1)));
  view->touchesMoved(Touch(middleOf(2, 1)));
  view->touchesEnded(Touch(middleOf(2, 1)));
  EXPECT_EQ(service().currentDay(), 14);
}

TEST_F(MonthSelectionTest, AFingerThatLiftsInAnotherCellUnseenPicksNothing) {
  view->touchesBegan(Touch(middleOf(2, 1)));
  view->touchesEnded(Touch(middleOf(3, 1)));
  EXPECT_EQ(service().currentDay(), 14);
}

TEST_F(MonthSelectionTest, TheNextTouchStartsAfresh) {
  view->touchesBegan(Touch(middleOf(2, 1)));
  view->touchesMoved(Touch(middleOf(3, 1)));
  view->touchesEnded(Touch(middleOf(3, 1)));
  tap(middleOf(3, 1));
  EXPECT_EQ(service().currentDay(), 11);
}

// April 2026 begins on a Wednesday and ends on a Thursday, in the fifth of its five rows of 80 points.
TEST_F(MonthSelectionTest, BlankCellsPickNothing) {
  select(utc(2026, 4, 14));
  draw();
  const PostCounter posts;
  tap({6 + 2 * 53 + 20, 80});
  tap({6 + 5 * 53 + 20, 400});
  EXPECT_EQ(service().currentDay(), 14);
  EXPECT_EQ(posts.count, 0);
  EXPECT_TRUE(announced.empty());
  tap({6 + 3 * 53 + 20, 80});
  EXPECT_EQ(service().currentDay(), 1) << "the cell beside it holds the first";
  tap({6 + 4 * 53 + 20, 400});
  EXPECT_EQ(service().currentDay(), 30) << "the cell beside it holds the last";
}

TEST_F(MonthViewTest, BeforeTheFirstDrawingATouchPicksNothing) {
  select(utc(2026, 2, 14));
  view->touchesBegan(Touch({100, 100}));
  view->touchesEnded(Touch({100, 100}));
  EXPECT_EQ(service().currentDay(), 14);
  EXPECT_TRUE(announced.empty());
}

TEST_F(MonthSelectionTest, EveryPropertyThatShowsAsksForDrawing) {
  const std::function<void()> changes[] = {
      [this] { view->setPadding(4); },
      [this] { view->setWeekStartDay(1); },
      [this] { view->setColorTheme(std::make_shared<VelmoraTheme>()); },
      [this] { view->setHideEclipeInfo(true); },
      [this] { view->setAlternateCalendarType(kHebrewCalendar); },
  };
  for (const auto& change : changes) {
    change();
    EXPECT_TRUE(view->needsDisplay());
    render();
  }
  EXPECT_EQ(view->padding(), 4);
  EXPECT_EQ(view->weekStartDay(), 1);
  EXPECT_TRUE(view->hideEclipeInfo());
  EXPECT_EQ(view->alternateCalendarType(), 1);
}

TEST_F(MonthSelectionTest, AnotherPlaceAsksForDrawing) {
  service().SetSelectedLocation(placeAt(-33.9));
  EXPECT_TRUE(view->needsDisplay()) << "the discs are mirrored";
}

}  // namespace
}  // namespace velmora
