#include <gtest/gtest.h>
#include <zlib.h>

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

/// The streams of the document as they were before they were compressed, one after the other.
std::string streamsOf(const std::string& pdf) {
  const std::string begin = "stream\n";
  std::string all;
  for (auto at = pdf.find(begin); at != std::string::npos; at = pdf.find(begin, at + 1)) {
    std::string bytes(1 << 20, '\0');
    uLongf size = bytes.size();
    const std::size_t start = at + begin.size(), most = pdf.size() - start;
    const auto* const compressed = reinterpret_cast<const Bytef*>(pdf.data() + start);
    if (uncompress(reinterpret_cast<Bytef*>(bytes.data()), &size, compressed, most) == Z_OK)
      all.append(bytes, 0, size);
  }
  return all;
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

// The colon between digits is another glyph than that of the face's table, and no code of the old alphabets
// has the narrow space.
TEST(PdfPages, SayOfEachGlyphWhichCharacterItShows) {
  CairoCanvas canvas(PictureFormat::pdf, {200, 50});
  for (const char* const text : {"12:03\u202FPM", "السبت ٢٢", "5月22日"})
    TextLayout(AttributedText(text, {.font = {"System", 10}})).drawAtPoint(canvas, {10, 10});
  const std::string streams = streamsOf(written(canvas));
  EXPECT_GT(countOf("begincmap", streams), 0U);
  EXPECT_EQ(countOf("<fffd>", streams), 0U);
  EXPECT_GT(countOf("<202f>", streams), 0U);
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
