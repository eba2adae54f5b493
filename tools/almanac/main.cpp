// Writes the phase tables YEAR.plist and the eclipse catalogue events.txt of the years 2000 to 2040.

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "EclipseCatalogue.h"
#include "PhaseTables.h"

namespace {

void writeFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file << text << std::flush;
}

void writeData(const std::filesystem::path& folder) {
  using namespace almanac;
  const Ephemeris ephemeris;
  const auto phases = principalPhases(ephemeris);
  const auto eclipses = allEclipses(ephemeris);
  for (int year = firstYear; year <= lastYear; ++year) {
    writeFile(folder / (std::to_string(year) + ".plist"), phaseTable(year, phases));
  }
  writeFile(folder / "events.txt", eclipseCatalogue(eclipses));
  std::cout << phases.size() << " phases, " << eclipses.size() << " eclipses\n";
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 2) {
    std::cerr << "usage: almanac FOLDER\n";
    return 2;
  }
  try {
    writeData(argv[1]);
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::cerr << "almanac: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
