#include <velmora/platform/resources/BundleContents.h>
#include <velmora/platform/resources/Languages.h>

namespace velmora {
namespace {

/// The table as read from the bundle, kept by its file's name; the caller holds the lock.
const std::optional<StringTable>& keptTable(const std::string& file, const std::filesystem::path& directory,
                                            std::map<std::string, std::optional<StringTable>>& tables) {
  const auto kept = tables.find(file);
  if (kept != tables.end()) return kept->second;
  return tables.emplace(file, StringTable::fromFile(directory / file)).first->second;
}

}  // namespace

std::string Bundle::localizedString(const std::string& key, const std::string& value,
                                    const std::string& table) const {
  const std::lock_guard lock(_contents->mutex);
  for (const std::string& language : preferredLanguages(Locale::current())) {
    const std::string file = language + ".lproj/" + table + ".strings";
    const std::optional<StringTable>& texts = keptTable(file, directory(), _contents->tables);
    if (!texts) continue;
    if (std::optional<std::string> text = texts->text(key)) return *std::move(text);
  }
  return value.empty() ? key : value;
}

}  // namespace velmora
