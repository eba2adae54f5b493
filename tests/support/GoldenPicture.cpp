#include "tests/support/GoldenPicture.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <tests/support/SourceDirectory.h>

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

std::string fileName(const std::string& name) { return name + ".png"; }

void writeBytes(const fs::path& path, const std::string& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string readBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string text(PixelSize size) { return std::to_string(size.width) + " x " + std::to_string(size.height); }

bool differs(const std::uint8_t* a, const std::uint8_t* b, int channelDifference) {
  for (int channel = 0; channel < 4; ++channel) {
    if (std::abs(a[channel] - b[channel]) > channelDifference) return true;
  }
  return false;
}

}  // namespace

AssertionResult areAlike(const Image& actual, const Image& golden, const PictureTolerance& tolerance) {
  if (actual.pixelSize() != golden.pixelSize()) {
    return AssertionFailure() << "the picture has " << text(actual.pixelSize()) << " pixels, the golden one "
                              << text(golden.pixelSize());
  }
  const PixelBytes &drawn = actual.pixels(), &expected = golden.pixels();
  if (drawn.empty() || expected.empty()) return AssertionFailure() << "a picture is damaged";
  const std::size_t count = drawn.size() / 4;
  std::size_t differing = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (differs(&drawn[4 * i], &expected[4 * i], tolerance.channelDifference)) ++differing;
  }
  const double share = static_cast<double>(differing) / static_cast<double>(count);
  if (share <= tolerance.differingShare) return AssertionSuccess();
  return AssertionFailure() << differing << " of " << count << " pixels differ by more than "
                            << tolerance.channelDifference;
}

AssertionResult looksLikeGolden(CairoCanvas& canvas, const std::string& name,
                                const PictureTolerance& tolerance) {
  const fs::path goldenPath = fs::path(sourceDirectory()) / "tests/golden" / fileName(name);
  const fs::path actualPath = fs::path(VELMORA_BINARY_DIR) / "golden" / fileName(name);
  std::ostringstream output;
  if (const auto failure = canvas.write(output)) return AssertionFailure() << failure->message;
  if (std::getenv("VELMORA_UPDATE_GOLDEN") != nullptr) {
    writeBytes(goldenPath, output.str());
    return AssertionFailure() << "wrote " << goldenPath << "; look at it and run the test again";
  }
  const auto actual = Image::fromBytes(name, output.str());
  const auto golden = Image::fromBytes(name, readBytes(goldenPath));
  if (!actual || !golden) return AssertionFailure() << "no picture to compare with at " << goldenPath;
  const AssertionResult result = areAlike(*actual, *golden, tolerance);
  if (result) return result;
  writeBytes(actualPath, output.str());
  return AssertionFailure() << result.message() << "; drawn: " << actualPath << ", golden: " << goldenPath;
}

}  // namespace velmora::testing
