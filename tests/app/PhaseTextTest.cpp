#include <app/text/PhaseText.h>

#include <gtest/gtest.h>

#include <vector>

#include <velmora/phases/Phase.h>
#include <velmora/platform/time/Locale.h>

namespace velmora::app {
namespace {

const std::vector<std::int64_t> lunation = {kNewMoon,  kWaxingCrescent, kFirstQuarter, kWaxingGibbous,
                                            kFullMoon, kWaningGibbous,  kLastQuarter,  kWaningCrescent};

std::string glyphsOfALunation(bool fromTheSouth) {
  std::string glyphs;
  for (const std::int64_t phase : lunation) glyphs += phaseGlyph(phase, fromTheSouth);
  return glyphs;
}

TEST(PhaseGlyph, WaxesFromTheRightInTheNorth) { EXPECT_EQ(glyphsOfALunation(false), "🌑🌒🌓🌔🌕🌖🌗🌘"); }

TEST(PhaseGlyph, WaxesFromTheLeftInTheSouth) { EXPECT_EQ(glyphsOfALunation(true), "🌑🌘🌗🌖🌕🌔🌓🌒"); }

TEST(PhaseName, IsInTheLanguageOfTheLocale) {
  const std::vector<std::pair<const char*, const char*>> fullMoons = {
      {"en_US", "Full Moon"}, {"de_DE", "Vollmond"}, {"ja_JP", "満月"}, {"ar_EG", "البدر"}};
  for (const auto& [locale, name] : fullMoons) {
    const ScopedLocale scope{Locale(locale)};
    EXPECT_EQ(phaseName(kFullMoon), name) << locale;
  }
}

TEST(PhaseName, OfALanguageWithoutTranslationsIsEnglish) {
  const ScopedLocale scope{Locale("is_IS")};
  EXPECT_EQ(phaseName(kWaxingGibbous), "Waxing Gibbous");
}

TEST(PhaseName, OfAnUnknownPhaseIsEmpty) {
  EXPECT_EQ(phaseName(kUnknownPhase), "");
  EXPECT_EQ(phaseName(8), "");
}

}  // namespace
}  // namespace velmora::app
