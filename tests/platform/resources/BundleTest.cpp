#include <tests/support/SourceDirectory.h>
#include <velmora/platform/resources/Bundle.h>

#include <gtest/gtest.h>

#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/platform/system/FileReading.h>

namespace velmora {
namespace {

const std::filesystem::path dataFolder = std::filesystem::path(sourceDirectory()) / "tests/data/resources";

TEST(Bundle, TheLibrarysIsFoundByItsIdentifier) {
  EXPECT_EQ(Bundle::library().identifier(), "velmora");
  EXPECT_EQ(Bundle::withIdentifier("velmora")->directory(), Bundle::library().directory());
  EXPECT_EQ(Bundle::withIdentifier("main")->directory(), Bundle::main().directory());
  EXPECT_FALSE(Bundle::withIdentifier("moon"));
  EXPECT_FALSE(Bundle::withIdentifier(""));
}

TEST(Bundle, TheLibrarysHoldsTheYearlyTables) {
  EXPECT_TRUE(Bundle::library().pathForResource("Data/2000", "plist"));
  EXPECT_TRUE(Bundle::library().pathForResource("2040", "plist", "Data"));
  EXPECT_FALSE(Bundle::library().pathForResource("Data/1999", "plist"));
}

TEST(Bundle, AnotherFolderServesAsLongAsItsScopeLives) {
  const TemporaryFolder folder;
  const std::filesystem::path library = Bundle::library().directory();
  const std::filesystem::path main = Bundle::main().directory();
  {
    const ScopedLibraryBundle scopedLibrary(folder.path() / "library");
    const ScopedMainBundle scopedMain(folder.path() / "main");
    EXPECT_EQ(Bundle::library().directory(), folder.path() / "library");
    EXPECT_EQ(Bundle::withIdentifier("velmora")->directory(), folder.path() / "library");
    EXPECT_EQ(Bundle::main().directory(), folder.path() / "main");
    {
      const ScopedMainBundle inner(folder.path() / "inner");
      EXPECT_EQ(Bundle::main().directory(), folder.path() / "inner");
    }
    EXPECT_EQ(Bundle::main().directory(), folder.path() / "main");
  }
  EXPECT_EQ(Bundle::library().directory(), library);
  EXPECT_EQ(Bundle::main().directory(), main);
}

TEST(Bundle, FindsAResourceByNameTypeAndFolder) {
  const TemporaryFolder folder;
  const auto path = folder.write("Data/events.txt", "");
  const Bundle bundle("test", folder.path());
  EXPECT_EQ(bundle.pathForResource("Data/events", "txt"), path);
  EXPECT_EQ(bundle.pathForResource("events", "txt", "Data"), path);
  EXPECT_EQ(bundle.pathForResource("events", "txt"), std::nullopt);
  EXPECT_EQ(bundle.pathForResource("Data/events", "plist"), std::nullopt);
}

TEST(Bundle, AFolderOfThatNameIsNoResource) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.path() / "Data/2024.plist");
  EXPECT_EQ(Bundle("test", folder.path()).pathForResource("Data/2024", "plist"), std::nullopt);
}

TEST(Bundle, FindsPicturesInItsImagesFolderThenInItself) {
  const TemporaryFolder folder;
  const std::string sample = readFile(dataFolder / "images/sample.png").value();
  folder.write("images/moon.png", sample);
  folder.write("sun.png", sample);
  const Bundle bundle("test", folder.path());
  ASSERT_TRUE(bundle.image("moon"));
  EXPECT_EQ(bundle.image("moon")->name(), "moon");
  EXPECT_EQ(bundle.image("moon"), bundle.image("moon")) << "a found picture is kept";
  EXPECT_TRUE(bundle.image("sun"));
}

TEST(Bundle, APictureThatIsMissingOrNoneIsLookedForAgain) {
  const TemporaryFolder folder;
  const Bundle bundle("test", folder.path());
  EXPECT_FALSE(bundle.image("moon"));
  folder.write("images/moon.png", "no picture");
  EXPECT_FALSE(bundle.image("moon"));
  folder.write("images/moon.png", readFile(dataFolder / "images/sample.png").value());
  EXPECT_TRUE(bundle.image("moon"));
}

}  // namespace
}  // namespace velmora
