#include "MoonPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <vector>

namespace velmora::shipped {
namespace {

constexpr int pictureCount = 56;
constexpr double degree = 3.14159265358979323846 / 180;

const std::vector<MoonPicture>& lunation() {
  static const std::vector<MoonPicture> pictures = [] {
    std::vector<MoonPicture> all;
    for (int number = 0; number < pictureCount; ++number) all.emplace_back("IMG_" + std::to_string(number));
    return all;
  }();
  return pictures;
}

const MoonPicture& picture(int number) { return lunation().at(static_cast<std::size_t>(number)); }
const MoonPicture& newMoon() { return picture(0); }
const MoonPicture& firstQuarter() { return picture(15); }
const MoonPicture& fullMoon() { return picture(27); }

bool isRightHalf(double x, double) { return x > 0; }
bool isLeftHalf(double x, double) { return x < 0; }

/// Share of the disc that is brighter than this share of what the same ground is at full Moon.
double litShare(const MoonPicture& moon) {
  constexpr double threshold = 0.23;  // above the earthshine, below the softest terminator
  return moon.mean([&](int column, int row) {
    return moon.brightnessAt(column, row) > threshold * fullMoon().brightnessAt(column, row) ? 1.0 : 0.0;
  });
}

/// Brightness against the same ground's at full Moon, so that the dark plains do not weigh.
double relativeBrightness(const MoonPicture& moon, bool (*isWanted)(double, double)) {
  return moon.mean(
      [&](int column, int row) {
        return moon.brightnessAt(column, row) / fullMoon().brightnessAt(column, row);
      },
      isWanted);
}

/// Above 0 for a disc that is lit on the right, below 0 on the left. What the Earth lights evenly does not
/// weigh.
double sidedness(const MoonPicture& moon) {
  const auto sunlight = [&](bool (*isWanted)(double, double)) {
    return relativeBrightness(moon, isWanted) - relativeBrightness(newMoon(), isWanted);
  };
  return sunlight(isRightHalf) - sunlight(isLeftHalf);
}

double meanBrightness(const MoonPicture& moon) {
  return moon.mean([&](int column, int row) { return moon.brightnessAt(column, row); });
}

/// The share that a picture's number stands for.
double litShareMeantBy(int number) {
  double elongation = 0;  // degrees
  if (number < 15)
    elongation = number * 90 / 15.0;
  else if (number < 27)
    elongation = 90 + (number - 15) * 90 / 12.0;
  else if (number < 40)
    elongation = 180 + (number - 27) * 90 / 13.0;
  else
    elongation = 270 + (number - 40) * 90 / 16.0;
  return (1 - std::cos(elongation * degree)) / 2;
}

void expectDiscOnTransparency(const Image& image) {
  EXPECT_EQ(image.pixelSize(), (PixelSize{.width = MoonPicture::size, .height = MoonPicture::size}));
  const int last = MoonPicture::size - 1;
  for (const int corner : {0, last})
    for (const int other : {0, last}) EXPECT_EQ(pixelAt(image, corner, other).alpha, 0);
  EXPECT_EQ(pixelAt(image, 0, 128).alpha, 0);
  EXPECT_EQ(pixelAt(image, 128, 128).alpha, 255);
  EXPECT_EQ(pixelAt(image, 6, 128).alpha, 255);
  EXPECT_EQ(pixelAt(image, 128, 249).alpha, 255);
}

TEST(MoonPictures, EveryPictureIsADiscOnTransparency) {
  for (int number = 0; number < pictureCount; ++number) {
    SCOPED_TRACE(number);
    expectDiscOnTransparency(picture(number).image());
  }
  expectDiscOnTransparency(MoonPicture("moon_0").image());
}

TEST(MoonPictures, LitShareIsWhatTheNumberMeans) {
  constexpr double tolerance = 0.02;
  double largest = 0, sumOfSquares = 0;
  for (int number = 0; number < pictureCount; ++number) {
    const double error = litShare(picture(number)) - litShareMeantBy(number);
    EXPECT_NEAR(error, 0, tolerance) << "picture " << number;
    largest = std::max(largest, std::abs(error));
    sumOfSquares += error * error;
  }
  std::cout << pictureCount << " pictures, RMS " << std::sqrt(sumOfSquares / pictureCount) << ", largest "
            << largest << " of the disc\n";
}

TEST(MoonPictures, LitShareGrowsToFullMoonAndShrinksAfterIt) {
  for (int number = 1; number <= 27; ++number)
    EXPECT_GT(litShare(picture(number)), litShare(picture(number - 1))) << number;
  for (int number = 28; number < pictureCount; ++number)
    EXPECT_LT(litShare(picture(number)), litShare(picture(number - 1))) << number;
}

TEST(MoonPictures, WaxingMoonIsLitOnTheRightAndWaningMoonOnTheLeft) {
  for (int number = 1; number < 27; ++number) EXPECT_GT(sidedness(picture(number)), 0) << number;
  for (int number = 28; number < pictureCount; ++number) EXPECT_LT(sidedness(picture(number)), 0) << number;
}

TEST(MoonPictures, NewMoonShowsFaintBluishEarthshine) {
  const double share = meanBrightness(newMoon()) / meanBrightness(fullMoon());
  EXPECT_GT(share, 0.05);
  EXPECT_LT(share, 0.25);
  const double blueness = newMoon().mean([](int column, int row) {
    const Pixel pixel = pixelAt(newMoon().image(), column, row);
    return static_cast<double>(pixel.blue - pixel.red);
  });
  EXPECT_GT(blueness, 3);
}

TEST(MoonPictures, EarthshineFadesAsTheMoonWaxes) {
  const auto atLeftLimb = [](double x, double) { return x < -0.9; };
  EXPECT_GT(relativeBrightness(newMoon(), atLeftLimb), 1.2 * relativeBrightness(firstQuarter(), atLeftLimb));
  EXPECT_GT(relativeBrightness(firstQuarter(), atLeftLimb), relativeBrightness(picture(20), atLeftLimb));
}

TEST(MoonPictures, FullMoonIsNotDarkerAtItsLimb) {
  const auto ring = [](double inner, double outer) {
    return fullMoon().mean([](int column, int row) { return fullMoon().brightnessAt(column, row); },
                           [=](double x, double y) {
                             const double radius = std::hypot(x, y);
                             return y < -0.3 && radius > inner && radius < outer;
                           });
  };
  EXPECT_NEAR(ring(0.93, 0.98) / ring(0.5, 0.8), 1, 0.08);
}

struct Landmark {
  const char* name;
  double latitude, longitude;  // selenographic degrees, north and east positive
};

TEST(MoonPictures, DarkPlainsLieWhereTheMoonHasThem) {
  const Landmark plains[] = {{"Crisium", 17, 59.1},    {"Serenitatis", 27, 18},   {"Tranquillitatis", 8, 31},
                             {"Fecunditatis", -4, 51}, {"Nectaris", -15.2, 35.2}, {"Imbrium", 38, -18},
                             {"Procellarum", 15, -62}, {"Humorum", -24.3, -39.5}, {"Nubium", -20, -14},
                             {"Frigoris", 58, 0},      {"Vaporum", 13.3, 3.6},    {"Plato", 51.6, -9.4}};
  const double usual = meanBrightness(fullMoon());
  for (const Landmark& plain : plains)
    EXPECT_LT(fullMoon().brightnessAround(plain.latitude, plain.longitude), 0.9 * usual) << plain.name;
}

TEST(MoonPictures, BrightCratersLieWhereTheMoonHasThem) {
  const Landmark craters[] = {{"Tycho", -43.3, -11.4},      {"Copernicus", 9.6, -20.1},
                              {"Aristarchus", 23.7, -47.4}, {"Kepler", 8.1, -38},
                              {"Proclus", 16.1, 46.8},      {"Stevinus", -32.5, 54.2}};
  const double usual = meanBrightness(fullMoon());
  for (const Landmark& crater : craters)
    EXPECT_GT(fullMoon().brightnessAround(crater.latitude, crater.longitude), 1.05 * usual) << crater.name;
}

/// Standard deviation against the mean over a window of the southern highlands beside the first quarter's
/// terminator.
double roughness(const MoonPicture& moon) {
  const auto window = [](double x, double y) { return x > 0.03 && x < 0.2 && y > -0.8 && y < -0.3; };
  const auto brightness = [&](int column, int row) { return moon.brightnessAt(column, row); };
  const double mean = moon.mean(brightness, window);
  const double variance =
      moon.mean([&](int column, int row) { return std::pow(brightness(column, row) - mean, 2); }, window);
  return std::sqrt(variance) / mean;
}

TEST(MoonPictures, CratersStandOutAlongTheTerminator) {
  EXPECT_GT(roughness(firstQuarter()), 3 * roughness(fullMoon()));
}

TEST(MoonPictures, UnknownPhaseIsAnEvenDimDisc) {
  const MoonPicture unknown("moon_0");
  EXPECT_NEAR(relativeBrightness(unknown, isLeftHalf), relativeBrightness(unknown, isRightHalf), 0.02);
  EXPECT_LT(meanBrightness(unknown), 0.6 * meanBrightness(fullMoon()));
  EXPECT_GT(meanBrightness(unknown), 1.5 * meanBrightness(newMoon()));
}

TEST(MoonPictures, AreSmallFiles) {
  constexpr std::size_t largestFile = 120'000, largestSum = 5'000'000;  // bytes
  std::size_t sum = 0;
  for (const MoonPicture& moon : lunation()) {
    EXPECT_LT(moon.image().encodedBytes().size(), largestFile);
    sum += moon.image().encodedBytes().size();
  }
  EXPECT_LT(sum, largestSum);
}

}  // namespace
}  // namespace velmora::shipped
