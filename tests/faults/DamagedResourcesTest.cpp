#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include <app/drawing/Drawing.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/resources/Image.h>
#include <velmora/platform/resources/PropertyList.h>
#include <velmora/platform/system/Log.h>
#include <velmora/service/EclipseCatalogue.h>
#include <velmora/service/MoonPhaseData.h>

#include "tests/app/AppTest.h"
#include "tests/faults/Damage.h"
#include "tests/platform/resources/TemporaryFolder.h"
#include "tests/support/SourceDirectory.h"

namespace velmora::app {
namespace {

namespace fs = std::filesystem;
using testing::bytesOfFile;
using testing::Damage;
using testing::overwrite;

/// The program on resources of its own, to be broken.
class DamagedResources : public AppTest {
 protected:
  DamagedResources() {
    fs::copy(sourceDirectory() + "/velmora/resources", library(""), fs::copy_options::recursive);
    fs::copy(sourceDirectory() + "/app/resources", main(""), fs::copy_options::recursive);
    forgetResources();
  }

  /// Puts the file as it ships back in its place.
  void restore(const fs::path& file) {
    const bool isOfLibrary = file.string().starts_with(library("").string());
    const fs::path origin = sourceDirectory() + (isOfLibrary ? "/velmora/resources" : "/app/resources");
    fs::remove_all(file);
    fs::copy(origin / file.lexically_relative(isOfLibrary ? library("") : main("")), file);
    forgetResources();
  }

  /// What was read once is kept.
  void forgetResources() {
    Bundle::setLibrary(library(""));
    Bundle::setMain(main(""));
  }

  fs::path library(const std::string& name) const { return _folder.path() / "library" / name; }
  fs::path main(const std::string& name) const { return _folder.path() / "main" / name; }

  /// Runs the program as any user; a drawing command gets a folder for its picture.
  Outcome runAsAnyUser(std::vector<std::string> question) const {
    if (question.front() == "draw") {
      drawing();  // lies in the build, which perhaps only its owner may read
      fs::create_directories(pictures());
      question.insert(question.end(), {"-o", (pictures() / "picture.png").string()});
    }
    const testing::WithoutPrivilege asAnyUser(testing::Privilege::toReadAndWrite);
    return runProgram(question);
  }

  /// What a damaged file must lead to: no answer, no picture, one line that names it.
  void expectFailure(const std::vector<std::string>& question, const std::string& file,
                     const std::string& damage) const {
    const Outcome outcome = runAsAnyUser(question);
    const std::string what = question.front() + " with " + file + ": " + damage;
    EXPECT_EQ(outcome.status, 1) << what;
    EXPECT_EQ(outcome.out, "") << what;
    EXPECT_EQ(linesOf(outcome.err).size(), 1U) << what << "\n" << outcome.err;
    EXPECT_NE(outcome.err.find(file), std::string::npos) << what << "\n" << outcome.err;
    EXPECT_TRUE(!fs::exists(pictures()) || fs::is_empty(pictures())) << what;
  }

  fs::path pictures() const { return _folder.path() / "pictures"; }

 private:
  TemporaryFolder _folder;
  ScopedLibraryBundle _library{""};
  ScopedMainBundle _main{""};
};

std::vector<Damage> damagesOfListFiles() {
  std::vector<Damage> damages = testing::damagesOfAnyFile();
  const auto& more = testing::damagesOfAPropertyList();
  damages.insert(damages.end(), more.begin(), more.end());
  return damages;
}

const std::vector<std::vector<std::string>> questionsOfTables = {
    {"today", "--json"},        {"month", "2024-06", "--json"},
    {"year", "2024", "--json"}, {"draw", "month"},
    {"draw", "year"},           {"draw", "images"},
    {"draw", "riseset"},        {"draw", "disc"},
};

TEST_F(DamagedResources, ADamagedTableIsAFailureThatNamesIt) {
  for (const Damage& damage : damagesOfListFiles()) {
    damage.apply(library("Data/2024.plist"));
    for (const auto& question : questionsOfTables) expectFailure(question, "Data/2024.plist", damage.name);
    restore(library("Data/2024.plist"));
  }
}

TEST_F(DamagedResources, ATableThatTheLibraryCannotReadIsNone) {
  for (const Damage& damage : testing::damagesOfAnyFile()) {
    damage.apply(library("Data/2024.plist"));
    {
      const testing::WithoutPrivilege asAnyUser(testing::Privilege::toReadAndWrite);
      MoonPhaseData service;
      service.SetSelectedDate(instant("2024-06-20T12:00:00Z"));
      EXPECT_EQ(service.currentYearDictionary(), nullptr) << damage.name;
      EXPECT_EQ(service.currentMonthPhaseDictionary(), nullptr) << damage.name;
      EXPECT_EQ(service.currentMonthImageDictionary(), nullptr) << damage.name;
      EXPECT_TRUE(service.currentMonthPhases().empty()) << damage.name;
    }
    restore(library("Data/2024.plist"));
  }
}

TEST_F(DamagedResources, ATableCutAtAnyByteIsNone) {
  const std::string whole = bytesOfFile(library("Data/2024.plist"));
  const std::size_t end = whole.find("</plist>") + std::string("</plist>").size();
  for (std::size_t size = 0; size < end; ++size) {
    overwrite(library("Data/2024.plist"), whole.substr(0, size));
    ASSERT_EQ(MoonPhaseCalc::GetFileContents("Data/2024"), nullptr) << "cut after " << size << " bytes";
  }
}

TEST_F(DamagedResources, ALineOfATableThatCannotBeReadIsAFailure) {
  const std::string whole = bytesOfFile(library("Data/2024.plist"));
  for (const char* code : {"NM<", "FQ<", "FM<", "LQ<"}) {
    std::string changed = whole;
    changed.replace(changed.find(code), 2, "??");
    overwrite(library("Data/2024.plist"), changed);
    expectFailure({"month", "2024-06"}, "Data/2024.plist", code);
  }
}

TEST_F(DamagedResources, ATableOfANeighbouringYearIsNeededAtTheYearsEnds) {
  fs::remove(library("Data/2023.plist"));
  overwrite(library("Data/2025.plist"), "");
  expectFailure({"month", "2024-01"}, "Data/2023.plist", "missing");
  expectFailure({"month", "2024-12"}, "Data/2025.plist", "empty");
  expectFailure({"year", "2024", "--json"}, "Data/2023.plist", "missing");
  EXPECT_EQ(runProgram({"month", "2024-06"}).status, 0);
  EXPECT_EQ(runProgram({"month", "2000-01"}).status, 0) << "no table comes before the first";
  EXPECT_EQ(runProgram({"month", "2040-12"}).status, 0) << "no table comes after the last";
}

TEST_F(DamagedResources, TheSkyNeedsNeitherTablesNorTheCatalogue) {
  fs::remove_all(library("Data"));
  const std::vector<std::vector<std::string>> questions = {
      {"today"},    {"phases", "--from", "2024-06-01", "--to", "2024-06-30"},
      {"next"},     {"ics", "--from", "2024-06-01", "--to", "2024-06-30"},
      {"riseset"},  {"eclipse"},
      {"eclipses"}, {"track"},
  };
  for (const auto& question : questions) EXPECT_EQ(runAsAnyUser(question).status, 0) << question.front();
}

TEST_F(DamagedResources, ACatalogueCutAtAnyByteLosesNoEarlierEclipse) {
  const std::string whole = "03/25/2024 07:12,NLE\n04/08/2024 18:17,TSE\n09/18/2024 02:44,PLE\n";
  const ScopedLogRecord entries;
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const std::string cut = whole.substr(0, size);
    const auto wholeLines = static_cast<std::size_t>(std::count(cut.begin(), cut.end(), '\n'));
    const std::size_t found = readEclipseCatalogue(cut).size();
    EXPECT_GE(found, wholeLines) << cut;
    EXPECT_LE(found, wholeLines + 1) << cut;
  }
  for (const std::string& message : entries.messages()) EXPECT_EQ(message, "Invalid entry");
}

TEST_F(DamagedResources, ADamagedTableOfCitiesIsAFailureThatNamesItWhereACityIsAskedFor) {
  const std::string whole = bytesOfFile(library("cities.table"));
  for (const Damage& damage : testing::damagesOfAnyFile()) {
    damage.apply(library("cities.table"));
    expectFailure({"today", "--city", "Tokyo"}, "cities.table", damage.name);
    EXPECT_EQ(runAsAnyUser({"today", "--lat", "1", "--lon", "2"}).status, 0) << damage.name;
    restore(library("cities.table"));
  }
  overwrite(library("cities.table"), whole.substr(0, whole.size() - 1));
  expectFailure({"today", "--city", "Tokyo"}, "cities.table", "cut by a byte");
}

TEST_F(DamagedResources, ADamagedStringTableLeavesEnglish) {
  const auto english = json({"today", "--locale", "en_US"});
  const std::vector<std::string> inGerman = {"today", "--locale", "de_DE", "--12h", "--json"};
  EXPECT_NE(jsonFromText(runProgram(inGerman).out)["phaseName"], english["phaseName"]);
  const fs::path ofLibrary = library("de.lproj/Localizable.strings");
  const fs::path ofMain = main("de.lproj/Localizable.strings");
  for (const Damage& damage : damagesOfListFiles()) {
    forgetResources();
    damage.apply(ofLibrary);
    damage.apply(ofMain);
    const Outcome outcome = runAsAnyUser(inGerman);
    EXPECT_EQ(outcome.status, 0) << damage.name << outcome.err;
    EXPECT_EQ(outcome.err, "") << damage.name;
    EXPECT_EQ(jsonFromText(outcome.out)["phaseName"], english["phaseName"]) << damage.name;
    restore(ofLibrary);
    restore(ofMain);
  }
}

TEST_F(DamagedResources, AStringTableCutAtAnyByteIsNone) {
  for (const fs::path& table :
       {library("de.lproj/Localizable.strings"), main("de.lproj/Localizable.strings")}) {
    const std::string whole = bytesOfFile(table);
    const std::size_t end = whole.find("</plist>") + std::string("</plist>").size();
    for (std::size_t size = 0; size < end; ++size)
      ASSERT_FALSE(PropertyList::fromBytes(whole.substr(0, size))) << "cut after " << size;
  }
}

TEST_F(DamagedResources, ADamagedPictureOfTheMoonIsAFailureThatNamesIt) {
  for (const Damage& damage : testing::damagesOfAnyFile()) {
    damage.apply(library("images/IMG_27.png"));
    expectFailure({"draw", "images"}, "IMG_27.png", damage.name);
    EXPECT_EQ(runAsAnyUser({"draw", "month"}).status, 0) << "which shows no such picture";
    fs::remove_all(pictures());
    restore(library("images/IMG_27.png"));
  }
}

TEST_F(DamagedResources, ADamagedIconIsAFailureThatNamesIt) {
  for (const Damage& damage : testing::damagesOfAnyFile()) {
    damage.apply(main("sunset.png"));
    expectFailure({"draw", "riseset"}, "sunset.png", damage.name);
    restore(main("sunset.png"));
  }
}

TEST_F(DamagedResources, APictureCutAtAnyByteBeforeItsEndHasNoPixels) {
  const std::string whole = bytesOfFile(main("sunset.png"));
  constexpr std::size_t endChunk = 12;  // bytes, without pixels
  for (std::size_t size = 0; size < whole.size() - endChunk; ++size) {
    const auto picture = Image::fromBytes("sunset", whole.substr(0, size));
    ASSERT_TRUE(!picture || picture->pixels().empty()) << "cut after " << size << " bytes";
  }
}

}  // namespace
}  // namespace velmora::app
