#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>

#include <velmora/platform/graphics/TextEngine.h>
#include <velmora/platform/graphics/cairo/Faces.h>
#include <velmora/platform/graphics/cairo/ShapedLine.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Shapes text with Pango in installed faces. Hinting is off and nothing is rounded, so that a line has the
/// same proportions at every scale and on every machine. The script of a text decides the face: Inter, else
/// Noto's face for the script. A text without letters takes its direction from the process's locale.
class PangoTextEngine final : public TextEngine {
 public:
  /// The one that draws; made on the first call, to be used from one thread.
  static PangoTextEngine& shared();

  TextMetrics measure(const AttributedText& text) override { return line(text)->metrics; }
  std::vector<Rect> glyphBoxes(const AttributedText& text) override;
  std::set<std::string> uncoveredCharacters(const AttributedText& text) override {
    return line(text)->uncovered;
  }

  std::vector<std::size_t> lineBreaks(const std::string& text) override;

  /// The shaped line, kept for the next time the same text is asked for.
  std::shared_ptr<const ShapedLine> line(const AttributedText& text);

 private:
  struct Extent {
    double ascent, descent;
  };

  PangoTextEngine();

  void followLocale();
  void forget();
  ShapedLine shape(const AttributedText& text);
  /// The text, of which `valid` is all that is valid UTF-8, in the faces.
  ShapedLine shape(const AttributedText& text, const char* valid, const Faces& faces);
  /// Those in which the font is found.
  const Faces& facesOf(const Font& font) const;
  Extent extent(const Font& font);

  Faces _systemFace, _allFaces;
  std::string _locale;
  std::string _families;
  std::unordered_map<std::string, std::shared_ptr<const ShapedLine>> _lines;
  std::uint64_t _lastSerial = 0;
  std::unordered_map<std::string, Extent> _extents;
};

}  // namespace velmora
