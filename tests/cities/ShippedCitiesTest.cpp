// What the shipped table has and does not have, against published facts and the system's own zones.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <set>
#include <string>

#include <velmora/cities/CityTable.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {
namespace {

const CityTable& table() {
  static const CityTable shipped = CityTable::shipped();
  return shipped;
}

/// The one city that the spelling means; an empty record if there are several or none.
City city(std::string_view spelling) {
  const auto found = table().named(spelling);
  EXPECT_EQ(found.size(), 1U) << spelling;
  return found.size() == 1 ? found[0] : City();
}

TEST(ShippedCities, MostPopulousComesFirst) {
  ASSERT_GT(table().size(), 25'000U);
  for (std::size_t i = 1; i < table().size(); ++i)
    ASSERT_GE(table().city(i - 1).people, table().city(i).people) << table().city(i).name;
}

TEST(ShippedCities, LieOnEarthInACountryAndAZoneOfTheSystem) {
  std::set<std::string> zones;
  for (std::size_t i = 0; i < table().size(); ++i) {
    const City city = table().city(i);
    ASSERT_FALSE(city.name.empty()) << i;
    ASSERT_LE(std::abs(city.latitude), 90) << city.name;
    ASSERT_LE(std::abs(city.longitude), 180) << city.name;
    ASSERT_EQ(city.country.size(), 2U) << city.name;
    zones.insert(city.zone);
  }
  EXPECT_GT(zones.size(), 400U);
  for (const std::string& zone : zones) EXPECT_TRUE(TimeZone::named(zone)) << zone;
}

struct Expected {
  const char* spelling;
  const char* name;
  const char* country;
  const char* zone;
  double latitude, longitude;  // degrees, of an atlas
};

class FoundCity : public ::testing::TestWithParam<Expected> {};

TEST_P(FoundCity, IsWhereAnAtlasHasIt) {
  const Expected& expected = GetParam();
  const City found = city(expected.spelling);
  EXPECT_EQ(found.name, expected.name);
  EXPECT_EQ(found.country, expected.country);
  EXPECT_EQ(found.zone, expected.zone);
  EXPECT_NEAR(found.latitude, expected.latitude, 0.1);
  EXPECT_NEAR(found.longitude, expected.longitude, 0.1);
}

INSTANTIATE_TEST_SUITE_P(
    ManySpellings, FoundCity,
    ::testing::Values(Expected{"Munich", "Munich", "DE", "Europe/Berlin", 48.14, 11.58},
                      Expected{"münchen", "Munich", "DE", "Europe/Berlin", 48.14, 11.58},
                      Expected{"MUENCHEN", "Munich", "DE", "Europe/Berlin", 48.14, 11.58},
                      Expected{"Boston", "Boston", "US", "America/New_York", 42.36, -71.06},
                      Expected{"San Francisco", "San Francisco", "US", "America/Los_Angeles", 37.77, -122.42},
                      Expected{"Tromsø", "Tromsø", "NO", "Europe/Oslo", 69.65, 18.96},
                      Expected{"tromso", "Tromsø", "NO", "Europe/Oslo", 69.65, 18.96},
                      Expected{"東京", "Tokyo", "JP", "Asia/Tokyo", 35.69, 139.69},
                      Expected{"北京", "Beijing", "CN", "Asia/Shanghai", 39.90, 116.40},
                      Expected{"서울", "Seoul", "KR", "Asia/Seoul", 37.57, 126.98},
                      Expected{"Москва", "Moscow", "RU", "Europe/Moscow", 55.75, 37.62},
                      Expected{"القاهرة", "Cairo", "EG", "Africa/Cairo", 30.04, 31.24},
                      Expected{"ירושלים", "Jerusalem", "IL", "Asia/Jerusalem", 31.78, 35.22},
                      Expected{"मुंबई", "Mumbai", "IN", "Asia/Kolkata", 19.07, 72.88},
                      Expected{"Αθήνα", "Athens", "GR", "Europe/Athens", 37.98, 23.73},
                      Expected{"Kiev", "Kyiv", "UA", "Europe/Kyiv", 50.45, 30.52},
                      Expected{"Calcutta", "Kolkata", "IN", "Asia/Kolkata", 22.57, 88.36},
                      Expected{"Saigon", "Ho Chi Minh City", "VN", "Asia/Ho_Chi_Minh", 10.78, 106.70},
                      Expected{"København", "Copenhagen", "DK", "Europe/Copenhagen", 55.68, 12.57},
                      Expected{"Łódź", "Łódź", "PL", "Europe/Warsaw", 51.76, 19.46},
                      Expected{"İzmir", "İzmir", "TR", "Europe/Istanbul", 38.42, 27.14},
                      Expected{"New York", "New York City", "US", "America/New_York", 40.71, -74.01},
                      Expected{"Washington, DC", "Washington", "US", "America/New_York", 38.90, -77.04}));

TEST(ShippedCities, NamesOfOldZonesFindTheirCities) {
  EXPECT_EQ(city("Europe/Kiev").name, "Kyiv");
  EXPECT_EQ(city("asia/calcutta").name, "Kolkata");
  EXPECT_EQ(city("Asia/Saigon").name, "Ho Chi Minh City");
  EXPECT_EQ(city("Africa/Timbuktu").name, "Timbuktu");
  EXPECT_EQ(city("America/Montreal").name, "Montréal");
  EXPECT_EQ(table().zoneToday("Asia/Calcutta"), "Asia/Kolkata");
  EXPECT_EQ(table().zoneToday("Europe/Oslo"), "Europe/Oslo");
  EXPECT_EQ(table().zoneToday("Mars/Base"), "Mars/Base");
}

TEST(ShippedCities, AZoneThatIsNamedAfterNoCityHasNone) {
  EXPECT_TRUE(table().named("US/Pacific").empty());
  EXPECT_TRUE(table().named("Antarctica/South_Pole").empty());
}

TEST(ShippedCities, EveryCityOfTheSystemsZoneTableIsFoundByItsNameAndItsZone) {
  std::ifstream rows("/usr/share/zoneinfo/zone.tab");
  std::size_t count = 0;
  for (std::string row; std::getline(rows, row);) {
    if (row.starts_with('#')) continue;
    const std::string zone = row.substr(row.rfind('\t', row.find('/')) + 1);
    const std::string identifier = zone.substr(0, zone.find('\t'));
    EXPECT_EQ(city(identifier).zone, identifier);
    EXPECT_EQ(city(identifier.substr(identifier.rfind('/') + 1)).zone, identifier);
    ++count;
  }
  EXPECT_GT(count, 400U);
}

TEST(ShippedCities, AreTheMostPopulousOfTheirNameWhenTheyHaveTenTimesThePeople) {
  EXPECT_EQ(city("Paris").country, "FR");
  EXPECT_EQ(city("London").country, "GB");
  EXPECT_EQ(city("Frankfurt").name, "Frankfurt am Main");
}

TEST(ShippedCities, AnAmbiguousNameGivesTheChoices) {
  const auto portlands = table().named("Portland");
  ASSERT_GE(portlands.size(), 2U);
  EXPECT_EQ(portlands[0].region, "Oregon");
  EXPECT_EQ(portlands[1].region, "Maine");
  for (const City& portland : portlands) EXPECT_EQ(portland.name, "Portland");
}

TEST(ShippedCities, AreChosenByRegionAndCountry) {
  for (const char* maine :
       {"Portland, Maine", "portland,ME", "Portland, maine, United States", "Portland, Maine, US"})
    EXPECT_EQ(city(maine).region, "Maine") << maine;
  for (const char* oregon : {"Portland, US", "Portland, USA", "Portland, Oregon"})
    EXPECT_EQ(city(oregon).region, "Oregon") << oregon;
  EXPECT_EQ(city("Birmingham, UK").country, "GB");
  EXPECT_EQ(city("Birmingham, Alabama").country, "US");
  EXPECT_EQ(city("Cordoba, Spain").zone, "Europe/Madrid");
  EXPECT_TRUE(table().named("Portland, France").empty());
}

TEST(ShippedCities, PrefixesMatchTheMostPopulous) {
  const auto names = [](std::string_view prefix, std::size_t limit) {
    std::vector<std::string> list;
    for (const City& city : table().matches(prefix, limit)) list.push_back(city.name + ", " + city.country);
    return list;
  };
  using Names = std::vector<std::string>;
  EXPECT_EQ(names("helsin", 2), (Names{"Helsinki, FI", "Helsingborg, SE"}));
  EXPECT_EQ(names("Münch", 1), (Names{"Munich, DE"}));
  EXPECT_EQ(names("東京", 1), (Names{"Tokyo, JP"}));
  EXPECT_EQ(names("Portland, M", 5), (Names{"Portland, US"}));
  EXPECT_EQ(names("", 2), (Names{"Shanghai, CN", "Beijing, CN"}));
  EXPECT_EQ(names("x", 0), Names());
  EXPECT_EQ(names("qqqq", 5), Names());
}

TEST(ShippedCities, AMisspeltCityIsNotFoundButItsNeighboursAre) {
  EXPECT_TRUE(table().named("Helsikni").empty());
  ASSERT_FALSE(table().nearest("Helsikni", 3).empty());
  EXPECT_EQ(table().nearest("Helsikni", 3)[0].name, "Helsinki");
  EXPECT_EQ(table().nearest("San Fransisco", 1)[0].name, "San Francisco");
  EXPECT_TRUE(table().nearest("Oslo", 0).empty());
  EXPECT_TRUE(table().named("").empty());
  EXPECT_TRUE(table().named(" ,;").empty());
  EXPECT_TRUE(table().named(std::string(1'000'000, 'a')).empty());
}

TEST(ShippedCities, NoCityIsNearToANameOfWhichNoLetterIsLeftInIt) {
  for (const char* spelling : {"", " ", ",", "x", "Xq"}) {
    for (const City& city : table().nearest(spelling, 3)) ADD_FAILURE() << spelling << ": " << city.name;
  }
}

}  // namespace
}  // namespace velmora
