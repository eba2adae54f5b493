#include <app/drawing/Drawing.h>

#include <dlfcn.h>

#include <app/text/Errors.h>

namespace velmora::app {
namespace {

constexpr const char* inBuild = "velmora-drawing.so";  // on the program's search path
constexpr const char* installed = "$ORIGIN/" VELMORA_LIBRARIES_FROM_PROGRAMS "/velmora/velmora-drawing.so";

const Drawing& load() {
  void* library = dlopen(inBuild, RTLD_NOW);
  if (!library) library = dlopen(installed, RTLD_NOW);
  const void* const drawing = library ? dlsym(library, "velmoraDrawing") : nullptr;
  if (!drawing) throw Failure("the part that draws cannot be loaded: " + std::string(dlerror()));
  return *static_cast<const Drawing*>(drawing);
}

}  // namespace

const Drawing& drawing() {
  static const Drawing& loaded = load();
  return loaded;
}

}  // namespace velmora::app
