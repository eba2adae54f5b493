#include <algorithm>
#include <sstream>

#include <app/request/DrawableView.h>
#include <velmora/foundation/SettingsModel.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/system/Log.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/views/VelmoraTheme.h>

#include "PictureTesting.h"

namespace velmora::app {
namespace {

class EachView : public PictureTest, public ::testing::WithParamInterface<std::string> {};

INSTANTIATE_TEST_SUITE_P(Draw, EachView, ::testing::ValuesIn([] {
                           std::vector<std::string> names;
                           for (const auto& view : allViews()) names.emplace_back(view.name);
                           return names;
                         }()),
                         [](const auto& name) { return name.param; });

TEST_P(EachView, HasTheSizeThatIsAskedForInEveryFormat) {
  const std::vector<std::string> arguments = {GetParam(), "--size", "300x420", "--scale", "1.5"};
  EXPECT_EQ(picture(arguments).size(), (PixelSize{450, 630}));
  EXPECT_EQ(statedSize(draw(arguments, "picture.svg")), (Size{300, 420}));
  EXPECT_EQ(statedSize(draw(arguments, "picture.PDF")), (Size{300, 420}));
}

TEST_P(EachView, HasAUsualSizeAndLiesOnTheCalendarsBackground) {
  const DrawnPicture drawn = picture({GetParam()});
  EXPECT_GE(drawn.size().width, 240);
  EXPECT_GE(drawn.size().height, 64);
  const Color background = VelmoraTheme::calendarTheme()->backgroundColor;
  EXPECT_EQ(drawn.has(background, 0, 0), !isOnPaper(*findView(GetParam())));
  EXPECT_LT(drawn.count(background), drawn.whole().width * drawn.whole().height * 0.99);
}

TEST_P(EachView, IsDrawnFromOnePixelOn) {
  for (const char* size : {"1x1", "1x500", "500x1", "20x20"}) {
    draw({GetParam(), "--size", size}, "picture.png");
    draw({GetParam(), "--size", size}, "picture.svg");
  }
  EXPECT_EQ(picture({GetParam(), "--size", "1x1"}).size(), (PixelSize{1, 1}));
}

TEST_P(EachView, ReadsFromRightToLeftAndInOtherScripts) {
  const ScopedLogRecord log;
  for (const char* locale : {"ar_EG", "he_IL", "ja_JP", "hi_IN", "zh_TW"})
    EXPECT_GT(picture(onATablet({GetParam(), "--locale", locale, "--rtl"})).size().width, 0) << locale;
  EXPECT_EQ(log.messages(), std::vector<std::string>());
}

TEST_P(EachView, IsTheSameForEveryRequestWhateverWasDrawnBefore) {
  const std::string first = bytesOf(draw({GetParam()}));
  draw(onATablet({GetParam(), "--locale", "ar_EG", "--rtl", "--city", "Sydney", "--24h"}), "other.png");
  draw({"month", "--theme", "default", "--calendar", "hebrew"}, "month.png");
  EXPECT_EQ(bytesOf(draw({GetParam()})), first);
}

using DrawTest = PictureTest;

TEST_F(DrawTest, SaysWhatItWrote) {
  const std::string file = path("month.png");
  EXPECT_EQ(answer({"draw", "month", "--size", "300x400", "--scale", "2", "--output", file}),
            "Wrote " + file + ", 600 x 800 pixels\n");
  EXPECT_EQ(json({"draw", "month", "--size", "300x400", "-o", file}),
            Json({{"view", "month"}, {"output", file}, {"width", 300}, {"height", 400}}));
  const std::string svg = path("month.svg");
  EXPECT_EQ(answer({"draw", "month", "--size", "300x400", "--scale", "2", "-o", svg}),
            "Wrote " + svg + ", 300 x 400 points\n");
  EXPECT_EQ(answer({"draw", "month", "--size", "300.5x400", "--output", svg}),
            "Wrote " + svg + ", 300.5 x 400 points\n");
  EXPECT_EQ(json({"draw", "month", "--size", "300.5x400", "--output", svg})["width"], 300.5);
  EXPECT_EQ(statedSize(svg), (Size{300.5, 400}));
}

TEST_F(DrawTest, UsualSizes) {
  EXPECT_EQ(picture({"month"}).size().width, 390);
  EXPECT_EQ(picture({"month", "--calendar", "islamic"}).size().width, 768);
  EXPECT_EQ(picture({"month", "--tablet"}).size().width, 768);
  EXPECT_EQ(picture({"riseset", "--no-title"}).size(), (PixelSize{768, 30 * 80}));
  EXPECT_EQ(picture({"riseset", "--no-title", "--date", "2023-02-01"}).size(), (PixelSize{768, 28 * 80}));
}

TEST_F(DrawTest, BackgroundIsTransparentOrAnyColour) {
  EXPECT_TRUE(picture({"month", "--background", "none"}).has(Color::clear(), 0, 0));
  EXPECT_TRUE(picture({"month", "--background", "#102030"}).has(*Color::fromText("#102030"), 0, 0));
  EXPECT_TRUE(picture({"month", "--background", "FFFFFF"}).has(Color::white(), 0, 0));
  EXPECT_TRUE(picture({"month", "--background", "black"}).has(Color::black(), 0, 0));
}

constexpr Rect titleBand = {0, 0, 390, 56};

int paintedPixels(const DrawnPicture& drawn, Rect within) {
  return static_cast<int>(within.width * within.height) - drawn.count(Color::clear(), within);
}

/// How many texts stand side by side in the band, with at least 8 points between two of them.
int textsIn(const DrawnPicture& drawn, Rect band) {
  int texts = 0;
  double blank = 8;
  for (double x = band.x; x < band.maxX(); ++x) {
    const bool isPainted = paintedPixels(drawn, {x, band.y, 1, band.height}) > 0;
    if (isPainted && blank >= 8) ++texts;
    blank = isPainted ? 0 : blank + 1;
  }
  return texts;
}

TEST_F(DrawTest, TimelineHasRoomForTheHoursOfEveryLanguage) {
  for (const char* language : {"ar", "de", "en", "es", "fr", "he", "hi", "it", "ja", "ko", "nl", "pl", "pt",
                               "ru", "tr", "zh-Hans", "zh-Hant"}) {
    const DrawnPicture drawn =
        picture({"timeline", "--no-title", "--background", "none", "--locale", language});
    const double width = drawn.whole().width;
    EXPECT_EQ(textsIn(drawn, {0, 36, width, 17}), 7) << language;
    const double dayEnd = Locale(language).isRightToLeft() ? 10 : width - 11;
    EXPECT_EQ(paintedPixels(drawn, {dayEnd, 36, 1, 17}), 0) << "the last hour is cut in " << language;
  }
}

TEST_F(DrawTest, TitleStandsAboveTheViewUnlessItIsLeftOut) {
  const DrawnPicture titled = picture({"disc", "--background", "none"});
  const DrawnPicture bare = picture({"disc", "--background", "none", "--no-title"});
  EXPECT_EQ(titled.size(), (PixelSize{240, 240 + 56}));
  EXPECT_EQ(bare.size(), (PixelSize{240, 240}));
  EXPECT_GT(paintedPixels(titled, {0, 0, 240, 56}), 300);
  const std::size_t titleBytes = 4 * 240 * 56;
  EXPECT_TRUE(std::equal(bare.pixels().begin(), bare.pixels().end(), titled.pixels().begin() + titleBytes));
}

TEST_F(DrawTest, TitleOfThePicturesStandsWhereTheViewLeavesRoom) {
  const DrawnPicture titled = picture({"images", "--background", "none"});
  const DrawnPicture bare = picture({"images", "--background", "none", "--no-title"});
  EXPECT_EQ(titled.size(), bare.size());
  EXPECT_EQ(paintedPixels(bare, {0, 0, 390, 90}), 0);
  EXPECT_GT(paintedPixels(titled, {0, 0, 390, 90}), 300);
}

TEST_F(DrawTest, TitleOfALongNameFitsThePicture) {
  const DrawnPicture drawn =
      picture({"month", "--background", "none", "--name",
               "Llanfairpwllgwyngyllgogerychwyrndrobwllllantysiliogogogoch on the Isle of Anglesey"});
  EXPECT_GT(paintedPixels(drawn, titleBand), 300);
  EXPECT_EQ(paintedPixels(drawn, {0, 0, 9, 56}), 0);
  EXPECT_EQ(paintedPixels(drawn, {381, 0, 9, 56}), 0);
}

TEST_F(DrawTest, TitleOfANameLongerThanALineShowsItsBeginning) {
  const std::string beginning(80, 'M');
  const DrawnPicture drawn = picture({"month", "--background", "none", "--name", beginning + "and the end"});
  EXPECT_EQ(drawn.pixels(), picture({"month", "--background", "none", "--name", beginning}).pixels());
  EXPECT_GT(paintedPixels(drawn, {10, 28, 370, 28}), 1000);
  EXPECT_EQ(paintedPixels(drawn, {0, 0, 9, 56}), 0);
  EXPECT_EQ(paintedPixels(drawn, {381, 0, 9, 56}), 0);
}

TEST_F(DrawTest, TitleNamesThePlaceAndTheMonthInTheLanguage) {
  const std::string here = bytesOf(draw({"month", "--lat", "60", "--lon", "25"}));
  EXPECT_NE(bytesOf(draw({"month", "--lat", "60", "--lon", "25", "--name", "Home"})), here);
  EXPECT_NE(picture({"month", "--locale", "fr_FR", "--size", "390x596"}).pixels(),
            picture({"month", "--locale", "fr_CA", "--date", "2024-07-20", "--size", "390x596"}).pixels());
}

int countOf(const std::string& part, const std::string& text) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST_F(DrawTest, AVectorPictureHoldsNoPixels) {
  const std::vector<std::vector<std::string>> pictures = {{"disc"},    {"disc", "--theme", "default"},
                                                          {"month"},   {"month", "--theme", "default"},
                                                          {"year"},    {"compass"},
                                                          {"azel"},    {"chart"},
                                                          {"timeline"}};
  for (std::vector<std::string> arguments : pictures) {
    arguments.insert(arguments.end(), {"--date", "2024-03-16"});
    EXPECT_EQ(countOf("<image", bytesOf(draw(arguments, "picture.svg"))), 0) << arguments[0];
    EXPECT_EQ(countOf("/Subtype /Image", bytesOf(draw(arguments, "picture.pdf"))), 0) << arguments[0];
  }
}

TEST_F(DrawTest, AVectorPictureMayBeAsLargeAsAnyOther) {
  for (const char* name : {"picture.svg", "picture.pdf"}) {
    draw({"riseset", "--size", "390x16384", "--date", "2024-03-16"}, name);
    draw({"month", "--theme", "default", "--size", "16384x16384"}, name);
  }
}

TEST_F(DrawTest, AVectorPictureOfRiseAndSetHoldsPixelsOfTheIconsAlone) {
  const std::vector<std::string> march = {"riseset", "--date", "2024-03-16"};
  const std::string svg = bytesOf(draw(march, "picture.svg"));
  EXPECT_EQ(countOf("<image", svg), 121) << "two of the Sun a day, two of the Moon less one";
  EXPECT_GT(countOf("<path", svg), 31 * 8);
  EXPECT_GT(countOf("/Font", bytesOf(draw(march, "picture.pdf"))), 0);
}

TEST_F(DrawTest, DiscIsLitOnTheOtherSideSouthOfTheEquator) {
  const Color lit = VelmoraTheme::calendarTheme()->lightTextColor;
  const std::vector<std::string> quarter = {"--date", "2024-06-14", "--no-title", "--tz", "UTC"};
  const auto side = [&](const char* latitude) {
    std::vector<std::string> arguments = {"disc", "--lat", latitude, "--lon", "0"};
    arguments.insert(arguments.end(), quarter.begin(), quarter.end());
    return picture(arguments).middle(lit).x;
  };
  EXPECT_GT(side("40"), 130);
  EXPECT_LT(side("-40"), 110);
}

TEST_F(DrawTest, MonthRunsFromTheOtherSideFromRightToLeft) {
  const Color lit = VelmoraTheme::calendarTheme()->lightTextColor;
  const Rect left = {0, 100, 190, 90}, right = {200, 100, 190, 90};
  const std::vector<std::string> junStartsOnSaturday = {"month", "--date", "2024-06-20"};
  EXPECT_EQ(picture(junStartsOnSaturday).count(lit, left), 0);
  EXPECT_GT(picture(junStartsOnSaturday).count(lit, right), 100);
  EXPECT_GT(picture({"month", "--date", "2024-06-20", "--rtl"}).count(lit, left), 100);
  EXPECT_GT(picture({"month", "--date", "2024-06-20", "--week-start", "saturday"}).count(lit, left), 100);
}

TEST_F(DrawTest, MonthRingsADayWithAnEclipseUnlessHidden) {
  const std::vector<std::string> losAngeles = {"month", "--city", "Los Angeles", "--date", "2024-03-10"};
  std::vector<std::string> hidden = losAngeles;
  hidden.emplace_back("--hide-eclipses");
  EXPECT_GT(picture(losAngeles).count(Color::cyan()), 50);
  EXPECT_EQ(picture(hidden).count(Color::cyan()), 0);
}

TEST_F(DrawTest, MonthMarksTheDayAskedForAndTheRealToday) {
  const std::string selected = bytesOf(draw({"month", "--date", "2024-06-12"}));
  EXPECT_NE(bytesOf(draw({"month", "--date", "2024-06-13"})), selected);
  EXPECT_NE(bytesOf(draw({"month", "--date", "2024-06-12", "--now", "2024-06-25T12:00:00Z"})), selected);
}

TEST_F(DrawTest, EachCalendarWritesNumbersOfItsOwn) {
  std::set<std::string> pictures = {bytesOf(draw({"month", "--size", "768x900"}))};
  for (const char* calendar : {"hebrew", "islamic", "chinese", "indian"})
    pictures.insert(bytesOf(draw({"month", "--size", "768x900", "--calendar", calendar})));
  EXPECT_EQ(pictures.size(), 5U);
  EXPECT_EQ(bytesOf(draw({"month", "--calendar", "buddhist"})),
            bytesOf(draw({"month", "--calendar", "japanese"})))
      << "their days are the Gregorian ones";
}

TEST_F(DrawTest, ThemeColoursTheDark) {
  const auto dark = [&](const char* theme) {
    return picture({"disc", "--no-title", "--background", "none", "--date", "2024-06-10", "--theme", theme})
        .pixel(60, 120);
  };
  EXPECT_EQ(dark("calendar")[3], 255);
  EXPECT_EQ(dark("default")[3], std::lround(0.325 * 255));
}

TEST_F(DrawTest, YearShowsFullOrNewMoons) {
  const Color lit = VelmoraTheme::defaultTheme()->defaultTextColor;
  const int full = picture({"year", "--no-title"}).count(lit);
  EXPECT_GT(full, 12 * 500);
  EXPECT_EQ(picture({"year", "--no-title", "--phase", "full"}).count(lit), full);
  EXPECT_LT(picture({"year", "--no-title", "--phase", "new"}).count(lit), full / 2);
}

TEST_F(DrawTest, RiseSetShowsTheRowsAroundTheSelectedDay) {
  const Color selected = VelmoraTheme::calendarTheme()->selectedBackgroundColor;
  const auto placeOfDay = [&](const char* date) {
    return picture({"riseset", "--no-title", "--size", "390x400", "--date", date}).middle(selected).y;
  };
  EXPECT_NEAR(placeOfDay("2024-06-01"), 40, 15);
  EXPECT_NEAR(placeOfDay("2024-06-03"), 200, 15);
  EXPECT_NEAR(placeOfDay("2024-06-04"), 200, 15);
  EXPECT_NEAR(placeOfDay("2024-06-20"), 200, 15);
  EXPECT_NEAR(placeOfDay("2024-06-30"), 360, 15) << "the list ends with the picture";
}

TEST_F(DrawTest, RiseSetWritesTheTimesInTheFormAskedFor) {
  EXPECT_NE(bytesOf(draw({"riseset", "--size", "768x400", "--24h"})),
            bytesOf(draw({"riseset", "--size", "768x400", "--12h"})));
}

TEST_F(DrawTest, CharactersOfNoFontAreNamedInTheLog) {
  const ScopedLogRecord log;
  draw({"month", "--name", "A\xF4\x8F\xBF\xBD"});
  ASSERT_EQ(log.messages().size(), 1U);
  EXPECT_EQ(log.messages().front(), "velmora: no installed font has '\xF4\x8F\xBF\xBD'");
}

TEST_F(DrawTest, SkyIsDrawnInYearsWithoutPhaseTables) {
  for (const char* view : {"compass", "azel", "chart", "timeline"}) draw({view, "--date", "1950-01-01"});
}

TEST_F(DrawTest, LeavesTheDeviceAsItWas) {
  const ScopedDevice device({.screenWidth = 111});
  draw({"month", "--tablet", "--rtl"});
  EXPECT_FALSE(SettingsModel::isIPad());
  EXPECT_EQ(Device::current().screenWidth, 111);
  EXPECT_EQ(Device::current().forcedDirection, std::nullopt);
}

/// Of the dates below a year's discs, written as the view does.
double widestDate(const std::string& language) {
  const ScopedLocale locale(language);
  double widest = 0;
  for (const std::string& month : VelmoraCalendar::shortMonthStrings()) {
    for (const std::int64_t day : {20, 28, 30}) {
      const AttributedText date(month + " " + NumberFormatter().stringFromNumber(day),
                                {.font = Font::systemFont(13)});
      widest = std::max(widest, TextLayout(date).width());
    }
  }
  return widest;
}

/// Every language that has dates of its own, some in each test: faces of many scripts take long to find.
class YearInLanguages : public PictureTest, public ::testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(Draw, YearInLanguages,
                         ::testing::Values("af am ar as az be bg bn bs", "ca cs cy da de el en es et eu",
                                           "fa fi fil fr ga gl gu he hi", "hr hu hy id is it ja ka kk",
                                           "km kn ko ky lo lt lv mk ml", "mn mr ms my nb ne nl or pa pl",
                                           "ps pt ro ru sd si sk sl sq", "sr sv sw ta te th tr uk ur",
                                           "uz vi yue zh zu"));

TEST_P(YearInLanguages, HasRoomForItsDates) {
  std::istringstream languages(GetParam());
  for (std::string language; languages >> language;) {
    const double width = picture({"year", "--locale", language}).whole().width;
    EXPECT_GE(width, 460) << language;
    EXPECT_LE(width, 700) << language;
    EXPECT_GE(std::floor((width - 16) / 7), widestDate(language)) << language;
  }
}

TEST_F(DrawTest, YearIsWiderInALanguageOfLongMonths) {
  EXPECT_GT(picture({"year", "--locale", "fi"}).whole().width, 460) << "marrask. 15";
}

TEST_F(DrawTest, TitleIsReadableOnEveryBackground) {
  const auto title = [&](const char* background) {
    const DrawnPicture drawn = picture({"disc", "--background", background});
    int darkest = 255, lightest = 0;
    for (std::int64_t y = 0; y < 56; ++y) {
      for (std::int64_t x = 0; x < 240; ++x) {
        darkest = std::min(darkest, drawn.pixel(x, y)[0]);
        lightest = std::max(lightest, drawn.pixel(x, y)[0]);
      }
    }
    return std::pair(darkest, lightest);
  };
  EXPECT_LT(title("white").first, 80);
  EXPECT_LT(title("ffe0a0").first, 80);
  EXPECT_GT(title("black").second, 190);
  EXPECT_GT(title("602020").second, 190);
}

TEST_F(DrawTest, TheDefaultThemeIsInkOnALightBackground) {
  const DrawnPicture drawn = picture({"month", "--theme", "default", "--background", "white", "--no-title"});
  EXPECT_GT(drawn.count(Color::withWhite(0.44, 1)), 1000) << "the lit parts and the letters";
  EXPECT_EQ(VelmoraTheme::defaultTheme()->lightTextColor, Color::withWhite(0.8, 1))
      << "for this picture alone";
}

TEST_F(DrawTest, AMonthBeginsWithTheWeekdayOfTheLocale) {
  const std::vector<std::string> june = {"month", "--date", "2024-06-20"};
  const auto drawn = [&](std::vector<std::string> more) {
    more.insert(more.begin(), june.begin(), june.end());
    return bytesOf(draw(more));
  };
  EXPECT_EQ(drawn({"--locale", "en_GB"}), drawn({"--locale", "en_GB", "--week-start", "monday"}));
  EXPECT_EQ(drawn({"--locale", "en_US"}), drawn({"--locale", "en_US", "--week-start", "sunday"}));
  EXPECT_NE(drawn({"--locale", "en_GB"}), drawn({"--locale", "en_GB", "--week-start", "sunday"}));
}

TEST_F(DrawTest, ASmallDiscIsThere) {
  const DrawnPicture drawn = picture({"disc", "--size", "20x20", "--date", "2024-06-21"});
  EXPECT_GT(drawn.count(VelmoraTheme::calendarTheme()->lightTextColor), 100);
}

TEST_F(DrawTest, HelpNamesEachViewAndSaysThatTheChartIsASample) {
  const std::string help = answer({"draw", "--help"});
  for (const DrawableView& view : allViews())
    EXPECT_NE(help.find("\n  " + std::string(view.name) + " "), std::string::npos) << view.name;
  EXPECT_NE(help.find("a fixed example in English"), std::string::npos);
}

}  // namespace
}  // namespace velmora::app
