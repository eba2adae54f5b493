// A table that is missing or cut gives no cities, a changed one fewer or other ones, and nothing worse.

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include <velmora/cities/CityTable.h>
#include <velmora/platform/resources/Bundle.h>

#include "tests/cities/CityFileBytes.h"
#include "tests/platform/resources/TemporaryFolder.h"

namespace velmora {
namespace {

const std::string whole = testing::bytesOfCityTable(
    {{"Oslo", "oslo", 60, 11, 9}, {"Ostrava", "ostrava", 50, 18, 8}, {"Oulu", "oulu", 65, 25, 7}});

/// Asks everything; what comes lies within the bytes.
void ask(const CityTable& table) {
  const auto isSound = [&](const std::vector<City>& cities) {
    for (const City& city : cities) {
      EXPECT_LE(city.name.size(), 255U);
      EXPECT_LE(std::abs(city.latitude), 839);
      EXPECT_GE(city.people, 0);
    }
    return cities.size() <= table.size();
  };
  for (const char* spelling : {"oslo", "Oulu, Maine", "Area/Town", "nowhere", ""}) {
    EXPECT_TRUE(isSound(table.named(spelling)));
    EXPECT_TRUE(isSound(table.matches(spelling, 10)));
    EXPECT_TRUE(isSound(table.nearest(spelling, 10)));
  }
  EXPECT_LE(table.zones().size(), whole.size());
  table.zoneToday("Area/Old");
  table.city(table.size());
}

TEST(DamagedCityTable, CutAtAnyByteHasNoCities) {
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const CityTable table = CityTable::fromBytes(whole.substr(0, size));
    EXPECT_EQ(table.size(), 0U) << size;
    ask(table);
  }
  EXPECT_EQ(CityTable::fromBytes(whole).named("oslo").size(), 1U);
}

TEST(DamagedCityTable, ChangedInAnyByteIsAsked) {
  for (std::size_t i = 0; i < whole.size(); ++i)
    for (const char byte : {'\0', '\1', '\x7F', '\xFF'}) {
      std::string changed = whole;
      changed[i] = byte;
      ask(CityTable::fromBytes(changed));
    }
}

TEST(DamagedCityTable, OfAnyBytesIsAsked) {
  std::mt19937 random(7);
  for (int i = 0; i < 300; ++i) {
    std::string bytes = whole;
    for (std::size_t at = 8; at < bytes.size(); ++at)
      if (random() % 4 == 0) bytes[at] = static_cast<char>(random());
    ask(CityTable::fromBytes(bytes));
  }
}

TEST(DamagedCityTable, OfAnotherVersionHasNoCities) {
  std::string later = whole;
  later[4] = 2;
  EXPECT_EQ(CityTable::fromBytes(later).size(), 0U);
}

TEST(DamagedCityTable, MissingEmptyOrNoFileHasNoCities) {
  const TemporaryFolder folder;
  for (const auto& path : {folder.path() / "missing", folder.path(), folder.write("empty", ""),
                           folder.write("text", "VMCT\n"), std::filesystem::path("/dev/zero")}) {
    const CityTable table = CityTable::fromFile(path);
    EXPECT_EQ(table.size(), 0U) << path;
    EXPECT_TRUE(table.named("Oslo").empty());
    EXPECT_TRUE(table.matches("", 5).empty());
    EXPECT_TRUE(table.nearest("Oslo", 5).empty());
    EXPECT_TRUE(table.zones().empty());
  }
}

TEST(DamagedCityTable, OfTheLibraryMayBeMissing) {
  const TemporaryFolder folder;
  const ScopedLibraryBundle withoutTable(folder.path());
  EXPECT_EQ(CityTable::shipped().size(), 0U);
}

TEST(DamagedCityTable, InAFileIsReadAsItIsThere) {
  const TemporaryFolder folder;
  const CityTable table = CityTable::fromFile(folder.write("table", whole));
  std::filesystem::remove(folder.path() / "table");
  EXPECT_EQ(table.named("oslo").size(), 1U);
}

}  // namespace
}  // namespace velmora
