#include <app/place/Cities.h>

#include <gtest/gtest.h>

#include <app/text/Errors.h>

#include "tests/app/AppTest.h"

namespace velmora::app {
namespace {

std::string messageFor(const std::string& city) {
  try {
    cityNamed(city);
  } catch (const BadInput& error) {
    return error.what();
  }
  return "found";
}

TEST(Cities, AreFoundHoweverTheyAreSpelled) {
  for (const char* spelling :
       {"helsinki", "HELSINKI", " Hel sinki ", "Europe/Helsinki", "Hélsinki", "Хельсинки", "Helsingfors"})
    EXPECT_EQ(cityNamed(spelling).name, "Helsinki") << spelling;
}

TEST(Cities, OfAnotherScriptAreFoundByTheirLatinSpellingToo) {
  EXPECT_EQ(cityNamed("Эмпория").name, "Emporia");
}

TEST(Cities, AnAmbiguousNameListsTheChoicesByCountryAndPopulation) {
  const std::string message = messageFor("Portland");
  EXPECT_TRUE(
      message.starts_with("city 'Portland' may be Portland, Oregon, US (652,503 people); Portland, Maine, "
                          "US (66,881 people)"))
      << message;
  EXPECT_TRUE(message.ends_with("; add the region or country, as here")) << message;
  EXPECT_EQ(cityNamed("Portland, Maine").region, "Maine");
  EXPECT_EQ(cityNamed("Portland, US").region, "Oregon");
}

TEST(Cities, ManyChoicesAreCut) {
  const std::string message = messageFor("Santa Cruz");
  EXPECT_NE(message.find(" more; add the region or country"), std::string::npos) << message;
  EXPECT_LT(message.size(), 600U);
}

TEST(Cities, OfFullNamesAreFoundAgain) {
  const CityTable table = CityTable::shipped();
  for (std::size_t i = 0; i < table.size(); i += 7) {
    const City city = table.city(i);
    const auto found = table.named(fullName(city));
    ASSERT_EQ(found.size(), 1U) << fullName(city);
    EXPECT_EQ(found[0].region, city.region) << city.name;
    EXPECT_EQ(found[0].country, city.country) << city.name;
  }
}

TEST(Cities, AMisspeltOneIsToldWithItsNeighbours) {
  const std::string message = messageFor("Helsikni");
  EXPECT_TRUE(
      message.starts_with("city 'Helsikni' is not in the table of cities; nearest: Helsinki, Uusimaa, FI"))
      << message;
  EXPECT_TRUE(message.ends_with("; any other place: lat and lon")) << message;
}

TEST(Cities, AreOfferedByNamesThatAreTakenAsTheyAre) {
  using Names = std::vector<std::string>;
  EXPECT_EQ(citiesBeginning("helsink"), Names{"Helsinki"});
  EXPECT_EQ(citiesBeginning("Portland").front(), "Portland, Oregon, US");
  EXPECT_EQ(citiesBeginning("Münche"), Names{"Munich"});
  EXPECT_EQ(citiesBeginning("東京"), Names{"Tokyo"});
  EXPECT_EQ(citiesBeginning("qqq"), Names());
  for (const std::string& name : citiesBeginning("San"))
    EXPECT_EQ(cityNamed(name).name, name.substr(0, name.find(',')));
  EXPECT_EQ(zonesBeginning("Europe/Hel"), Names{"Europe/Helsinki"});
  EXPECT_EQ(zonesBeginning("asia/cal"), Names{"Asia/Calcutta"});
}

TEST(Zones, OfOldAreKnownAndMisspeltOnesToldWithTheirNeighbours) {
  EXPECT_EQ(zoneNamed("Europe/Helsinki").name(), "Europe/Helsinki");
  EXPECT_TRUE(zoneNamed("Asia/Calcutta").name().starts_with("Asia/"));
  try {
    zoneNamed("europe/helsinki");
    FAIL();
  } catch (const BadInput& error) {
    EXPECT_STREQ(error.what(), "is not a time zone (nearest: Europe/Helsinki)");
  }
}

class PlaceOfAnOldZone : public AppTest {};

TEST_F(PlaceOfAnOldZone, IsTheCityItIsNamedAfter) {
  const Json place = json({"today", "--city", "Asia/Saigon", "--now", "2024-06-20T12:00:00Z"})["place"];
  EXPECT_EQ(place["name"], "Ho Chi Minh City");
  EXPECT_EQ(place["timezone"], "Asia/Ho_Chi_Minh");
}

}  // namespace
}  // namespace velmora::app
