#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/resources/Image.h>

#include "tests/platform/graphics/WrittenPicture.h"

namespace velmora {
namespace {

using testing::comparable;
using testing::drawCrescent;
using testing::written;

namespace fs = std::filesystem;

/// What the system says of an error, in the language of the process.
std::string systemText(int error) { return std::generic_category().message(error); }

std::shared_ptr<const Image> decoded(const std::string& png) { return Image::fromBytes("picture", png); }

std::string contents(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class PictureFile : public ::testing::Test {
 protected:
  PictureFile() { fs::create_directories(_folder); }
  ~PictureFile() override { fs::remove_all(_folder); }

  std::size_t fileCount() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(_folder), fs::directory_iterator()));
  }

  const fs::path _folder = fs::temp_directory_path() / ("velmora-pictures-" + std::to_string(::getpid()));
  CairoCanvas canvas{PictureFormat::png, {8, 8}};
};

TEST(Picture, APngHasItsSizeTimesTheScale) {
  for (const auto& [scale, side] : {std::pair{1.0, 10}, {2.0, 20}, {3.0, 30}, {0.5, 5}, {1.25, 13}}) {
    CairoCanvas canvas(PictureFormat::png, {10, 10}, scale);
    canvas.fillRect({0, 0, 10, 10});
    const auto image = decoded(written(canvas));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelSize(), (PixelSize{side, side})) << scale;
    EXPECT_EQ(canvas.size(), (Size{static_cast<double>(side), static_cast<double>(side)})) << scale;
  }
}

TEST(Picture, AVectorHasItsSizeInPointsWhateverTheScale) {
  EXPECT_EQ(CairoCanvas(PictureFormat::svg, {10.5, 20}, 3).size(), (Size{10.5, 20}));
  EXPECT_EQ(CairoCanvas(PictureFormat::pdf, {10.5, 20}, 3).size(), (Size{10.5, 20}));
}

TEST(Picture, TheBackgroundLiesUnderEverythingAndCannotBeCleared) {
  CairoCanvas canvas(PictureFormat::png, {2, 1}, 1, Color{0, 0, 1, 1});
  canvas.setFillColor({1, 0, 0, 1});
  canvas.fillRect({0, 0, 2, 1});
  canvas.clearRect({1, 0, 1, 1});
  const auto image = decoded(written(canvas));
  EXPECT_EQ(image->pixels(), (PixelBytes{255, 0, 0, 255, 0, 0, 255, 255}));
}

TEST(Picture, AnImageFillsItsRectangleWithAlphaAndBlendMode) {
  CairoCanvas source(PictureFormat::png, {4, 4});
  source.setFillColor({1, 0, 0, 1});
  source.fillRect({0, 0, 2, 4});
  const auto image = decoded(written(source));
  for (const bool isMirrored : {false, true}) {
    CairoCanvas canvas(PictureFormat::png, {8, 8});
    canvas.setAlpha(0.5);
    canvas.setBlendMode(BlendMode::overlay);
    canvas.drawImage(isMirrored ? *image->mirrored() : *image, {8, 0, -8, 8});
    const auto pixels = canvas.pixels();
    const std::vector<std::uint8_t> left(pixels.begin(), pixels.begin() + 4);
    const std::vector<std::uint8_t> right(pixels.begin() + 28, pixels.begin() + 32);
    EXPECT_EQ(isMirrored ? right : left, (std::vector<std::uint8_t>{128, 0, 0, 128}));
    EXPECT_EQ(isMirrored ? left : right, (std::vector<std::uint8_t>{0, 0, 0, 0}));
  }
}

TEST(Picture, AnImageClearsItsRectangleWhateverItsAlpha) {
  CairoCanvas source(PictureFormat::png, {4, 4});
  CairoCanvas canvas(PictureFormat::png, {2, 1});
  canvas.fillRect({0, 0, 2, 1});
  canvas.setBlendMode(BlendMode::clear);
  canvas.setAlpha(0.5);
  canvas.drawImage(*decoded(written(source)), {1, 0, 1, 1});
  EXPECT_EQ(canvas.pixels(), (std::vector<std::uint8_t>{0, 0, 0, 255, 0, 0, 0, 0}));
}

TEST(Picture, TranslucentColoursAreReadBackAsTheyWereDrawn) {
  CairoCanvas canvas(PictureFormat::png, {6, 1});
  for (int x = 0; x < 6; ++x) {
    canvas.setFillColor({1, 0.6, 0.2, x / 5.0});
    canvas.fillRect({static_cast<double>(x), 0, 1, 1});
  }
  const std::vector<std::uint8_t> pixels = canvas.pixels();
  EXPECT_EQ(decoded(written(canvas))->pixels(), PixelBytes(pixels.begin(), pixels.end()));
}

TEST(Picture, APngHasAlphaOnlyWhereSomethingIsSeenThrough) {
  constexpr std::size_t placeOfColorType = 25;
  constexpr char colors = 2, colorsWithAlpha = 6;
  CairoCanvas canvas(PictureFormat::png, {2, 1});
  canvas.fillRect({0, 0, 2, 1});
  EXPECT_EQ(written(canvas).at(placeOfColorType), colors);
  canvas.clearRect({1, 0, 1, 1});
  EXPECT_EQ(written(canvas).at(placeOfColorType), colorsWithAlpha);
}

TEST(Picture, ADamagedImageOrOneInARectangleOfNoSizeDrawsNothing) {
  CairoCanvas source(PictureFormat::png, {4, 4});
  source.fillRect({0, 0, 4, 4});
  const std::string png = written(source);
  const auto damaged = decoded(png.substr(0, png.size() - 20));
  ASSERT_NE(damaged, nullptr);
  CairoCanvas canvas(PictureFormat::png, {8, 8});
  canvas.drawImage(*damaged, {0, 0, 8, 8});
  canvas.drawImage(*decoded(png), {0, 0, 0, 8});
  EXPECT_EQ(canvas.pixels(), std::vector<std::uint8_t>(8 * 8 * 4, 0));
  EXPECT_EQ(canvas.error(), std::nullopt);
}

TEST(Picture, WhatIsStillOpenIsEnded) {
  CairoCanvas canvas(PictureFormat::png, {1, 1});
  canvas.save();
  canvas.beginGroup(0.5);
  canvas.save();
  canvas.fillRect({0, 0, 1, 1});
  EXPECT_EQ(decoded(written(canvas))->pixels(), (PixelBytes{0, 0, 0, 128}));
}

TEST(Picture, IsTheSameWhenItIsWrittenAgain) {
  for (const PictureFormat format : {PictureFormat::png, PictureFormat::svg, PictureFormat::pdf}) {
    CairoCanvas canvas(format, {100, 50}, 1, {0, 0, 1, 0.5});
    canvas.fillEllipse({0, 0, 100, 50});
    TextLayout(AttributedText("14 Mar")).drawAtPoint(canvas, {10, 10});
    const auto pixels = canvas.pixels();
    const std::string first = comparable(written(canvas));
    EXPECT_EQ(canvas.pixels(), pixels) << "the background is no part of them";
    EXPECT_TRUE(comparable(written(canvas)) == first);
  }
}

TEST(Picture, OnePixelIsAPicture) {
  for (const PictureFormat format : {PictureFormat::png, PictureFormat::svg, PictureFormat::pdf}) {
    CairoCanvas canvas(format, {1, 1});
    drawCrescent(canvas, {0, 0, 1, 1}, Color::black());
    EXPECT_GT(written(canvas).size(), 50U);
  }
}

TEST(Picture, TheLongestSideIs16384Pixels) {
  for (const Size size : {Size{16384, 1}, {1, 16384}}) {
    CairoCanvas canvas(PictureFormat::png, size);
    EXPECT_EQ(canvas.error(), std::nullopt);
    EXPECT_FALSE(written(canvas).empty());
  }
}

TEST(Picture, ASideOutsideTheLimitsIsAnError) {
  struct Case {
    Size size;
    double scale;
  };
  for (const Case& c : {Case{{0, 10}, 1},
                        {{10, 0.4}, 1},
                        {{16385, 1}, 1},
                        {{8193, 1}, 2},
                        {{-5, 5}, 1},
                        {{10, 10}, 0},
                        {{10, 10}, -1},
                        {{-10, -10}, -1},
                        {{std::nan(""), 10}, 1},
                        {{10, 10}, INFINITY},
                        {{1e300, 1}, 1}}) {
    CairoCanvas canvas(PictureFormat::png, c.size, c.scale);
    drawCrescent(canvas, {0, 0, 10, 10}, Color::black());
    canvas.beginGroup(0.5);
    TextLayout(AttributedText("14")).drawAtPoint(canvas, {0, 0});
    canvas.endGroup();
    std::ostringstream output;
    const auto failure = canvas.write(output);
    ASSERT_TRUE(failure) << c.size.width;
    EXPECT_EQ(failure->kind, PictureError::Kind::size);
    EXPECT_EQ(failure->message.substr(0, 46),
              "a picture has 1 to 16384 pixels a side, not " + failure->message.substr(44, 2));
    EXPECT_TRUE(output.str().empty());
    EXPECT_TRUE(canvas.pixels().empty());
  }
}

TEST(Picture, TheScaleDoesNotLimitVectorPictures) {
  CairoCanvas canvas(PictureFormat::svg, {10000, 10}, 3);
  EXPECT_EQ(canvas.error(), std::nullopt);
  CairoCanvas tooLarge(PictureFormat::pdf, {16385, 10});
  ASSERT_TRUE(tooLarge.error());
  EXPECT_EQ(tooLarge.error()->message, "a picture has 1 to 16384 points a side, not 16385 x 10");
}

TEST(Picture, AStreamThatFailsIsAnError) {
  for (const PictureFormat format : {PictureFormat::png, PictureFormat::svg, PictureFormat::pdf}) {
    CairoCanvas canvas(format, {10, 10});
    std::ostringstream output;
    output.setstate(std::ios::badbit);
    const auto failure = canvas.write(output);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->kind, PictureError::Kind::output);
  }
}

TEST_F(PictureFile, IsWrittenWhole) {
  const fs::path path = _folder / "moon.png";
  EXPECT_EQ(canvas.writeFile(path), std::nullopt);
  EXPECT_EQ(decoded(contents(path))->pixelSize(), (PixelSize{8, 8}));
  EXPECT_EQ(fileCount(), 1U);
}

TEST_F(PictureFile, ReplacesAFormerOneAndKeepsItsPermissions) {
  const fs::path path = _folder / "moon.png";
  std::ofstream(path) << "former";
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(canvas.writeFile(path), std::nullopt);
  EXPECT_NE(contents(path), "former");
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(PictureFile, ReplacesWhatALinkPointsAt) {
  std::ofstream(_folder / "moon.png") << "former";
  fs::create_symlink(_folder / "moon.png", _folder / "link.png");
  EXPECT_EQ(canvas.writeFile(_folder / "link.png"), std::nullopt);
  EXPECT_TRUE(fs::is_symlink(_folder / "link.png"));
  EXPECT_NE(contents(_folder / "moon.png"), "former");
}

TEST_F(PictureFile, IsMadeWhereALinkPointsThoughNothingIsThereYet) {
  fs::create_directory(_folder / "pictures");
  fs::create_symlink("pictures/link.png", _folder / "link.png");
  fs::create_symlink("../moon.png", _folder / "pictures" / "link.png");
  EXPECT_EQ(canvas.writeFile(_folder / "link.png"), std::nullopt);
  EXPECT_TRUE(fs::is_symlink(_folder / "link.png"));
  EXPECT_TRUE(fs::is_symlink(_folder / "pictures" / "link.png"));
  EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(_folder / "moon.png")));
}

TEST_F(PictureFile, LinksInACircleAreAnErrorAndStay) {
  fs::create_symlink("one.png", _folder / "other.png");
  fs::create_symlink("other.png", _folder / "one.png");
  const auto failure = canvas.writeFile(_folder / "one.png");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message, "the picture cannot be written: " + systemText(ELOOP));
  EXPECT_TRUE(fs::is_symlink(_folder / "one.png"));
  EXPECT_EQ(fileCount(), 2U);
}

TEST_F(PictureFile, AFormerOneStaysWholeWhenDrawingFailed) {
  const fs::path path = _folder / "moon.png";
  std::ofstream(path) << "former";
  CairoCanvas tooLarge(PictureFormat::png, {20000, 10});
  ASSERT_TRUE(tooLarge.writeFile(path));
  EXPECT_EQ(contents(path), "former");
  EXPECT_EQ(fileCount(), 1U);
}

TEST_F(PictureFile, AMissingFolderIsAnErrorThatSaysSo) {
  const fs::path path = _folder / "none" / "moon.png";
  const auto failure = canvas.writeFile(path);
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->kind, PictureError::Kind::output);
  EXPECT_EQ(failure->message, "the picture cannot be written: " + systemText(ENOENT));
}

TEST_F(PictureFile, AFolderInItsPlaceIsAnError) {
  const auto failure = canvas.writeFile(_folder);
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message, "the picture cannot be written: " + systemText(EISDIR));
  EXPECT_TRUE(fs::is_directory(_folder));
}

TEST_F(PictureFile, AFolderThatCannotBeWrittenToIsAnError) {
  const auto failure = canvas.writeFile("/proc/moon.png");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->kind, PictureError::Kind::output);
}

TEST_F(PictureFile, AFullDeviceIsAnErrorAndStaysADevice) {
  const auto failure = canvas.writeFile("/dev/full");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message, "the picture cannot be written: " + systemText(ENOSPC));
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

}  // namespace
}  // namespace velmora
