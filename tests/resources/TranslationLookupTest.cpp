#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include <tests/resources/StringTables.h>
#include <tests/support/SourceDirectory.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

const std::filesystem::path hostFolder = sourceDirectory() + "/app/resources";

std::string libraryText(const std::string& key, const std::string& locale) {
  const ScopedLibraryBundle shipped(libraryFolder());
  const ScopedLocale scoped(locale);
  return Bundle::library().localizedString(key);
}

std::string hostText(const std::string& key, const std::string& locale) {
  const ScopedMainBundle shipped(hostFolder);
  const ScopedLocale scoped(locale);
  return Bundle::main().localizedString(key);
}

struct Reader {
  std::string locale;
  std::string totalLunarEclipse;
  std::string waningGibbous;
};

const std::vector<Reader> readers = {
    {"en_US", "Total Lunar Eclipse", "Waning Gibbous"},
    {"de_AT", "Totale Mondfinsternis", "Abnehmender Dreiviertelmond"},
    {"fr-CA", "Éclipse totale de Lune", "Gibbeuse décroissante"},
    {"es_MX", "Eclipse lunar total", "Luna gibosa menguante"},
    {"it", "Eclissi lunare totale", "Gibbosa calante"},
    {"pt_BR", "Eclipse lunar total", "Minguante gibosa"},
    {"pt_PT", "Eclipse lunar total", "Minguante gibosa"},
    {"nl_BE", "Totale maansverduistering", "Afnemende maan"},
    {"pl_PL", "Całkowite zaćmienie Księżyca", "Ubywający Księżyc garbaty"},
    {"tr_TR", "Tam Ay Tutulması", "Küçülen Şişkin Ay"},
    {"ru_RU.UTF-8", "Полное лунное затмение", "Убывающая луна"},
    {"ar_EG@calendar=islamic", "خسوف كلي للقمر", "الأحدب المتناقص"},
    {"he_IL", "ליקוי ירח מלא", "ירח גבנוני מתמעט"},
    {"hi_IN", "पूर्ण चंद्र ग्रहण", "घटता उत्तल चंद्र"},
    {"ja_JP", "皆既月食", "寝待月"},
    {"ko_KR", "개기월식", "기우는 볼록달"},
};

TEST(TranslationLookup, AReaderGetsTheTextsOfTheLanguageWhateverTheRegion) {
  for (const Reader& reader : readers) {
    EXPECT_EQ(libraryText("Total Lunar Eclipse", reader.locale), reader.totalLunarEclipse) << reader.locale;
    EXPECT_EQ(libraryText("Waning Gibbous", reader.locale), reader.waningGibbous) << reader.locale;
    EXPECT_EQ(hostText("Waning Gibbous", reader.locale), reader.waningGibbous) << reader.locale;
  }
}

TEST(TranslationLookup, TheFormerCodeOfHebrewIsHebrew) {
  EXPECT_EQ(libraryText("at", "iw"), "בשעה");
  EXPECT_EQ(hostText("Full Moon", "iw_IL"), "ירח מלא");
}

TEST(TranslationLookup, ChineseIsTraditionalInTaiwanHongKongAndMacaoUnlessTheScriptIsNamed) {
  for (const std::string locale : {"zh_TW", "zh_HK", "zh_MO", "zh-Hant", "zh_Hant_CN", "zh-Hant-TW"}) {
    EXPECT_EQ(hostText("Full Moon", locale), "滿月") << locale;
  }
  for (const std::string locale : {"zh", "zh_CN", "zh_SG", "zh-Hans", "zh_Hans_HK", "zh_CN.UTF-8"}) {
    EXPECT_EQ(hostText("Full Moon", locale), "满月") << locale;
  }
}

TEST(TranslationLookup, AReaderOfAnotherLanguageGetsEnglish) {
  for (const std::string locale : {"fi_FI", "sw", "xx_YY", "root"}) {
    EXPECT_EQ(libraryText("Hybrid Solar Eclipse", locale), "Hybrid Solar Eclipse") << locale;
    EXPECT_EQ(hostText("Last Quarter", locale), "Last Quarter") << locale;
  }
}

TEST(TranslationLookup, ATextThatNoTableHasIsItsKey) {
  for (const std::string locale : {"en", "de", "zh_TW", "fi"}) {
    EXPECT_EQ(libraryText("Blue Moon", locale), "Blue Moon") << locale;
    EXPECT_EQ(hostText("TIME", locale), "TIME") << "a text of the library's, not of the host's: " << locale;
  }
}

TEST(TranslationLookup, FrenchKeepsTheColonWithItsWord) {
  EXPECT_EQ(libraryText("ELEVATION: %@", "fr"), "HAUTEUR\u00A0: %@");
}

}  // namespace
}  // namespace velmora
