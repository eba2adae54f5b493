#include <sstream>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>

#include "tests/support/GoldenPicture.h"
#include "tests/views/MonthViewTesting.h"

namespace velmora {
namespace {

using testing::honolulu;
using testing::looksLikeGolden;
using testing::MonthViewTest;
using testing::placeAt;
using testing::utc;

constexpr Size phoneSize = {390, 600};
constexpr Size wideSize = {768, 650};  // where a label holds two numbers

/// Months drawn with the installed fonts on the calendar theme's background.
class MonthPicturesTest : public MonthViewTest {
 protected:
  CairoCanvas pictureOf(Size size, PictureFormat format = PictureFormat::png, double scale = 1) {
    view->setFrame({0, 0, size.width, size.height});
    CairoCanvas canvas(format, size, scale, VelmoraTheme::calendarTheme()->backgroundColor);
    view->render(canvas);
    EXPECT_EQ(canvas.error(), std::nullopt) << size.width << " x " << size.height;
    EXPECT_TRUE(canvas.uncoveredCharacters().empty());
    return canvas;
  }

  ScopedTextEngine installedFonts{nullptr};
};

TEST_F(MonthPicturesTest, OnAPhone) {
  const ScopedNow today(utc(2024, 6, 14));
  select(utc(2024, 6, 20));
  CairoCanvas picture = pictureOf(phoneSize);
  EXPECT_TRUE(looksLikeGolden(picture, "month-phone"));
}

TEST_F(MonthPicturesTest, InArabicWithTheIslamicCalendar) {
  const ScopedLocale arabic("ar_EG");
  view = std::make_shared<iPhoneCalendarView>();
  view->setAlternateCalendarType(kIslamicUmmAlQuraCalendar);
  select(utc(2026, 2, 14));
  CairoCanvas picture = pictureOf(wideSize);
  EXPECT_TRUE(looksLikeGolden(picture, "month-arabic"));
}

TEST_F(MonthPicturesTest, InHebrewWithTheHebrewCalendar) {
  const ScopedLocale hebrew("he_IL");
  view = std::make_shared<iPhoneCalendarView>();
  view->setAlternateCalendarType(kHebrewCalendar);
  select(utc(2026, 2, 14));
  CairoCanvas picture = pictureOf(wideSize);
  EXPECT_TRUE(looksLikeGolden(picture, "month-hebrew"));
}

TEST_F(MonthPicturesTest, SouthOfTheEquatorInWeeksFromMonday) {
  view->setWeekStartDay(1);
  select(utc(2024, 6, 14), placeAt(-33.9));
  CairoCanvas picture = pictureOf(phoneSize);
  EXPECT_TRUE(looksLikeGolden(picture, "month-south"));
}

TEST_F(MonthPicturesTest, WithEclipses) {
  const ScopedNow today(utc(2000, 7, 16, 23));
  select(utc(2000, 7, 16, 23), honolulu());
  CairoCanvas picture = pictureOf(phoneSize);
  EXPECT_TRUE(looksLikeGolden(picture, "month-eclipses"));
}

TEST_F(MonthPicturesTest, VectorPicturesHoldNoImages) {
  select(utc(2026, 2, 14));
  CairoCanvas picture = pictureOf(phoneSize, PictureFormat::svg);
  std::ostringstream svg;
  ASSERT_EQ(picture.write(svg), std::nullopt);
  EXPECT_NE(svg.str().find("<path"), std::string::npos);
  EXPECT_EQ(svg.str().find("<image"), std::string::npos);
}

TEST_F(MonthPicturesTest, AnySizeIsDrawnWithoutAnError) {
  const ScopedNow today(utc(2026, 2, 14));
  select(utc(2026, 2, 14));
  for (const bool isTablet : {false, true}) {
    SettingsModel::setIsIPad(isTablet);
    for (const double width : {1.0, 2.0, 18.0, 50.0, 74.0, 75.0, 200.0}) {
      for (const double height : {1.0, 40.0, 50.0, 51.0, 200.0}) pictureOf({width, height});
    }
  }
}

TEST_F(MonthPicturesTest, EveryLanguagesCharactersHaveGlyphs) {
  for (const char* language : {"ar", "de", "en", "es", "fr", "he", "hi", "it", "ja", "ko", "nl", "pl", "pt",
                               "ru", "tr", "zh-Hans", "zh-Hant"}) {
    const ScopedLocale locale(language);
    startAfresh();
    view = std::make_shared<iPhoneCalendarView>();
    select(utc(2026, 2, 14));
    for (std::int64_t type = kNoAlternateCalendar; type <= kIndianCalendar; ++type) {
      view->setAlternateCalendarType(type);
      pictureOf({200, 200});
    }
  }
}

}  // namespace
}  // namespace velmora
