#pragma once

#include <map>
#include <string>
#include <vector>

namespace velmora::testing {

/// What a source file says that the rules of the architecture are about.
struct SourceFile {
  std::vector<std::string> includes;  ///< of headers of the project, the path from its root
  int lineCount = 0;
  bool isInternal = false;     ///< a header of the library that is not installed
  bool hasKeptOddity = false;  ///< a comment that begins with "Kept:"
};

/// Source files by their path from the project's root: "velmora/views/PhaseDisc.h".
using SourceTree = std::map<std::string, SourceFile>;

SourceFile sourceFile(const std::string& text);

/// The files of C++, Python and CMake below the given folders of the project.
SourceTree readSourceTree(const std::vector<std::string>& folders);

// Each returns the breaches of a rule, one readable line each; none is well.

/// A folder includes only folders below it.
std::vector<std::string> upwardIncludes(const SourceTree& tree);

/// The calendar's fixed arithmetic never includes the almanac, which is as true as it can be; the layers
/// forbid the other way round.
std::vector<std::string> almanacInFixedFolders(const SourceTree& tree);

/// Every source of the host program lies in one of its folders, none beside them.
std::vector<std::string> outsideFloors(const SourceTree& tree);

/// Only an adapter reaches a third-party header, be it through headers of the project. The host program may
/// include what it is made with besides: the command line's and JSON's libraries, and of the system the
/// terminal and the loading of a library.
std::vector<std::string> thirdPartyOutsideAdapters(const SourceTree& tree);

/// The host program and the examples use the library as anybody may: by its installed headers.
std::vector<std::string> internalOutsideLibrary(const SourceTree& tree);

std::vector<std::string> longFiles(const SourceTree& tree);

/// The page on what is kept names every file of the library that marks something so, and no other.
std::vector<std::string> wronglyListedAsKept(const SourceTree& tree, const std::string& page);

}  // namespace velmora::testing
