#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/resources/Image.h>

#include "tests/platform/graphics/WrittenPicture.h"

namespace velmora {
namespace {

using testing::written;

std::size_t countOf(const std::string& part, const std::string& text) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

std::size_t pageCount(const std::string& pdf) { return countOf("/Type /Page ", pdf); }

std::shared_ptr<const Image> redImage() {
  CairoCanvas canvas(PictureFormat::png, {64, 64});
  canvas.setFillColor({1, 0, 0, 1});
  canvas.fillEllipse({4, 4, 56, 56});
  return Image::fromBytes("red", written(canvas));
}

TEST(PdfPages, AreAsManyAsWereBegun) {
  CairoCanvas canvas(PictureFormat::pdf, {100, 50});
  canvas.fillRect({0, 0, 10, 10});
  EXPECT_EQ(pageCount(written(canvas)), 1U);
  for (const double left : {20.0, 40.0}) {
    canvas.nextPage();
    canvas.fillRect({left, 0, 10, 10});
  }
  EXPECT_EQ(pageCount(written(canvas)), 3U);
  EXPECT_EQ(pageCount(written(canvas)), 3U) << "written again";
}

TEST(PdfPages, WithNothingOnThemArePagesToo) {
  CairoCanvas canvas(PictureFormat::pdf, {100, 50});
  canvas.nextPage();
  EXPECT_EQ(pageCount(written(canvas)), 2U);
}

TEST(PdfPages, BeginWithoutWhatTheFormerOneLeftOpen) {
  const auto document = [](bool isClosed) {
    CairoCanvas canvas(PictureFormat::pdf, {100, 50});
    canvas.save();
    canvas.translate(20, 20);
    canvas.setFillColor({1, 0, 0, 1});
    canvas.beginGroup(0.5);
    canvas.fillRect({0, 0, 5, 5});
    if (isClosed) {
      canvas.endGroup();
      canvas.restore();
    }
    canvas.nextPage();
    canvas.fillRect({0, 0, 10, 10});
    canvas.endGroup();
    canvas.restore();
    return testing::comparable(written(canvas));
  };
  EXPECT_EQ(document(false), document(true));
}

TEST(PdfPages, TellOfAllOfThemWhichCharactersAreMissing) {
  CairoCanvas canvas(PictureFormat::pdf, {100, 50});
  TextLayout(AttributedText("\U0010FFFD", {.font = {"System", 12}})).drawInRect(canvas, {0, 0, 50, 20});
  const auto uncovered = canvas.uncoveredCharacters();
  canvas.nextPage();
  EXPECT_EQ(canvas.uncoveredCharacters(), uncovered);
  EXPECT_EQ(uncovered.size(), 1U);
}

TEST(PdfPages, AreNoneOfASizeThatNoPictureHas) {
  CairoCanvas canvas(PictureFormat::pdf, {20000, 50});
  canvas.nextPage();
  ASSERT_TRUE(canvas.error());
  EXPECT_EQ(canvas.error()->kind, PictureError::Kind::size);
}

TEST(PdfPages, KnowAPageThatBecamePixels) {
  CairoCanvas canvas(PictureFormat::pdf, {100, 50});
  canvas.fillRect({0, 0, 50, 50});
  canvas.clearRect({10, 10, 10, 10});
  canvas.nextPage();
  canvas.fillRect({0, 0, 50, 50});
  written(canvas);
  EXPECT_TRUE(canvas.becamePixels());
}

TEST(PdfPages, AreNotOfOtherFormats) {
  for (const PictureFormat format : {PictureFormat::png, PictureFormat::svg}) {
    CairoCanvas canvas(format, {100, 50});
    canvas.nextPage();
    std::ostringstream output;
    const auto failure = canvas.write(output);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->kind, PictureError::Kind::drawing);
    EXPECT_EQ(failure->message, "only a PDF has more than one page");
  }
}

TEST(PdfPages, HoldAnImageOnceHoweverOftenItIsDrawn) {
  const auto image = redImage();
  const auto size = [&](int pages) {
    CairoCanvas canvas(PictureFormat::pdf, {100, 50});
    for (int page = 0; page < pages; ++page) {
      if (page > 0) canvas.nextPage();
      for (const double left : {0.0, 30.0, 60.0}) canvas.drawImage(*image, {left, 0, 20, 20});
    }
    return countOf("/Subtype /Image", written(canvas));
  };
  EXPECT_EQ(size(1), 2U) << "its colours and its alpha";
  EXPECT_EQ(size(3), 2U);
}

}  // namespace
}  // namespace velmora
