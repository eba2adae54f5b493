#include <velmora/platform/graphics/TextEngine.h>

#include <utility>

namespace velmora {
namespace {

std::shared_ptr<TextEngine>& replacement() {
  static std::shared_ptr<TextEngine> engine;
  return engine;
}

}  // namespace

std::vector<std::size_t> TextEngine::lineBreaks(const std::string& text) {
  std::vector<std::size_t> breaks;
  for (std::size_t i = 1; i < text.size(); ++i)
    if (text[i - 1] == ' ' && text[i] != ' ') breaks.push_back(i);
  breaks.push_back(text.size());
  return breaks;
}

TextEngine& TextEngine::current() { return replacement() ? *replacement() : drawingEngine(); }

std::shared_ptr<TextEngine> TextEngine::setCurrent(std::shared_ptr<TextEngine> engine) {
  return std::exchange(replacement(), std::move(engine));
}

}  // namespace velmora
