#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/architecture/SourceTree.h"
#include "tests/support/SourceDirectory.h"

namespace velmora::testing {
namespace {

using Breaches = std::vector<std::string>;

const SourceTree& productTree() {
  static const SourceTree tree = readSourceTree({"velmora", "app", "examples"});
  return tree;
}

TEST(Architecture, EveryFolderIncludesOnlyFoldersBelowIt) {
  EXPECT_EQ(upwardIncludes(productTree()), Breaches{});
}

TEST(Architecture, TheFixedCalendarAndTheAlmanacKeepApart) {
  EXPECT_EQ(almanacInFixedFolders(productTree()), Breaches{});
}

TEST(Architecture, EveryFileOfTheProgramLiesOnAFloor) { EXPECT_EQ(outsideFloors(productTree()), Breaches{}); }

TEST(Architecture, OnlyAdaptersReachThirdPartyHeaders) {
  EXPECT_EQ(thirdPartyOutsideAdapters(productTree()), Breaches{});
}

TEST(Architecture, ProgramAndExamplesUseInstalledHeadersAlone) {
  EXPECT_EQ(internalOutsideLibrary(productTree()), Breaches{});
}

TEST(Architecture, NoFileIsTooLongToHoldInTheHead) {
  const SourceTree everything =
      readSourceTree({"velmora", "app", "tests", "bench", "fuzz", "examples", "tools", "cmake"});
  EXPECT_EQ(longFiles(everything), Breaches{});
}

TEST(Architecture, EveryKeptOddityIsOnItsPage) {
  std::ostringstream page;
  page << std::ifstream(sourceDirectory() + "/docs/kept.md").rdbuf();
  EXPECT_EQ(wronglyListedAsKept(productTree(), page.str()), Breaches{});
}

TEST(Architecture, TheTreeIsReadWithItsIncludes) {
  EXPECT_GT(productTree().size(), 200U);
  const auto& includes = productTree().at("velmora/astronomy/RiseAndSetCalc.h").includes;
  EXPECT_NE(std::find(includes.begin(), includes.end(), "velmora/platform/time/Instant.h"), includes.end());
  EXPECT_FALSE(productTree().at("velmora/astronomy/RiseAndSetCalc.h").isInternal);
  EXPECT_TRUE(productTree().at("velmora/astronomy/Angle.h").isInternal);
  EXPECT_EQ(productTree().at("examples/CharacterCanvas.cpp").includes.front(), "examples/CharacterCanvas.h");
}

TEST(ArchitectureRules, AnUpwardIncludeIsABreach) {
  const SourceTree tree = {
      {"velmora/astronomy/A.cpp",
       sourceFile("#include <velmora/service/B.h>\n#include <velmora/Version.h>\n")},
      {"velmora/views/C.cpp", sourceFile("#include <velmora/service/B.h>\n#include <app/text/D.h>\n")}};
  EXPECT_EQ(upwardIncludes(tree), (Breaches{"velmora/astronomy/A.cpp includes velmora/service/B.h",
                                            "velmora/views/C.cpp includes app/text/D.h"}));
}

TEST(ArchitectureRules, AnUpwardIncludeBetweenTheProgramsFloorsIsABreach) {
  const SourceTree tree = {{"app/place/A.h", sourceFile("#include <app/request/B.h>\n")},
                           {"app/drawing/C.cpp", sourceFile("#include <app/answers/D.h>\n")}};
  EXPECT_EQ(upwardIncludes(tree), (Breaches{"app/place/A.h includes app/request/B.h"}));
}

TEST(ArchitectureRules, AFileOfTheProgramOnNoFloorIsABreach) {
  const SourceTree tree = {{"app/A.h", sourceFile("")}, {"app/text/B.h", sourceFile("")}};
  EXPECT_EQ(outsideFloors(tree), Breaches{"app/A.h lies on no floor"});
}

TEST(ArchitectureRules, TheFixedCalendarAndTheAlmanacMeetInTheServiceOnly) {
  const SourceTree tree = {
      {"velmora/almanac/A.cpp", sourceFile("#include <velmora/foundation/B.h>\n")},
      {"velmora/ephemeris/C.cpp", sourceFile("#include <velmora/platform/time/Instant.h>\n")},
      {"velmora/phases/D.cpp", sourceFile("#include <velmora/ephemeris/E.h>\n")},
      {"velmora/service/F.cpp", sourceFile("#include <velmora/almanac/G.h>\n")}};
  EXPECT_EQ(upwardIncludes(tree), (Breaches{"velmora/almanac/A.cpp includes velmora/foundation/B.h"}));
  EXPECT_EQ(almanacInFixedFolders(tree), (Breaches{"velmora/phases/D.cpp includes velmora/ephemeris/E.h"}));
}

TEST(ArchitectureRules, AThirdPartyHeaderIsABreachEvenThroughAnAdapter) {
  const SourceTree tree = {
      {"velmora/platform/graphics/cairo/Handles.h", sourceFile("#include <cairo.h>\n#include <vector>\n")},
      {"velmora/views/Direct.cpp", sourceFile("#  include <unicode/ucal.h> // calendars\n")},
      {"velmora/views/Through.h", sourceFile("#include <velmora/platform/graphics/cairo/Handles.h>\n")},
      {"velmora/views/Well.h", sourceFile("#include <string>\n")}};
  EXPECT_EQ(thirdPartyOutsideAdapters(tree), (Breaches{"velmora/views/Direct.cpp reaches unicode/ucal.h",
                                                       "velmora/views/Through.h reaches cairo.h"}));
}

TEST(ArchitectureRules, OnlyTheProgramMayUseTheLibrariesItIsMadeWith) {
  const SourceTree tree = {{"app/A.cpp", sourceFile("#include <CLI/CLI.hpp>\n#include <png.h>\n")},
                           {"velmora/service/B.cpp", sourceFile("#include <CLI/CLI.hpp>\n")}};
  EXPECT_EQ(thirdPartyOutsideAdapters(tree),
            (Breaches{"app/A.cpp reaches png.h", "velmora/service/B.cpp reaches CLI/CLI.hpp"}));
}

TEST(ArchitectureRules, ATestsHeaderInTheLibraryIsABreach) {
  const SourceTree tree = {{"velmora/views/A.h", sourceFile("#include <tests/support/B.h>\n")},
                           {"tests/views/C.cpp", sourceFile("#include <velmora/views/A.h>\n")}};
  EXPECT_EQ(upwardIncludes(tree), (Breaches{"velmora/views/A.h includes tests/support/B.h"}));
}

TEST(ArchitectureRules, AnInternalHeaderInTheProgramIsABreach) {
  const SourceFile internal = sourceFile("namespace [[gnu::visibility(\"hidden\")]] velmora {\n}\n");
  const SourceTree tree = {{"velmora/views/Inner.h", internal},
                           {"velmora/views/A.cpp", sourceFile("#include <velmora/views/Inner.h>\n")},
                           {"app/B.cpp", sourceFile("#include <velmora/views/Inner.h>\n")},
                           {"examples/C.cpp", sourceFile("#include <velmora/views/Inner.h>\n")}};
  EXPECT_EQ(internalOutsideLibrary(tree), (Breaches{"app/B.cpp includes velmora/views/Inner.h",
                                                    "examples/C.cpp includes velmora/views/Inner.h"}));
}

TEST(ArchitectureRules, AnOddityThatThePageDoesNotListIsABreachAndTheOtherWayRound) {
  const SourceTree tree = {{"velmora/views/A.h", sourceFile("  /// Kept: it is green.\n")},
                           {"velmora/views/B.cpp", sourceFile("// Kept: it is blue.\n")},
                           {"velmora/views/C.h", sourceFile("/// It is kept: for ever.\n")}};
  EXPECT_EQ(wronglyListedAsKept(tree, "| green | `views/A.h`, `views/C.h` |"),
            (Breaches{"velmora/views/B.cpp is missing", "velmora/views/C.h is listed"}));
}

TEST(ArchitectureRules, TheFourHundredAndFirstLineIsABreach) {
  std::string text;
  for (int line = 0; line < 400; ++line) text += "//\n";
  EXPECT_EQ(longFiles({{"velmora/A.h", sourceFile(text)}}), Breaches{});
  EXPECT_EQ(longFiles({{"velmora/A.h", sourceFile(text + "//\n")}}), Breaches{"velmora/A.h has 401 lines"});
}

}  // namespace
}  // namespace velmora::testing
