#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>

#include <velmora/phases/YearTable.h>
#include <velmora/platform/system/FileReading.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The tables read last, each for as long as its file stays as it was read. Usable from any thread.
class KeptTables {
 public:
  using Table = std::shared_ptr<const YearTable>;

  /// The table of the file, read where it is not kept; empty where `read` gives none.
  Table table(const std::filesystem::path& path, const std::function<Table()>& read);

 private:
  struct Entry {
    std::filesystem::path path;
    FileVersion version;
    Table table;
  };

  Table find(const Entry& file);
  void keep(Entry entry);

  std::mutex _mutex;
  std::array<Entry, 4> _entries;  // a year, its neighbours, and one more
  std::size_t _oldest = 0;
};

}  // namespace velmora
