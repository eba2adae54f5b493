// Hands over what a page fetches besides: the shipped pictures and the table of cities.

#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include <tests/support/SourceDirectory.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/system/browser/HandedFiles.h>

namespace velmora {
namespace {

namespace fs = std::filesystem;

void handOver(const fs::path& file, const fs::path& to) {
  std::ifstream stream(file, std::ios::binary);
  HandedFiles::handOver(to.string(), {std::istreambuf_iterator<char>(stream), {}});
}

class ShippedFiles final : public ::testing::Environment {
  void SetUp() override {
    const fs::path shipped = fs::path(sourceDirectory()) / "velmora/resources";
    const fs::path bundle = Bundle::library().directory();
    handOver(shipped / "cities.table", bundle / "cities.table");
    for (const auto& picture : fs::directory_iterator(shipped / "images")) {
      handOver(picture.path(), bundle / "images" / picture.path().filename());
    }
  }
};

[[maybe_unused]] const auto* const environment = ::testing::AddGlobalTestEnvironment(new ShippedFiles);

}  // namespace
}  // namespace velmora
