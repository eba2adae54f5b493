#include <velmora/platform/graphics/TextEngine.h>

#include <utility>

namespace velmora {
namespace {

std::shared_ptr<TextEngine>& replacement() {
  static std::shared_ptr<TextEngine> engine;
  return engine;
}

}  // namespace

TextEngine& TextEngine::current() { return replacement() ? *replacement() : drawingEngine(); }

std::shared_ptr<TextEngine> TextEngine::setCurrent(std::shared_ptr<TextEngine> engine) {
  return std::exchange(replacement(), std::move(engine));
}

}  // namespace velmora
