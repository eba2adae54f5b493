#include <gtest/gtest.h>

#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

std::string table(const std::string& key, const std::string& text) {
  return "<plist><dict><key>" + key + "</key><string>" + text + "</string></dict></plist>";
}

class LocalizedTexts : public ::testing::Test {
 protected:
  Bundle bundle() const { return Bundle("test", _folder.path()); }

  const TemporaryFolder _folder;
};

TEST_F(LocalizedTexts, AreThoseOfTheCurrentLocale) {
  _folder.write("de.lproj/Localizable.strings", table("Full Moon", "Vollmond"));
  _folder.write("fr.lproj/Localizable.strings", table("Full Moon", "Pleine lune"));
  const Bundle texts = bundle();
  const ScopedLocale german("de_DE");
  EXPECT_EQ(texts.localizedString("Full Moon"), "Vollmond");
  const ScopedLocale french("fr_FR");
  EXPECT_EQ(texts.localizedString("Full Moon"), "Pleine lune") << "a change of the locale is seen at once";
}

TEST_F(LocalizedTexts, AMissingTextIsTheEnglishOneThenTheValueThenTheKey) {
  _folder.write("de.lproj/Localizable.strings", table("Full Moon", "Vollmond"));
  _folder.write("en.lproj/Localizable.strings", table("NEW", "New Moon"));
  const ScopedLocale german("de_DE");
  EXPECT_EQ(bundle().localizedString("NEW", "value"), "New Moon");
  EXPECT_EQ(bundle().localizedString("OLD", "value"), "value");
  EXPECT_EQ(bundle().localizedString("OLD"), "OLD");
}

TEST_F(LocalizedTexts, AnEmptyTranslationIsATranslation) {
  _folder.write("de.lproj/Localizable.strings", table("at", ""));
  const ScopedLocale german("de_DE");
  EXPECT_EQ(bundle().localizedString("at", "value"), "");
}

TEST_F(LocalizedTexts, MayStandInATableOfAnotherName) {
  _folder.write("de.lproj/Names.strings", table("Full Moon", "Vollmond"));
  const ScopedLocale german("de_DE");
  EXPECT_EQ(bundle().localizedString("Full Moon", "", "Names"), "Vollmond");
  EXPECT_EQ(bundle().localizedString("Full Moon"), "Full Moon");
}

TEST_F(LocalizedTexts, ATableThatCannotBeReadCountsAsMissing) {
  _folder.write("de.lproj/Localizable.strings", "no table");
  _folder.write("en.lproj/Localizable.strings", table("at", "at the time"));
  const ScopedLocale german("de_DE");
  EXPECT_EQ(bundle().localizedString("at"), "at the time");
}

TEST_F(LocalizedTexts, OfAMissingBundleAreTheKeys) {
  const ScopedLocale german("de_DE");
  EXPECT_EQ(Bundle("test", _folder.path() / "missing").localizedString("Full Moon"), "Full Moon");
}

TEST_F(LocalizedTexts, ATableIsReadOnce) {
  const auto file = _folder.write("de.lproj/Localizable.strings", table("Full Moon", "Vollmond"));
  const ScopedLocale german("de_DE");
  const Bundle texts = bundle();
  EXPECT_EQ(texts.localizedString("Full Moon"), "Vollmond");
  std::filesystem::remove(file);
  EXPECT_EQ(texts.localizedString("Full Moon"), "Vollmond");
  EXPECT_EQ(bundle().localizedString("Full Moon"), "Full Moon") << "another bundle reads it anew";
}

}  // namespace
}  // namespace velmora
