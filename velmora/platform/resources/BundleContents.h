#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/resources/StringTable.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What the copies of a bundle share. A string table is read once, found or not; a picture until it is found.
struct [[gnu::visibility("hidden")]] Bundle::Contents {
  std::string identifier;
  std::filesystem::path directory;

  std::mutex mutex;  ///< guards what follows
  std::map<std::string, std::optional<StringTable>> tables;
  std::map<std::string, std::shared_ptr<const Image>> images;
};

}  // namespace velmora
