#include <tests/support/SourceDirectory.h>
#include <velmora/platform/resources/Image.h>

#include <gtest/gtest.h>

#include <velmora/platform/system/FileReading.h>

namespace velmora {
namespace {

/// Three pixels by two, straight colours: red, green, blue; white half transparent, orange hardly, nothing.
std::string encodedSample() {
  return readFile(sourceDirectory() + "/tests/data/resources/images/sample.png").value();
}

const PixelBytes givenPixels = {255, 0,   0,   255, 0, 255, 0, 255, 0, 0, 255, 255,  //
                                128, 128, 128, 128, 1, 1,   0, 1,   0, 0, 0,   0};
const PixelBytes mirroredPixels = {0, 0, 255, 255, 0, 255, 0, 255, 255, 0,   0,   255,  //
                                   0, 0, 0,   0,   1, 1,   0, 1,   128, 128, 128, 128};

TEST(Image, KnowsNameScaleAndPixelSize) {
  const auto image = Image::fromBytes("sample", encodedSample(), 2.0);
  ASSERT_TRUE(image);
  EXPECT_EQ(image->name(), "sample");
  EXPECT_EQ(image->scale(), 2.0);
  EXPECT_EQ(image->pixelSize(), (PixelSize{.width = 3, .height = 2}));
  EXPECT_EQ(image->encodedBytes(), encodedSample());
  EXPECT_FALSE(image->isMirrored());
}

TEST(Image, PixelsArePremultipliedByAlpha) {
  EXPECT_EQ(Image::fromBytes("sample", encodedSample())->pixels(), givenPixels);
}

TEST(Image, PixelsAreDecodedOnce) {
  const auto image = Image::fromBytes("sample", encodedSample());
  EXPECT_EQ(image->pixels().data(), image->pixels().data());
}

TEST(Image, AMirroredCopyExchangesLeftAndRight) {
  const auto image = Image::fromBytes("sample", encodedSample(), 2.0);
  const auto mirrored = image->mirrored();
  EXPECT_TRUE(mirrored->isMirrored());
  EXPECT_EQ(mirrored->pixels(), mirroredPixels);
  EXPECT_EQ(mirrored->name(), "sample");
  EXPECT_EQ(mirrored->scale(), 2.0);
  EXPECT_EQ(mirrored->pixelSize(), image->pixelSize());
  EXPECT_EQ(image->pixels(), givenPixels) << "the original stays as it is";
}

TEST(Image, MirroringTwiceIsTheIdentity) {
  const auto twice = Image::fromBytes("sample", encodedSample())->mirrored()->mirrored();
  EXPECT_FALSE(twice->isMirrored());
  EXPECT_EQ(twice->pixels(), givenPixels);
}

TEST(Image, BytesThatDoNotBeginLikeAPictureGiveNone) {
  for (const std::string& bytes : {std::string(), std::string("moon"), encodedSample().substr(0, 8),
                                   encodedSample().substr(0, 20), std::string(1000, '\xFF')}) {
    EXPECT_FALSE(Image::fromBytes("sample", bytes));
  }
}

TEST(Image, APictureCutShortAnywhereIsNoneOrHasNoPixels) {
  const std::string whole = encodedSample();
  const std::size_t endChunkSize = 12;
  for (std::size_t size = 0; size < whole.size() - endChunkSize; ++size) {
    const auto image = Image::fromBytes("sample", whole.substr(0, size));
    if (!image) continue;
    EXPECT_TRUE(image->pixels().empty()) << "cut to " << size << " bytes";
    EXPECT_TRUE(image->mirrored()->pixels().empty()) << "cut to " << size << " bytes";
  }
}

TEST(Image, APictureThatStatesAHugeSizeGivesNone) {
  std::string bytes = encodedSample();
  const std::size_t widthOffset = 16;
  bytes.replace(widthOffset, 8, std::string("\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF"));
  EXPECT_FALSE(Image::fromBytes("sample", bytes));
}

}  // namespace
}  // namespace velmora
