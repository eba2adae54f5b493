#include <velmora/platform/resources/ResourceLocation.h>

#include <gtest/gtest.h>

#include <cstdlib>

#include <tests/platform/resources/TemporaryFolder.h>

namespace velmora {
namespace {

const char* const variable = "VELMORA_TEST_RESOURCES";

class ResourceLocation : public ::testing::Test {
 protected:
  void TearDown() override { unsetenv(variable); }

  /// The places with an installed folder that lies under no prefix of this program.
  static ResourcePlaces uninstalled() { return {variable, "no/such/folder", {}}; }

  static std::filesystem::path besideTheCode() {
    return codeDirectories().at(0).parent_path() / "no/such/folder";
  }
};

TEST_F(ResourceLocation, IsWhereTheEnvironmentSays) {
  setenv(variable, "/nowhere/resources", 1);
  EXPECT_EQ(resourceDirectory(uninstalled()), "/nowhere/resources");
}

TEST_F(ResourceLocation, AnEmptyVariableSaysNothing) {
  setenv(variable, "", 1);
  EXPECT_EQ(resourceDirectory(uninstalled()), besideTheCode());
}

TEST_F(ResourceLocation, IsExpectedBesideTheCodeWhereNothingIsInstalled) {
  EXPECT_EQ(resourceDirectory(uninstalled()), besideTheCode());
}

TEST_F(ResourceLocation, IsFoundFromWhereTheCodeLies) {
  const std::filesystem::path code = codeDirectories().at(0);
  const std::filesystem::path prefix = code.parent_path();
  ResourcePlaces places = uninstalled();
  places.installed = code.filename();
  EXPECT_EQ(resourceDirectory(places), code) << "one folder under the prefix, as PREFIX/bin";
  places.installed = prefix.filename() / code.filename();
  EXPECT_EQ(resourceDirectory(places), code) << "two folders under the prefix, as PREFIX/lib/ARCHITECTURE";
  places.installed = prefix.parent_path().filename() / places.installed;
  EXPECT_EQ(resourceDirectory(places), code)
      << "three folders under the prefix, as PREFIX/lib/ARCHITECTURE/APPLICATION";
}

TEST_F(ResourceLocation, TheLastPrefixIsLookedUnderWhenAllElseFails) {
  const TemporaryFolder prefix;
  ResourcePlaces places = {variable, "no/such/folder", prefix.path()};
  const std::filesystem::path installed = prefix.path() / places.installed;
  EXPECT_NE(resourceDirectory(places), installed) << "not installed there";
  std::filesystem::create_directories(installed);
  EXPECT_EQ(resourceDirectory(places), installed);
  places.installed = codeDirectories().at(0).filename();
  std::filesystem::create_directories(prefix.path() / places.installed);
  EXPECT_EQ(resourceDirectory(places), codeDirectories().at(0)) << "where the code lies comes first";
}

TEST_F(ResourceLocation, TheEnvironmentStandsBeforeAnInstallation) {
  setenv(variable, "/elsewhere", 1);
  ResourcePlaces places = uninstalled();
  places.installed = codeDirectories().at(0).filename();
  EXPECT_EQ(resourceDirectory(places), "/elsewhere");
}

}  // namespace
}  // namespace velmora
