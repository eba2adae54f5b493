#include <velmora/views/MoonRiseSetMonthView.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/platform/ui/LayoutConstraint.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/LayoutConstraintAdditions.h>
#include <velmora/views/MoonRiseSetDayView.h>
#include <velmora/views/OncePerProcess.h>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::FixedTextEngine;
using testing::RecordingCanvas;

std::shared_ptr<GeoLocationData> placeIn(const std::string& zone) {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(51.48, 0, "Greenwich", zone, 0, false);
  return place;
}

Instant noon(std::int64_t year, std::int64_t month, std::int64_t day) {
  return Calendar(TimeZone::fixed(0)).date({.year = year, .month = month, .day = day, .hour = 12});
}

class MoonRiseSetMonthViewTest : public ::testing::Test {
 protected:
  MoonRiseSetMonthViewTest() {
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
    month->setFrame({0, 0, 390, 2400});
  }
  ~MoonRiseSetMonthViewTest() override {
    SettingsModel::setIsIPad(false);
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
  }

  void install(Instant date, const std::string& zoneOfPlace = "Etc/UTC") {
    MoonPhaseData::sharedInstance().SetSelectedLocation(placeIn(zoneOfPlace), date);
    month->installDayViews();
  }

  std::shared_ptr<MoonRiseSetDayView> row(std::size_t day) const {
    return std::dynamic_pointer_cast<MoonRiseSetDayView>(month->subviews().at(day - 1));
  }

  std::string label(std::size_t day) const { return row(day)->labelText().text(); }

  ScopedLocale english{"en_US"};
  ScopedDevice device{Device()};
  ScopedDefaultTimeZone zone{"Etc/UTC"};
  ScopedTextEngine textEngine{std::make_shared<FixedTextEngine>()};
  std::shared_ptr<MoonRiseSetMonthView> month = std::make_shared<MoonRiseSetMonthView>();
};

TEST_F(MoonRiseSetMonthViewTest, HasARowForEachDayWithItsItem) {
  install(noon(2024, 6, 14));
  const auto items = MoonPhaseData::sharedInstance().GetRiseSetPhaseItemsForCurrentMonth();
  EXPECT_EQ(month->monthRiseSetPhaseItems(), items);
  EXPECT_EQ(month->selectedDate(), noon(2024, 6, 14));
  ASSERT_EQ(month->subviews().size(), 30U);
  for (std::size_t day = 1; day <= 30; ++day) {
    EXPECT_EQ(row(day)->phaseItem(), items->at(static_cast<std::int64_t>(day))) << day;
  }
}

TEST_F(MoonRiseSetMonthViewTest, MonthsHaveAsManyRowsAsDays) {
  install(noon(2024, 2, 10));
  EXPECT_EQ(month->subviews().size(), 29U);
  install(noon(2023, 2, 10));
  EXPECT_EQ(month->subviews().size(), 28U);
  install(noon(2024, 12, 10));
  EXPECT_EQ(month->subviews().size(), 31U);
}

TEST_F(MoonRiseSetMonthViewTest, LabelsAreDayAndWeekday) {
  install(noon(2024, 6, 14));
  EXPECT_EQ(label(1), "1 Sat");
  EXPECT_EQ(label(2), "2 Sun");
  EXPECT_EQ(label(30), "30 Sun");
}

TEST_F(MoonRiseSetMonthViewTest, LabelsAreWrittenInTheUsersLanguageAndDigits) {
  const ScopedLocale arabic("ar_EG");
  install(noon(2024, 6, 14));
  EXPECT_EQ(label(14), "١٤ الجمعة");
  const ScopedLocale japanese("ja_JP");
  ProcessValues::resetAll();
  month->installDayViews();
  EXPECT_EQ(label(14), "14 金");
}

TEST_F(MoonRiseSetMonthViewTest, OnlyTheSelectedDayStandsOut) {
  install(noon(2024, 6, 14));
  for (std::size_t day = 1; day <= 30; ++day) {
    EXPECT_EQ(row(day)->isSelected(), day == 14) << day;
    const TextAttributes attributes = row(day)->labelText().paragraph();
    EXPECT_EQ(attributes.color.text(), day == 14 ? "#E3C796FF" : "#B3B3B3FF") << day;
    EXPECT_EQ(attributes.font, Font::systemFont(13)) << day;
    EXPECT_EQ(attributes.alignment, TextAlignment::center) << day;
    EXPECT_EQ(attributes.lineBreak, LineBreak::clipping) << day;
  }
}

// Noon of 14 June in Greenwich is already the 15th on Kiritimati, 14 hours ahead.
TEST_F(MoonRiseSetMonthViewTest, TheSelectedDayIsThatOfThePlace) {
  install(noon(2024, 6, 14), "Pacific/Kiritimati");
  EXPECT_FALSE(row(14)->isSelected());
  EXPECT_TRUE(row(15)->isSelected());
}

TEST_F(MoonRiseSetMonthViewTest, OnATabletLabelsAreLarger) {
  SettingsModel::setIsIPad(true);
  install(noon(2024, 6, 14));
  EXPECT_EQ(row(1)->labelText().paragraph().font, Font::systemFont(14));
  EXPECT_EQ(row(14)->labelText().paragraph().font, Font::systemFont(14));
}

TEST_F(MoonRiseSetMonthViewTest, LabelsAreCentredAndCut) {
  const TextAttributes plain = {.font = Font::systemFont(13),
                                .color = Color::withWhite(0.7, 1),
                                .alignment = TextAlignment::center,
                                .lineBreak = LineBreak::clipping};
  TextAttributes selected = plain;
  selected.color = {0.89, 0.78, 0.59, 1};
  EXPECT_EQ(MoonRiseSetMonthView::dateTextAttributes(), plain);
  EXPECT_EQ(MoonRiseSetMonthView::selectedDateTextAttributes(), selected);
}

TEST_F(MoonRiseSetMonthViewTest, TheLabelsAttributesAreMadeOnceAProcess) {
  install(noon(2024, 6, 14));
  SettingsModel::setIsIPad(true);
  month->installDayViews();
  EXPECT_EQ(row(1)->labelText().paragraph().font, Font::systemFont(13));
  ProcessValues::resetAll();
  month->installDayViews();
  EXPECT_EQ(row(1)->labelText().paragraph().font, Font::systemFont(14));
}

struct AlternateDay {
  std::int64_t type;
  const char* label;  ///< of 14 June 2024
};

// 14 June 2024 is 8 Sivan 5784, 8 Dhu al-Hijjah 1445, and the 14th in the Buddhist and Japanese calendars.
TEST_F(MoonRiseSetMonthViewTest, AnAlternateCalendarsDayTakesTheWeekdaysPlace) {
  const AlternateDay rows[] = {
      {0, "14 Fri"}, {1, "14 (8)"}, {2, "14 (8)"},  {3, "14 (14)"}, {4, "14 (14)"},
      {5, "14 Fri"}, {6, "14 Fri"}, {-1, "14 Fri"}, {7, "14 Fri"},
  };
  for (const AlternateDay& expected : rows) {
    month->setAlternateCalendarType(expected.type);
    EXPECT_EQ(month->alternateCalendarType(), expected.type);
    install(noon(2024, 6, 14));
    EXPECT_EQ(label(14), expected.label) << expected.type;
  }
}

// 7 June 2024 is the last day of Dhu al-Qi'dah, 29 days long, and 1 Sivan is on the same day.
TEST_F(MoonRiseSetMonthViewTest, AlternateMonthsBeginInTheMidstOfTheMonth) {
  install(noon(2024, 6, 14));
  month->setAlternateCalendarType(1);
  month->installDayViews();
  EXPECT_EQ(label(6), "6 (29)");
  EXPECT_EQ(label(7), "7 (1)");
  month->setAlternateCalendarType(2);
  month->installDayViews();
  EXPECT_EQ(label(6), "6 (29)");
  EXPECT_EQ(label(7), "7 (1)");
}

TEST_F(MoonRiseSetMonthViewTest, TheAlternateDaysAreThoseOfThePlace) {
  month->setAlternateCalendarType(1);
  for (const char* name : {"Etc/UTC", "Pacific/Kiritimati", "Pacific/Pago_Pago"}) {
    install(noon(2024, 6, 14), name);
    EXPECT_EQ(label(7), "7 (1)") << name;
  }
}

TEST_F(MoonRiseSetMonthViewTest, TheAlternateDayAndItsParenthesesHaveAColourOfTheirOwn) {
  month->setAlternateCalendarType(1);
  install(noon(2024, 6, 14));
  for (const std::size_t day : {13U, 14U}) {
    const AttributedText& text = row(day)->labelText();
    ASSERT_EQ(text.runs().size(), 2U);
    EXPECT_EQ(text.runs()[0].attributes.color.text(), day == 14 ? "#E3C796FF" : "#B3B3B3FF");
    EXPECT_EQ(text.runs()[1].attributes.color.text(), "#2E4073FF");
    EXPECT_EQ(text.text().substr(text.runs()[1].begin), day == 14 ? "(8)" : "(7)");
  }
}

TEST_F(MoonRiseSetMonthViewTest, BothDaysAreWrittenInTheUsersDigits) {
  const ScopedLocale arabic("ar_EG");
  month->setAlternateCalendarType(2);
  install(noon(2024, 6, 14));
  const AttributedText& text = row(14)->labelText();
  EXPECT_EQ(text.text(), "١٤ (٨)");
  EXPECT_EQ(text.text().substr(text.runs()[1].begin), "(٨)");
}

TEST_F(MoonRiseSetMonthViewTest, RowsFillTheWidthAndStandOnOneAnother) {
  install(noon(2024, 6, 14));
  month->layoutSubviews();
  for (std::size_t day = 1; day <= 30; ++day) {
    EXPECT_EQ(row(day)->frame(), (Rect{0, 80.0 * static_cast<double>(day - 1), 390, 80})) << day;
  }
}

TEST_F(MoonRiseSetMonthViewTest, RowsFollowTheWidth) {
  install(noon(2024, 6, 14));
  month->layoutSubviews();
  month->setFrame({0, 0, 844, 2400});
  month->layoutSubviews();
  EXPECT_EQ(row(30)->frame(), (Rect{0, 2320, 844, 80}));
}

TEST_F(MoonRiseSetMonthViewTest, RowsAreHeldByConstraints) {
  install(noon(2024, 6, 14));
  EXPECT_EQ(month->constraints().size(), 3U * 30);
  const auto first = LayoutConstraintAdditions::topConstraintForView(*row(1));
  ASSERT_NE(first, nullptr);
  EXPECT_TRUE(first->firstItem() == month || first->secondItem() == month);
  const auto second = LayoutConstraintAdditions::topConstraintForView(*row(2));
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->secondItem(), row(1));
  EXPECT_EQ(second->secondAttribute(), LayoutAttribute::bottom);
  EXPECT_EQ(second->constant(), 0);
}

TEST_F(MoonRiseSetMonthViewTest, InstallingAgainReplacesEveryRowAndConstraint) {
  month->addSubview(std::make_shared<View>());
  install(noon(2024, 6, 14));
  const auto former = month->subviews();
  install(noon(2024, 7, 20));
  ASSERT_EQ(month->subviews().size(), 31U);
  EXPECT_EQ(month->constraints().size(), 3U * 31);
  for (const auto& view : former) EXPECT_EQ(view->superview(), nullptr);
  EXPECT_EQ(label(20), "20 Sat");
  EXPECT_TRUE(row(20)->isSelected());
  EXPECT_EQ(month->selectedDate(), noon(2024, 7, 20));
  month->layoutSubviews();
  EXPECT_EQ(row(31)->frame(), (Rect{0, 2400, 390, 80}));
}

TEST_F(MoonRiseSetMonthViewTest, RowsStayAsInstalledWhenTheSelectionMoves) {
  install(noon(2024, 6, 14));
  MoonPhaseData::sharedInstance().SetSelectedDate(noon(2024, 7, 20));
  EXPECT_EQ(month->subviews().size(), 30U);
  EXPECT_TRUE(row(14)->isSelected());
}

TEST_F(MoonRiseSetMonthViewTest, IsAsHighAsItsRowsTogether) {
  EXPECT_EQ(month->intrinsicContentSize(), (Size{390, 0}));
  install(noon(2024, 6, 14));
  EXPECT_EQ(month->intrinsicContentSize(), (Size{390, 2400}));
  install(noon(2024, 7, 14));
  EXPECT_EQ(month->intrinsicContentSize(), (Size{390, 2480}));
}

class ViewOfHeight : public View {
 public:
  explicit ViewOfHeight(double height) : _height(height) {}
  Size intrinsicContentSize() const override { return {noIntrinsicMetric, _height}; }

 private:
  double _height;
};

TEST_F(MoonRiseSetMonthViewTest, HeightsAreCutToWholePointsAfterEachSubview) {
  for (int i = 0; i < 3; ++i) month->addSubview(std::make_shared<ViewOfHeight>(10.75));
  EXPECT_EQ(month->intrinsicContentSize(), (Size{390, 30}));
}

TEST_F(MoonRiseSetMonthViewTest, InstallingAsksForANewLayoutAround) {
  const auto around = std::make_shared<View>();
  around->addSubview(month);
  RecordingCanvas canvas;
  around->render(canvas);
  ASSERT_FALSE(around->needsDisplay());
  install(noon(2024, 6, 14));
  EXPECT_TRUE(around->needsDisplay());
}

TEST_F(MoonRiseSetMonthViewTest, TheFirstThreeDaysScrollToTheTop) {
  install(noon(2024, 6, 14));
  EXPECT_EQ(month->offsetForDay(0), 0);
  EXPECT_EQ(month->offsetForDay(1), 0);
  EXPECT_EQ(month->offsetForDay(2), 0);
  EXPECT_EQ(month->offsetForDay(3), 0);
  EXPECT_EQ(month->offsetForDay(4), 80);
  EXPECT_EQ(month->offsetForDay(30), 27 * 80);
}

TEST_F(MoonRiseSetMonthViewTest, OtherSubviewsAreNoRows) {
  install(noon(2024, 6, 14));
  while (!month->subviews().empty()) month->subviews().back()->removeFromSuperview();
  EXPECT_EQ(month->offsetForDay(10), 0) << "no subviews";
  month->addSubview(std::make_shared<View>());
  EXPECT_EQ(month->offsetForDay(10), 0) << "no rows";
  month->addSubview(std::make_shared<MoonRiseSetDayView>());
  EXPECT_EQ(month->offsetForDay(10), 560);
}

TEST_F(MoonRiseSetMonthViewTest, BeforeInstallationThereIsNothingToScrollTo) {
  EXPECT_EQ(month->offsetForDay(20), 0);
  EXPECT_EQ(month->selectedDate(), std::nullopt);
  EXPECT_EQ(month->monthRiseSetPhaseItems(), nullptr);
}

TEST_F(MoonRiseSetMonthViewTest, AYearWithoutATableHasRowsWithNumbersAlone) {
  install(noon(2050, 6, 14));
  EXPECT_EQ(month->monthRiseSetPhaseItems(), nullptr);
  ASSERT_EQ(month->subviews().size(), 30U);
  EXPECT_EQ(label(14), "14");
  EXPECT_TRUE(row(14)->isSelected());
  EXPECT_EQ(row(14)->phaseItem(), nullptr);
  EXPECT_EQ(month->offsetForDay(20), 0);
}

TEST_F(MoonRiseSetMonthViewTest, BeforeADateIsSelectedNoRowIsSelected) {
  month->installDayViews();
  EXPECT_EQ(month->selectedDate(), std::nullopt);
  for (const auto& view : month->subviews()) {
    EXPECT_FALSE(std::dynamic_pointer_cast<MoonRiseSetDayView>(view)->isSelected());
  }
}

TEST_F(MoonRiseSetMonthViewTest, TheThemeIsKeptForTheHostAndRowsUseTheSharedOne) {
  EXPECT_EQ(month->colorTheme(), nullptr);
  const auto own = std::make_shared<VelmoraTheme>();
  month->setColorTheme(own);
  install(noon(2024, 6, 14));
  EXPECT_EQ(month->colorTheme(), own);
  EXPECT_EQ(row(1)->calendarTheme(), VelmoraTheme::calendarTheme());
}

}  // namespace
}  // namespace velmora
