#include "tests/support/RecordedDrawing.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "tests/support/SourceDirectory.h"

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

std::vector<std::string> linesOf(const fs::path& path) {
  std::vector<std::string> lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

std::string lineAt(const std::vector<std::string>& lines, std::size_t index) {
  return index < lines.size() ? lines[index] : "(the end)";
}

}  // namespace

AssertionResult drawsAsRecorded(const RecordingCanvas& canvas, const std::string& name) {
  const fs::path path = fs::path(sourceDirectory()) / "tests/recorded" / (name + ".txt");
  if (std::getenv("VELMORA_UPDATE_GOLDEN") != nullptr) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << canvas.text();
    return AssertionFailure() << "wrote " << path << ": read it, then run again";
  }
  const std::vector<std::string>& drawn = canvas.lines();
  const std::vector<std::string> recorded = linesOf(path);
  if (drawn == recorded) return AssertionSuccess();
  const auto differing = std::mismatch(drawn.begin(), drawn.end(), recorded.begin(), recorded.end());
  const auto index = static_cast<std::size_t>(differing.first - drawn.begin());
  return AssertionFailure() << path << ", line " << index + 1 << ": " << lineAt(recorded, index)
                            << "\ndrawn instead: " << lineAt(drawn, index);
}

}  // namespace velmora::testing
