#include <cstring>
#include <filesystem>
#include <iostream>
#include <map>

#include "Albedo.h"
#include "Craters.h"
#include "Globe.h"
#include "Icons.h"
#include "Lunation.h"
#include "Maria.h"
#include "PngFile.h"
#include "Relief.h"

namespace moonpictures {
namespace {

using Pictures = std::map<std::string, Picture>;  // by path

Globe moon() {
  Catalogue catalogue = readCatalogue(MOONPICTURES_CATALOGUE_DIR);
  const SurfaceMap cover = mareCover(catalogue.maria);
  const std::vector<Crater> small = smallCraters(cover);
  catalogue.craters.insert(catalogue.craters.end(), small.begin(), small.end());
  return Globe(reliefOf(catalogue, cover), albedoOf(catalogue, cover));
}

/// For a Moon of unknown phase: the whole disc evenly in the Earth's light, brighter than in nature.
constexpr Illumination unknownPhase{.sun = {0, 0, 1}, .sunStrength = 0, .earthStrength = 0.16};

Pictures allPictures(const std::string& root) {
  const std::string images = root + "/velmora/resources/images/";
  const std::string icons = root + "/app/resources/";
  const Globe globe = moon();
  Pictures pictures;
  for (int picture = 0; picture < pictureCount; ++picture)
    pictures[images + "IMG_" + std::to_string(picture) + ".png"] =
        globe.litBy(illuminationAt(elongationOf(picture)));
  pictures[images + "moon_0.png"] = globe.litBy(unknownPhase);
  pictures[icons + "moonrise.png"] = iconOf(Body::moon, Crossing::rise);
  pictures[icons + "moonset.png"] = iconOf(Body::moon, Crossing::set);
  pictures[icons + "sunrise.png"] = iconOf(Body::sun, Crossing::rise);
  pictures[icons + "sunset.png"] = iconOf(Body::sun, Crossing::set);
  return pictures;
}

void write(const Pictures& pictures) {
  for (const auto& [path, picture] : pictures) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    writePng(picture, path);
  }
}

/// Names the files that do not show what they should, and answers whether there are none.
bool areAsWritten(const Pictures& pictures) {
  bool same = true;
  for (const auto& [path, picture] : pictures) {
    if (readPng(path) == picture) continue;
    std::cerr << path << " differs\n";
    same = false;
  }
  return same;
}

}  // namespace
}  // namespace moonpictures

int main(int argc, char** argv) {
  using namespace moonpictures;
  const bool isCheck = argc == 3 && std::strcmp(argv[1], "--check") == 0;
  if (argc != 2 && !isCheck) {
    std::cerr << "usage: moonpictures [--check] PROJECT_ROOT\n";
    return 2;
  }
  try {
    const Pictures pictures = allPictures(argv[argc - 1]);
    if (isCheck) return areAsWritten(pictures) ? 0 : 1;
    write(pictures);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
