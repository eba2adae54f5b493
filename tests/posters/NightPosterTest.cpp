#include <velmora/posters/NightPoster.h>

#include <gtest/gtest.h>

#include "tests/posters/PosterTesting.h"
#include "tests/support/GoldenPicture.h"

#include <velmora/platform/time/Locale.h>
#include <velmora/posters/NightSky.h>

namespace velmora {
namespace {

using std::chrono::year;
using testing::expectReadable;
using testing::labelsOf;

std::vector<std::string> textsAcross(const Poster& poster) {
  std::vector<std::string> texts;
  for (const Label& label : labelsOf(poster, paperSize(Paper::a4, true))) texts.push_back(label.text);
  return texts;
}

bool has(const std::vector<std::string>& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::vector<Daypart> partsOf(const PosterPlace& place, std::chrono::year_month_day date) {
  std::vector<Daypart> parts;
  const NightSky night = NightSky::of(place, date).value();
  for (const DaypartStretch& stretch : daypartStretches(night)) parts.push_back(stretch.part);
  return parts;
}

// Sun and Moon of that night as printed by the almanac's events.
TEST(NightPoster, TellsTheTimesOfTheNight) {
  const ScopedLocale german("de_DE");
  const auto texts = textsAcross(NightPoster(testing::helsinki(), year(2026) / 11 / 22));
  EXPECT_TRUE(has(texts, "Sonntag, 22. November 2026"));
  EXPECT_TRUE(has(texts, "Helsinki"));
  EXPECT_TRUE(has(texts, "15:36"));
  EXPECT_TRUE(has(texts, "18:11 – 06:03"));
  EXPECT_TRUE(has(texts, "Zunehmender Dreiviertelmond"));
  EXPECT_TRUE(has(texts, "Nie ganz dunkel ohne Mond"));
}

// The morning after the evening of 29 December 2011 was that of the 31st.
TEST(NightPoster, NumbersTheHoursOfANightBeforeASkippedDay) {
  const ScopedLocale german("de_DE");
  const PosterPlace apia = {{-13.8333, -171.7667, 0}, TimeZone::named("Pacific/Apia").value(), "Apia"};
  const auto texts = textsAcross(NightPoster(apia, year(2011) / 12 / 29));
  for (const char* const hour : {"18 Uhr", "21 Uhr", "00 Uhr", "03 Uhr", "06 Uhr", "09 Uhr"})
    EXPECT_TRUE(has(texts, hour)) << hour;
}

TEST(NightPoster, PassesFromDayToNightAndBack) {
  using enum Daypart;
  EXPECT_EQ(
      partsOf(testing::quito(), year(2026) / 3 / 20),
      (std::vector{daylight, civil, nautical, astronomical, night, astronomical, nautical, civil, daylight}));
  EXPECT_EQ(partsOf(testing::tromso(), year(2026) / 6 / 20), std::vector{daylight});
  EXPECT_EQ(partsOf(testing::tromso(), year(2026) / 12 / 20),
            (std::vector{civil, nautical, astronomical, night, astronomical, nautical, civil}));
  EXPECT_EQ(partsOf(testing::helsinki(), year(2026) / 6 / 20),
            (std::vector{daylight, civil, nautical, civil, daylight}));
}

TEST(NightPoster, LordHoweHalfHourShiftMakesALongerNight) {
  const auto night = NightSky::of(testing::lordHowe(), year(2026) / 4 / 4).value();
  EXPECT_EQ(night.end - night.start, Seconds(24.5 * 3600));
}

TEST(NightPoster, IsReadableInEveryLanguage) {
  for (const std::string& locale : testing::posterLocales) {
    const ScopedLocale current(locale);
    for (const Paper paper : {Paper::a4, Paper::letter}) {
      const Size size = paperSize(paper, true);
      for (const PosterPlace& place : {testing::helsinki(), testing::sydney(), testing::tromso()}) {
        const NightPoster poster(place, year(2026) / 9 / 23);
        expectReadable(labelsOf(poster, size), size, 0.7, locale + " " + place.name);
      }
    }
  }
}

TEST(NightPoster, NamesItsTextsForAScreenReader) {
  const ScopedLocale english("en_US");
  NightPoster poster(testing::helsinki(), year(2026) / 11 / 22);
  poster.setFrame({0, 0, 842, 595});
  const auto elements = poster.accessibilityElements();
  ASSERT_GT(elements.size(), 20U);
  EXPECT_EQ(elements[1].label, "Sunday, November 22, 2026");
}

TEST(NightPoster, OutsideTheAlmanacsYearsIsBlank) {
  EXPECT_TRUE(labelsOf(NightPoster(testing::helsinki(), year(2150) / 1 / 1), {842, 595}).empty());
}

TEST(NightPoster, LooksLikeANight) {
  const ScopedLocale english("en_US");
  CairoCanvas canvas(PictureFormat::png, {421, 298});
  NightPoster poster(testing::sydney(), year(2026) / 4 / 30, PaperTheme::light);
  poster.setFrame({0, 0, 421, 298});
  poster.render(canvas);
  EXPECT_TRUE(canvas.uncoveredCharacters().empty());
  EXPECT_TRUE(testing::looksLikeGolden(canvas, "night"));
}

}  // namespace
}  // namespace velmora
