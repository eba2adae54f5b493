#include <velmora/phases/KeptTables.h>

#include <algorithm>
#include <optional>

namespace [[gnu::visibility("hidden")]] velmora {

KeptTables::Table KeptTables::table(const std::filesystem::path& path, const std::function<Table()>& read) {
  const std::optional<FileVersion> version = settledVersion(path);
  if (!version) return read();
  Entry file{path, *version, nullptr};
  if (Table kept = find(file)) return kept;
  file.table = read();
  keep(file);
  return file.table;
}

KeptTables::Table KeptTables::find(const Entry& file) {
  const std::lock_guard lock(_mutex);
  const auto found = std::find_if(_entries.begin(), _entries.end(), [&](const Entry& entry) {
    return entry.path == file.path && entry.version == file.version;
  });
  return found == _entries.end() ? nullptr : found->table;
}

void KeptTables::keep(Entry entry) {
  const std::lock_guard lock(_mutex);
  _entries[_oldest] = std::move(entry);
  _oldest = (_oldest + 1) % _entries.size();
}

}  // namespace velmora
