#include <app/place/CityTable.h>

#include <gtest/gtest.h>

#include <sstream>

#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {
namespace {

CityTable tableOf(const std::string& text) {
  std::istringstream stream(text);
  return CityTable(stream);
}

TEST(CityTable, RowsGiveNameZoneAndCoordinates) {
  const CityTable table =
      tableOf("# comment\nFI\t+6010+02458\tEurope/Helsinki\nBR\t-2332-04637\tAmerica/Sao_Paulo\tx\n");
  ASSERT_EQ(table.cities().size(), 2U);
  EXPECT_EQ(table.cities()[0].name, "Helsinki");
  EXPECT_EQ(table.cities()[0].zone, "Europe/Helsinki");
  EXPECT_DOUBLE_EQ(table.cities()[0].latitude, 60 + 10 / 60.0);
  EXPECT_DOUBLE_EQ(table.cities()[0].longitude, 24 + 58 / 60.0);
  EXPECT_EQ(table.cities()[1].name, "Sao Paulo");
  EXPECT_DOUBLE_EQ(table.cities()[1].latitude, -(23 + 32 / 60.0));
  EXPECT_DOUBLE_EQ(table.cities()[1].longitude, -(46 + 37 / 60.0));
}

TEST(CityTable, CoordinatesMayHaveSeconds) {
  const CityTable table = tableOf("US\t+404251-0740023\tAmerica/New_York\n");
  ASSERT_EQ(table.cities().size(), 1U);
  EXPECT_DOUBLE_EQ(table.cities()[0].latitude, 40 + 42 / 60.0 + 51 / 3600.0);
  EXPECT_DOUBLE_EQ(table.cities()[0].longitude, -(74 + 0 / 60.0 + 23 / 3600.0));
}

TEST(CityTable, RowsOfAnotherFormAreLeftOut) {
  EXPECT_TRUE(tableOf("").cities().empty());
  EXPECT_TRUE(
      tableOf("FI\nFI\t+6010\tA/B\nFI\t+60x0+02458\tA/B\nFI\t+6010+02458\nFI\t+601+02458\tA/B\n\t\t\t\n")
          .cities()
          .empty());
}

TEST(CityTable, RowsWithoutANameOrBeyondTheEarthAreLeftOut) {
  for (const char* row : {"FI\t+6010+02458\tEurope/\n", "FI\t+9001+02458\tA/B\n", "FI\t-6010-18001\tA/B\n",
                          "FI\t+-1-2+02458\tA/B\n", "FI\t+6010+0.5e1\tA/B\n", "FI\t/6010+02458\tA/B\n"}) {
    EXPECT_TRUE(tableOf(row).cities().empty()) << row;
  }
  EXPECT_EQ(tableOf("AQ\t-9000+18000\tAntarctica/South_Pole\n").cities().size(), 1U);
}

TEST(CityTable, EveryCityOfTheSystemIsFoundByItsNameAndItsZone) {
  const CityTable& table = CityTable::system();
  EXPECT_GT(table.cities().size(), 300U);
  for (const City& city : table.cities()) {
    for (const std::string& spelling : {city.name, city.zone}) {
      const City* found = table.find(spelling);
      ASSERT_NE(found, nullptr) << spelling;
      EXPECT_EQ(found->zone, city.zone);
    }
    EXPECT_LE(std::abs(city.latitude), 90);
    EXPECT_LE(std::abs(city.longitude), 180);
    EXPECT_TRUE(TimeZone::named(city.zone)) << city.zone;
  }
}

TEST(CityTable, CitiesAreFoundHoweverTheyAreSpelled) {
  const CityTable& table = CityTable::system();
  for (const char* spelling : {"helsinki", "HELSINKI", " Hel sinki ", "Europe/Helsinki", "Hélsinki"}) {
    ASSERT_NE(table.find(spelling), nullptr) << spelling;
    EXPECT_EQ(table.find(spelling)->name, "Helsinki");
  }
  EXPECT_EQ(table.find("new york")->zone, "America/New_York");
  EXPECT_EQ(table.find("são paulo")->zone, "America/Sao_Paulo");
  EXPECT_EQ(table.find("zürich")->zone, "Europe/Zurich");
  EXPECT_EQ(table.find("port au prince")->zone, "America/Port-au-Prince");
}

TEST(CityTable, AMisspeltCityIsNotFoundButItsNeighboursAreNamed) {
  const CityTable& table = CityTable::system();
  EXPECT_EQ(table.find("Helsinky"), nullptr);
  EXPECT_EQ(table.nearestCities("Helsinky"), "Helsinki");
  EXPECT_EQ(table.find("San Francisco"), nullptr);
  EXPECT_FALSE(table.nearestCities("San Francisco").empty());
  EXPECT_EQ(table.nearestZones("europe/helsinki"), "Europe/Helsinki");
  EXPECT_EQ(table.find(""), nullptr);
  EXPECT_EQ(table.find(std::string(1'000'000, 'a')), nullptr);
}

}  // namespace
}  // namespace velmora::app
