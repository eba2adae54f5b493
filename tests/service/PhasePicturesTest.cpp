#include <fstream>
#include <iterator>

#include <tests/service/ServiceTest.h>
#include <tests/support/SourceDirectory.h>
#include <velmora/service/PictureName.h>

namespace velmora {
namespace {

class PhasePictures : public ServiceTest {
 protected:
  static std::string samplePicture() {
    std::ifstream in(sourceDirectory() + "/tests/data/resources/images/sample.png", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  static std::string nameOfCurrentPicture() {
    const auto image = service().phaseImageForCurrentDate();
    return image ? image->name() : "none";
  }
};

TEST_F(PhasePictures, AreNamedByTheirNumber) {
  EXPECT_EQ(pictureName(17), "IMG_17");
  EXPECT_EQ(pictureName(0), "IMG_0");
  EXPECT_EQ(pictureName(55), "IMG_55");
  EXPECT_EQ(pictureName(-1), "moon_0");
  EXPECT_EQ(pictureName(-2), "IMG_-2");
}

TEST_F(PhasePictures, OfEverySelectedDayShipWithTheLibrary) {
  select(losAngeles(), 2024, 3, 1);
  const auto numbers = service().currentMonthImageDictionary();
  for (std::int64_t day = 1; day <= 31; ++day) {
    service().changeSelectedDay(day, 3, 2024);
    EXPECT_EQ(nameOfCurrentPicture(), "IMG_" + std::to_string(numbers->at(day)));
  }
}

TEST_F(PhasePictures, OfPrincipalPhasesAreTheFixedOnes) {
  select(losAngeles(), 2024, 3, 1);
  const std::pair<std::int64_t, const char*> cases[] = {
      {3, "IMG_40"}, {10, "IMG_0"}, {16, "IMG_15"}, {25, "IMG_27"}};
  for (const auto& [day, name] : cases) {
    service().changeSelectedDay(day, 3, 2024);
    EXPECT_EQ(nameOfCurrentPicture(), name);
  }
}

TEST_F(PhasePictures, AreTheNewMoonsWithoutASelection) { EXPECT_EQ(nameOfCurrentPicture(), "IMG_0"); }

TEST_F(PhasePictures, AreTheNewMoonsInAMonthWithoutEvents) {
  const OwnResources resources;
  resources.writeTable(2024, {});
  resources.folder.write("images/IMG_0.png", samplePicture());
  select(greenwich(), 2024, 3, 10);
  EXPECT_TRUE(service().currentMonthImageDictionary()->empty());
  EXPECT_EQ(nameOfCurrentPicture(), "IMG_0");
}

TEST_F(PhasePictures, AreMirroredSouthOfTheEquatorAlone) {
  const std::pair<double, bool> cases[] = {{0.0, false}, {-0.1, true}, {60.0, false}};
  for (const auto& [latitude, isMirrored] : cases) {
    select(placeAt(latitude, 0, "GMT"), 2024, 3, 13);
    const auto image = service().phaseImageForCurrentDate();
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->isMirrored(), isMirrored) << latitude;
  }
}

TEST_F(PhasePictures, SeenFromTheSouthAreTheSamePictureLeftToRight) {
  select(placeAt(0.0, 0, "GMT"), 2024, 3, 13);
  const auto north = service().phaseImageForCurrentDate();
  select(placeAt(-0.1, 0, "GMT"), 2024, 3, 13);
  const auto south = service().phaseImageForCurrentDate();
  EXPECT_EQ(south->name(), north->name());
  EXPECT_EQ(south->scale(), north->scale());
  EXPECT_EQ(south->pixels(), north->mirrored()->pixels());
  EXPECT_NE(south->pixels(), north->pixels());
}

TEST_F(PhasePictures, TakeTheDayFromTheSharedInstanceAndTheHemisphereFromTheirOwn) {
  select(sydney(), 2024, 3, 10);
  MoonPhaseData another;
  EXPECT_EQ(another.phaseImageForCurrentDate()->name(), nameOfCurrentPicture());
  EXPECT_FALSE(another.phaseImageForCurrentDate()->isMirrored());
  EXPECT_TRUE(service().phaseImageForCurrentDate()->isMirrored());
}

TEST_F(PhasePictures, ThatAreMissingAreNoneAndTriedAgain) {
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"10 09:00 NM", "17 09:00 FQ"}}});
  select(sydney(), 2024, 3, 17);
  EXPECT_EQ(service().phaseImageForCurrentDate(), nullptr);
  resources.folder.write("images/IMG_15.png", "no picture");
  EXPECT_EQ(service().phaseImageForCurrentDate(), nullptr);
  resources.folder.write("images/IMG_15.png", samplePicture());
  EXPECT_EQ(nameOfCurrentPicture(), "IMG_15");
}

TEST_F(PhasePictures, ThePlaceholderIsAFixedOneAndKept) {
  const auto placeholder = service().phaseImagePlaceholder();
  ASSERT_NE(placeholder, nullptr);
  EXPECT_EQ(placeholder->name(), "IMG_20");
  EXPECT_EQ(service().placeHolderImage(), placeholder);
  const OwnResources nothing;
  EXPECT_EQ(service().phaseImagePlaceholder(), placeholder);
  select(sydney(), 2024, 3, 17);
  EXPECT_EQ(service().phaseImagePlaceholder(), placeholder) << "not mirrored, never forgotten";
}

TEST_F(PhasePictures, AMissingPlaceholderIsNoneAndTriedAgain) {
  const OwnResources resources;
  EXPECT_EQ(service().phaseImagePlaceholder(), nullptr);
  EXPECT_EQ(service().placeHolderImage(), nullptr);
  resources.folder.write("images/IMG_20.png", "no picture");
  EXPECT_EQ(service().phaseImagePlaceholder(), nullptr);
  resources.folder.write("images/IMG_20.png", samplePicture());
  ASSERT_NE(service().phaseImagePlaceholder(), nullptr);
  EXPECT_EQ(service().placeHolderImage(), service().phaseImagePlaceholder());
}

}  // namespace
}  // namespace velmora
