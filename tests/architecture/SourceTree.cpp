#include "tests/architecture/SourceTree.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string_view>

#include "tests/support/SourceDirectory.h"

namespace velmora::testing {
namespace {

constexpr int mostLines = 400;

/// How a header that is not installed begins what it declares.
constexpr const char* hiddenNamespace = R"(namespace [[gnu::visibility("hidden")]])";

/// From the bottom up.
constexpr std::array layers = {"velmora/platform/system",
                               "velmora/platform/time",
                               "velmora/ephemeris",
                               "velmora/almanac",
                               "velmora/platform/resources",
                               "velmora/platform/events",
                               "velmora/cities",
                               "velmora/foundation",
                               "velmora/astronomy",
                               "velmora/phases",
                               "velmora/service",
                               "velmora/c",
                               "velmora/platform/graphics",
                               "velmora/platform/ui",
                               "velmora/views",
                               "velmora/posters",
                               "app/text",
                               "app/place",
                               "app/request",
                               "app/answers",
                               "app/commands",
                               "app/drawing",
                               "app/program",
                               "tests"};

/// The folders of the calendar's fixed arithmetic, which the almanac knows nothing of, nor they of it.
constexpr std::array fixedFolders = {"velmora/foundation/", "velmora/astronomy/", "velmora/phases/"};
constexpr std::array almanacFolders = {"velmora/ephemeris/", "velmora/almanac/"};

const std::set<std::string> adapters = {"browser", "cairo",    "cctz", "icu",  "intl",
                                        "libical", "libplist", "png",  "posix"};
const std::set<std::string> librariesOfProgram = {"CLI/CLI.hpp", "dlfcn.h", "nlohmann/json.hpp", "unistd.h"};

/// None for what lies in no layer: the version, which stands below them all.
std::optional<std::size_t> layerOf(const std::string& path) {
  for (std::size_t layer = 0; layer < layers.size(); ++layer) {
    if (path.starts_with(std::string(layers[layer]) + "/")) return layer;
  }
  return std::nullopt;
}

bool isAdapter(const std::string& path) {
  return adapters.count(std::filesystem::path(path).parent_path().filename().string()) != 0;
}

template <class Folders>
bool liesIn(const Folders& folders, const std::string& path) {
  return std::any_of(folders.begin(), folders.end(),
                     [&](const char* folder) { return path.starts_with(folder); });
}

bool isOfProject(const std::string& include) {
  return liesIn(std::array{"velmora/", "app/", "tests/", "examples/"}, include);
}

/// Headers of the C++ library have neither folder nor ending; the C interface needs two of the C library.
bool isThirdParty(const std::string& include) {
  const std::set<std::string> ofC = {"stddef.h", "stdint.h"};
  return !isOfProject(include) && ofC.count(include) == 0 && include.find_first_of("./") != std::string::npos;
}

/// The third-party headers that come with the file, whoever includes them.
std::set<std::string> thirdPartyOf(const std::string& path, const SourceTree& tree) {
  std::set<std::string> reached;
  const auto file = tree.find(path);
  if (file == tree.end()) return reached;
  for (const std::string& include : file->second.includes) {
    if (isThirdParty(include)) reached.insert(include);
    if (isOfProject(include)) reached.merge(thirdPartyOf(include, tree));
  }
  return reached;
}

bool isSource(const std::filesystem::path& path) {
  static const std::set<std::string> endings = {".cmake", ".cpp", ".h", ".py"};
  return endings.count(path.extension().string()) != 0 || path.filename() == "CMakeLists.txt";
}

/// An include that names a file beside the including one gets its path from the project's root.
void resolveNeighbours(SourceTree& tree) {
  for (auto& [path, file] : tree) {
    for (std::string& include : file.includes) {
      const std::string neighbour = (std::filesystem::path(path).parent_path() / include).string();
      if (tree.count(neighbour) != 0) include = neighbour;
    }
  }
}

}  // namespace

SourceFile sourceFile(const std::string& text) {
  static const std::regex include(R"(\s*#\s*include\s*[<"]([^>"]+)[>"].*)");
  SourceFile file;
  std::istringstream lines(text);
  std::smatch match;
  for (std::string line; std::getline(lines, line); ++file.lineCount) {
    if (line.starts_with(hiddenNamespace)) file.isInternal = true;
    if (std::regex_match(line, match, include)) file.includes.push_back(match[1]);
    if (line.find("/ Kept: ") != std::string::npos) file.hasKeptOddity = true;
  }
  return file;
}

SourceTree readSourceTree(const std::vector<std::string>& folders) {
  SourceTree tree;
  const std::filesystem::path root = sourceDirectory();
  for (const std::string& folder : folders) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
      if (!isSource(entry.path())) continue;
      std::ostringstream text;
      text << std::ifstream(entry.path()).rdbuf();
      tree[entry.path().lexically_relative(root).string()] = sourceFile(text.str());
    }
  }
  resolveNeighbours(tree);
  return tree;
}

std::vector<std::string> upwardIncludes(const SourceTree& tree) {
  std::vector<std::string> breaches;
  for (const auto& [path, file] : tree) {
    const auto own = layerOf(path);
    for (const std::string& include : file.includes) {
      const auto included = layerOf(include);
      if (own && included && *included > *own) breaches.push_back(path + " includes " + include);
    }
  }
  return breaches;
}

std::vector<std::string> almanacInFixedFolders(const SourceTree& tree) {
  std::vector<std::string> breaches;
  for (const auto& [path, file] : tree) {
    if (!liesIn(fixedFolders, path)) continue;
    for (const std::string& include : file.includes) {
      if (liesIn(almanacFolders, include)) breaches.push_back(path + " includes " + include);
    }
  }
  return breaches;
}

std::vector<std::string> outsideFloors(const SourceTree& tree) {
  std::vector<std::string> breaches;
  for (const auto& [path, file] : tree) {
    const bool isOfProgram = path.starts_with("app/") && !path.ends_with("CMakeLists.txt");
    if (isOfProgram && !layerOf(path)) breaches.push_back(path + " lies on no floor");
  }
  return breaches;
}

std::vector<std::string> thirdPartyOutsideAdapters(const SourceTree& tree) {
  std::vector<std::string> breaches;
  for (const auto& [path, file] : tree) {
    if (isAdapter(path)) continue;
    for (const std::string& header : thirdPartyOf(path, tree)) {
      const bool isOfProgram = path.starts_with("app/") && librariesOfProgram.count(header) != 0;
      if (!isOfProgram) breaches.push_back(path + " reaches " + header);
    }
  }
  return breaches;
}

std::vector<std::string> internalOutsideLibrary(const SourceTree& tree) {
  std::vector<std::string> breaches;
  for (const auto& [path, file] : tree) {
    if (!path.starts_with("app/") && !path.starts_with("examples/")) continue;
    for (const std::string& include : file.includes) {
      const auto included = tree.find(include);
      if (included != tree.end() && included->second.isInternal)
        breaches.push_back(path + " includes " + include);
    }
  }
  return breaches;
}

std::vector<std::string> longFiles(const SourceTree& tree) {
  std::vector<std::string> breaches;
  for (const auto& [path, file] : tree) {
    if (file.lineCount > mostLines) {
      breaches.push_back(path + " has " + std::to_string(file.lineCount) + " lines");
    }
  }
  return breaches;
}

std::vector<std::string> wronglyListedAsKept(const SourceTree& tree, const std::string& page) {
  std::vector<std::string> breaches;
  for (const auto& [path, file] : tree) {
    constexpr std::string_view library = "velmora/";
    if (!path.starts_with(library)) continue;
    const bool isListed = page.find("`" + path.substr(library.size()) + "`") != std::string::npos;
    if (file.hasKeptOddity && !isListed) breaches.push_back(path + " is missing");
    if (!file.hasKeptOddity && isListed) breaches.push_back(path + " is listed");
  }
  return breaches;
}

}  // namespace velmora::testing
