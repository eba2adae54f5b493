#include "tests/posters/PosterTesting.h"

#include <velmora/views/UIControls.h>

#include "tests/support/RecordingCanvas.h"

namespace velmora::testing {

const std::vector<std::string> posterLocales = {"ar_EG", "de_DE", "en_US", "es_ES",   "fr_FR",  "he_IL",
                                                "hi_IN", "it_IT", "ja_JP", "ko_KR",   "nl_NL",  "pl_PL",
                                                "pt_BR", "ru_RU", "tr_TR", "zh_Hans", "zh_Hant"};

namespace {

PosterPlace placeAt(double latitude, double longitude, const char* zone, const char* name) {
  return {{latitude, longitude, 0}, TimeZone::named(zone).value(), name};
}

/// The part of a label's room that the text fills.
Rect drawnArea(const Label& label) {
  const double height = std::min(label.height, label.room.height);
  return {label.room.midX() - label.width / 2, label.room.midY() - height / 2, label.width, height};
}

}  // namespace

PosterPlace helsinki() { return placeAt(60.1699, 24.9384, "Europe/Helsinki", "Helsinki"); }
PosterPlace tromso() { return placeAt(69.6489, 18.9551, "Europe/Oslo", "Tromsø"); }
PosterPlace sydney() { return placeAt(-33.8688, 151.2093, "Australia/Sydney", "Sydney"); }
PosterPlace quito() { return placeAt(-0.1807, -78.4678, "America/Guayaquil", "Quito"); }
PosterPlace lordHowe() { return placeAt(-31.5553, 159.0821, "Australia/Lord_Howe", "Lord Howe Island"); }

std::vector<Label> labelsOf(const Poster& poster, Size size) {
  RecordingCanvas canvas;
  Sheet sheet(canvas, size, Palette::of(PaperTheme::dark), UIControls::isUserInterfaceRightToLeft());
  poster.compose(sheet);
  EXPECT_TRUE(canvas.isBalanced());
  return sheet.labels();
}

bool overlap(const Rect& a, const Rect& b) {
  const Rect common = a.intersection(b);
  return common.width > 1e-9 && common.height > 1e-9;
}

bool contains(const Rect& outer, const Rect& inner) {
  constexpr double rounding = 1e-6;
  return inner.minX() >= outer.minX() - rounding && inner.maxX() <= outer.maxX() + rounding &&
         inner.minY() >= outer.minY() - rounding && inner.maxY() <= outer.maxY() + rounding;
}

void expectReadable(const std::vector<Label>& labels, Size size, double leastShare,
                    const std::string& where) {
  constexpr double rounding = 0.02;  // of a width, which does not grow quite with the size
  EXPECT_FALSE(labels.empty()) << where;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const Label& label = labels[i];
    EXPECT_LE(label.width, label.room.width * (1 + rounding)) << where << ": " << label.text;
    EXPECT_GE(label.width, label.wantedWidth * leastShare) << where << ": " << label.text;
    EXPECT_TRUE(contains({0, 0, size.width, size.height}, label.room)) << where << ": " << label.text;
    for (std::size_t other = 0; other < i; ++other)
      EXPECT_TRUE(drawnArea(label).intersection(drawnArea(labels[other])).isEmpty())
          << where << ": " << label.text << " and " << labels[other].text;
  }
}

}  // namespace velmora::testing
