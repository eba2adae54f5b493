#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include <tests/support/SourceDirectory.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/resources/PropertyList.h>
#include <velmora/platform/system/FileReading.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

TEST(ConformanceOfResources, EveryTableOfAYearIsFoundAndRead) {
  for (int year = 2000; year <= 2040; ++year) {
    const auto path = Bundle::library().pathForResource("Data/" + std::to_string(year), "plist");
    ASSERT_TRUE(path) << year;
    const auto table = PropertyList::fromFile(*path);
    ASSERT_TRUE(table && table->dictionary()) << year;
    EXPECT_EQ(table->dictionary()->size(), 12U) << year;
    EXPECT_GE(table->dictionary()->at("1").array()->size(), 3U) << year;
  }
  const auto path = Bundle::library().pathForResource("Data/2024", "plist");
  EXPECT_EQ(*PropertyList::fromFile(*path)->dictionary()->at("4").array()->at(1).text(), "8  18:21 NM");
}

TEST(ConformanceOfResources, TheCatalogueOfEclipsesIsText) {
  const auto path = Bundle::library().pathForResource("events", "txt", "Data");
  ASSERT_TRUE(path);
  EXPECT_TRUE(readTextFile(*path)->starts_with("01/21/2000 04:44,TLE"));
  EXPECT_EQ(readTextFile(*path, 100), std::nullopt) << "larger than that";
}

TEST(ConformanceOfResources, TextsAreInTheLanguageOfTheLocale) {
  const std::pair<const char*, const char*> cases[] = {{"de_DE", "Vollmond"},
                                                       {"ar_EG", "البدر"},
                                                       {"zh_TW", "滿月"},
                                                       {"zh_CN", "满月"},
                                                       {"fi_FI", "Full Moon"}};
  for (const auto& [identifier, text] : cases) {
    const ScopedLocale locale{std::string(identifier)};
    EXPECT_EQ(Bundle::library().localizedString("Full Moon"), text);
  }
}

TEST(ConformanceOfResources, WhatIsNotThereIsNone) {
  EXPECT_EQ(Bundle::library().pathForResource("Data/1999", "plist"), std::nullopt);
  EXPECT_EQ(Bundle::library().pathForResource("Data", ""), std::nullopt);
  EXPECT_EQ(Bundle::library().image("IMG_56"), nullptr);
  EXPECT_EQ(Bundle("none", "/nowhere").localizedString("Full Moon"), "Full Moon");
  EXPECT_FALSE(isFile("/nowhere"));
  EXPECT_FALSE(isFolder("/nowhere"));
  EXPECT_TRUE(isFolder(Bundle::library().directory()));
  EXPECT_TRUE(isFolder(Bundle::library().directory() / "Data"));
  EXPECT_FALSE(isFile(Bundle::library().directory() / "Data"));
  EXPECT_FALSE(isFolder(Bundle::library().directory() / "Dat"));
}

TEST(ConformanceOfResources, ListsThatAreDamagedAreNone) {
  for (const char* bytes :
       {"", "x", "<plist", "d1:a", "l", "5:abc", "-1:a", "99999999999999999999:a", "d1:a1:be "}) {
    EXPECT_EQ(PropertyList::fromBytes(bytes), std::nullopt) << bytes;
  }
  EXPECT_EQ(PropertyList::fromBytes(std::string(100'000, 'l')), std::nullopt);
}

TEST(ConformanceOfResources, APictureSaysItsSizeBeforeItIsDecoded) {
  std::ifstream file(sourceDirectory() + "/tests/data/resources/images/sample.png", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const auto image = Image::fromBytes("sample", bytes);
  ASSERT_TRUE(image);
  EXPECT_EQ(image->encodedBytes(), bytes);
  EXPECT_EQ(Image::fromBytes("cut", bytes.substr(0, 20)), nullptr);
  EXPECT_EQ(Image::fromBytes("text", "no picture"), nullptr);
  EXPECT_TRUE(image->mirrored()->isMirrored());
  EXPECT_EQ(image->mirrored()->pixelSize(), image->pixelSize());
}

}  // namespace
}  // namespace velmora
