#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

namespace velmora {

/// Writes a file in one step: what `write` gives is put into a new file in the same folder, which then takes
/// the place of the one at the path. On failure, or when `write` returns false, nothing there has changed. A
/// signal that ends the program leaves the former file or the new one, and no other. What is no ordinary file
/// (a device, a pipe) is written to as it is. Returns what the system said when it failed, else none.
std::optional<std::string> replaceFile(const std::filesystem::path& path,
                                       const std::function<bool(std::ostream&)>& write);

}  // namespace velmora
