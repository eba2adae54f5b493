#pragma once

#include <map>
#include <string>

#include <velmora/platform/graphics/TextEngine.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Lines of text that the page measures and draws with the browser's own faces. Each is told to the page once
/// and then goes by its number.
class Canvas2dTextEngine final : public TextEngine {
 public:
  struct Line {
    double number;
    TextMetrics metrics;
  };

  static Canvas2dTextEngine& shared();

  const Line& line(const AttributedText& text);
  /// Forgets all lines if there are many. Drawings of before cannot be replayed any more.
  void makeRoom();

  TextMetrics measure(const AttributedText& text) override { return line(text).metrics; }
  std::vector<Rect> glyphBoxes(const AttributedText& text) override;
  /// None: a browser has a face for every character, or a box.
  std::set<std::string> uncoveredCharacters(const AttributedText&) override { return {}; }

 private:
  void followLocale();
  void forget();

  std::map<std::string, Line, std::less<>> _lines;
  double _lastNumber = 0;
  std::string _locale;
};

}  // namespace velmora
