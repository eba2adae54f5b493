#include <velmora/phases/KeptTables.h>

#include <algorithm>
#include <system_error>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// A file that was written so lately may be written again without a later time.
constexpr std::chrono::seconds tickOfFileTimes{2};

bool mayChangeUnseen(std::filesystem::file_time_type written) {
  return written + tickOfFileTimes > std::filesystem::file_time_type::clock::now();
}

}  // namespace

KeptTables::Table KeptTables::table(const std::filesystem::path& path, const std::function<Table()>& read) {
  std::error_code error;
  Entry file{path, std::filesystem::last_write_time(path, error), 0, nullptr};
  if (!error) file.size = std::filesystem::file_size(path, error);
  if (error || mayChangeUnseen(file.written)) return read();
  if (Table kept = find(file)) return kept;
  file.table = read();
  keep(file);
  return file.table;
}

KeptTables::Table KeptTables::find(const Entry& file) {
  const std::lock_guard lock(_mutex);
  const auto found = std::find_if(_entries.begin(), _entries.end(), [&](const Entry& entry) {
    return entry.path == file.path && entry.written == file.written && entry.size == file.size;
  });
  return found == _entries.end() ? nullptr : found->table;
}

void KeptTables::keep(Entry entry) {
  const std::lock_guard lock(_mutex);
  _entries[_oldest] = std::move(entry);
  _oldest = (_oldest + 1) % _entries.size();
}

}  // namespace velmora
