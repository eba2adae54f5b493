#include "tests/views/YearViewTesting.h"

namespace velmora {
namespace {

using testing::placeAt;
using testing::utc;
using testing::YearViewTest;
using Lines = std::vector<std::string>;

/// What stands above the grid: one title, or two texts of the selected moon.
class YearHeaderTest : public YearViewTest {
 protected:
  Lines header() {
    const Lines texts = drawn("drawText ");
    return {texts.end() - (year->selectedPhaseItem() ? 2 : 1), texts.end()};
  }
};

TEST_F(YearHeaderTest, WithoutASelectionItNamesPhaseAndYear) {
  show(utc(2026, 5, 15));
  EXPECT_EQ(header(),
            Lines{"drawText \"Full Moon - Year Calendar (2026)\" at 55 12 System bold 16 #B3B3B3FF"});
  year->setFilteredPhase(kNewMoon);
  EXPECT_EQ(header(),
            Lines{"drawText \"New Moon - Year Calendar (2026)\" at 59 12 System bold 16 #B3B3B3FF"});
}

TEST_F(YearHeaderTest, TheYearIsThatOfTheLastMoonDrawn) {
  show(utc(2026, 5, 15));
  showAlone(moon(2031, 1, 8, 4));
  EXPECT_NE(header().at(0).find("(2031)"), std::string::npos);
  showAlone(moon(2031, 1, 8, 4, kNewMoon));
  EXPECT_NE(header().at(0).find("(2026)"), std::string::npos) << "none drawn: the year that was loaded";
}

TEST_F(YearHeaderTest, TheSelectedMoonsTimeAndElevationStandAtTheEdges) {
  show(utc(2026, 5, 31));
  EXPECT_EQ(header(), (Lines{"drawText \"FULL MOON at 8:45\u202FAM\" at 8 13.5 System bold 13 #B3B3B3FF",
                             "drawText \"ELEVATION: -46.9\" at 254 13.5 System bold 13 #B3B3B3FF"}));
  year->setFilteredPhase(kNewMoon);
  service().SetSelectedDate(utc(2026, 5, 16));
  year->calendarDateChanged();
  EXPECT_EQ(header(), (Lines{"drawText \"NEW MOON at 8:01\u202FPM\" at 8 13.5 System bold 13 #B3B3B3FF",
                             "drawText \"ELEVATION: 0.8\" at 267 13.5 System bold 13 #B3B3B3FF"}));
}

// The Moon is full at 11:38 in Greenwich, when it is down; it is 03:38 in San Francisco. The elevation is
// that at 03:38 in Greenwich.
TEST_F(YearHeaderTest, TheElevationIsThatAtTheItemsShiftedInstant) {
  show(utc(2026, 3, 3), placeAt(37.785, "America/Los_Angeles"));
  ASSERT_NE(year->selectedPhaseItem(), nullptr);
  EXPECT_EQ(header().at(1).substr(0, 26), "drawText \"ELEVATION: 32.3\"");
}

TEST_F(YearHeaderTest, WithoutAPlaceTheElevationIsZero) {
  service().SetSelectedDate(utc(2026, 5, 31));
  year->calendarDateChanged();
  ASSERT_NE(year->selectedPhaseItem(), nullptr);
  EXPECT_EQ(header().at(1).substr(0, 24), "drawText \"ELEVATION: 0\" ");
}

struct Texts {
  const char* language;
  std::int64_t phase;
  std::int64_t day;  ///< of May 2026: of the phase, or another
  const char* first;
};

constexpr Texts texts[] = {
    {"de_DE", kFullMoon, 31, "VOLLMOND um 08:45"},
    {"de_DE", kNewMoon, 16, "NEUMOND um 20:01"},
    {"de_DE", kFullMoon, 15, "Vollmond – Jahreskalender (2026)"},
    {"de_DE", kNewMoon, 15, "Neumond – Jahreskalender (2026)"},
    {"ja_JP", kFullMoon, 15, "満月の年間カレンダー（2026年）"},
    {"ja_JP", kNewMoon, 16, "新月 時刻: 20:01"},
    {"ar_EG", kNewMoon, 15, "المحاق – التقويم السنوي (٢٠٢٦)"},
};

TEST_F(YearHeaderTest, TextsAreInTheUsersLanguage) {
  for (const Texts& row : texts) {
    const ScopedLocale locale(row.language);
    startAfresh();
    useNewView();
    year->setFilteredPhase(row.phase);
    show(utc(2026, 5, row.day));
    EXPECT_TRUE(header().at(0).starts_with("drawText \"" + std::string(row.first) + "\" at "))
        << header().at(0);
  }
}

TEST_F(YearHeaderTest, TheElevationHasTheUsersDecimalSign) {
  const ScopedLocale german("de_DE");
  useNewView();
  show(utc(2026, 5, 31));
  EXPECT_TRUE(header().at(1).starts_with("drawText \"HÖHE: -46,9\""));
  const ScopedLocale englishAgain("en_US");
  EXPECT_NE(header().at(1).find("-46,9"), std::string::npos) << "as the view first wrote it";
}

struct Screen {
  const char* name;
  bool isTablet;
  double width;
  double dateSize, titleSize, subtitleSize, textSize;
};

constexpr Screen screens[] = {
    {"narrow phone", false, 320, 11, 16, 15, 13},
    {"phone", false, 321, 13, 16, 15, 13},
    {"tablet", true, 768, 17, 21, 19, 17},
    {"narrow tablet", true, 320, 17, 21, 19, 17},
};

TextAttributes centred(const Font& font, const Color& color) {
  return {.font = font, .color = color, .alignment = TextAlignment::center, .lineBreak = LineBreak::clipping};
}

TEST_F(YearViewTest, TextIsAsLargeAsTheScreenAllows) {
  const VelmoraTheme& theme = *VelmoraTheme::defaultTheme();
  for (const Screen& screen : screens) {
    SCOPED_TRACE(screen.name);
    const ScopedDevice onScreen(Device{.screenWidth = screen.width});
    startAfresh();
    SettingsModel::setIsIPad(screen.isTablet);
    EXPECT_EQ(MoonPhaseYearView::dateTextAttributes(),
              centred(Font::systemFont(screen.dateSize), theme.defaultTextColor));
    EXPECT_EQ(MoonPhaseYearView::selectedDateTextAttributes(),
              centred(Font::systemFont(screen.dateSize), theme.selectedBackgroundColor));
    EXPECT_EQ(MoonPhaseYearView::headerCenterTitleTextAttributes(),
              centred(Font::boldSystemFont(screen.titleSize), theme.defaultTextColor));
    EXPECT_EQ(MoonPhaseYearView::headerTitleTextAttributes(),
              centred(Font::boldSystemFont(screen.subtitleSize), theme.defaultTextColor));
    EXPECT_EQ(MoonPhaseYearView::headerTextAttributes(),
              centred(Font::boldSystemFont(screen.textSize), theme.defaultTextColor));
  }
}

using Attributes = const TextAttributes& (*)();

constexpr Attributes attributes[] = {
    &MoonPhaseYearView::dateTextAttributes,
    &MoonPhaseYearView::selectedDateTextAttributes,
    &MoonPhaseYearView::headerCenterTitleTextAttributes,
    &MoonPhaseYearView::headerTitleTextAttributes,
    &MoonPhaseYearView::headerTextAttributes,
};

TEST_F(YearViewTest, TextAttributesStayAsFirstUsed) {
  for (const Attributes attributesOf : attributes) {
    const TextAttributes first = attributesOf();
    SettingsModel::setIsIPad(true);
    EXPECT_EQ(attributesOf(), first);
    ProcessValues::resetAll();
    EXPECT_NE(attributesOf(), first);
    SettingsModel::setIsIPad(false);
  }
}

}  // namespace
}  // namespace velmora
