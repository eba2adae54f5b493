#include <app/drawing/Drawing.h>

#include <dlfcn.h>

#include <app/Errors.h>

namespace velmora::app {
namespace {

const Drawing& load() {
  void* const library = dlopen("velmora-drawing.so", RTLD_NOW);
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
