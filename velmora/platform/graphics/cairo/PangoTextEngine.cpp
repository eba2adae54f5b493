#include <velmora/platform/graphics/cairo/PangoTextEngine.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include <velmora/platform/graphics/cairo/LineReader.h>
#include <velmora/platform/time/Locale.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// The families that views ask for and that the system's own face stands in for.
constexpr std::array<std::string_view, 3> systemFamilies = {"System", "AvenirNext", "Helvetica"};

constexpr std::string_view systemFace = "Inter";
constexpr std::string_view scriptFaces = ",Noto Sans,Noto Sans Hebrew,Noto Sans Arabic,Noto Sans Devanagari";

/// Han characters look different in each language that uses them.
std::string hanFace(const Locale& locale) {
  const std::string language = locale.languageCode();
  if (language == "ja") return ",Noto Sans CJK JP";
  if (language == "ko") return ",Noto Sans CJK KR";
  return locale.writesTraditionalChinese() ? ",Noto Sans CJK TC" : ",Noto Sans CJK SC";
}

/// The size in Pango's units; what is no size is 0.
int sizeInUnits(const Font& font) {
  constexpr double largest = 10000;
  return font.size > 0 ? static_cast<int>(std::lround(std::min(font.size, largest) * PANGO_SCALE)) : 0;
}

bool isSystemFont(const Font& font) {
  return std::find(systemFamilies.begin(), systemFamilies.end(), font.family) != systemFamilies.end();
}

PangoHandle<PangoFontDescription> description(const Font& font, const std::string& fallbackFamilies) {
  const std::string families =
      (isSystemFont(font) ? std::string(systemFace) : font.family) + fallbackFamilies;
  PangoHandle<PangoFontDescription> description(pango_font_description_new());
  pango_font_description_set_family(description.get(), families.c_str());
  pango_font_description_set_weight(description.get(), static_cast<PangoWeight>(font.weight));
  pango_font_description_set_absolute_size(description.get(), sizeInUnits(font));
  return description;
}

/// Whether the system's face may have all of it: Latin, Greek and Cyrillic, with signs below the pictographs,
/// for which Pango prefers faces of theirs.
bool isWestern(const char* text) {
  constexpr gunichar endOfCyrillic = 0x530, extendedLatin = 0x1E00, endOfOperators = 0x2300;
  for (const char* c = text; *c != '\0'; c = g_utf8_next_char(c)) {
    const gunichar character = g_utf8_get_char(c);
    if (character >= endOfOperators || (character >= endOfCyrillic && character < extendedLatin))
      return false;
  }
  return true;
}

std::string key(const Font& font) {
  return font.family + '\n' + std::to_string(sizeInUnits(font)) + '\n' +
         std::to_string(static_cast<int>(font.weight));
}

std::string key(const AttributedText& text) {
  std::string key = text.text();
  for (const AttributedText::Run& run : text.runs()) {
    key += '\0' + std::to_string(run.end) + '\n' + velmora::key(run.attributes.font);
  }
  return key;
}

}  // namespace

TextEngine& TextEngine::drawingEngine() { return PangoTextEngine::shared(); }

PangoTextEngine& PangoTextEngine::shared() {
  static PangoTextEngine engine;
  return engine;
}

PangoTextEngine::PangoTextEngine() : _systemFace(Faces::ofFamily(systemFace)), _allFaces(Faces::ofSystem()) {}

void PangoTextEngine::followLocale() {
  const Locale locale = Locale::current();
  if (locale.identifier() == _locale) return;
  _locale = locale.identifier();
  _families = std::string(scriptFaces) + hanFace(locale);
  forget();
  for (PangoContext* context : {_systemFace.context(), _allFaces.context()}) {
    pango_context_set_language(context, pango_language_from_string(_locale.c_str()));
    pango_context_set_base_dir(context,
                               locale.isRightToLeft() ? PANGO_DIRECTION_WEAK_RTL : PANGO_DIRECTION_WEAK_LTR);
  }
}

void PangoTextEngine::forget() {
  _lines.clear();
  _extents.clear();
}

std::shared_ptr<const ShapedLine> PangoTextEngine::line(const AttributedText& text) {
  constexpr std::size_t mostLines = 2000;
  followLocale();
  if (_lines.size() >= mostLines) forget();
  std::shared_ptr<const ShapedLine>& known = _lines[key(text)];
  if (!known) known = std::make_shared<const ShapedLine>(shape(text));
  return known;
}

std::vector<Rect> PangoTextEngine::glyphBoxes(const AttributedText& text) {
  const std::shared_ptr<const ShapedLine> shaped = line(text);
  std::vector<Rect> boxes;
  for (const ShapedLine::Glyph& glyph : shaped->glyphs) {
    boxes.push_back({glyph.left, 0, glyph.advance, shaped->metrics.ascent + shaped->metrics.descent});
  }
  return boxes;
}

std::vector<std::size_t> PangoTextEngine::lineBreaks(const std::string& text) {
  const auto size = static_cast<gssize>(text.size());
  if (!g_utf8_validate(text.data(), size, nullptr)) return TextEngine::lineBreaks(text);
  followLocale();
  std::vector<PangoLogAttr> characters(static_cast<std::size_t>(g_utf8_strlen(text.data(), size)) + 1);
  pango_get_log_attrs(text.data(), static_cast<int>(size), -1, pango_language_from_string(_locale.c_str()),
                      characters.data(), static_cast<int>(characters.size()));
  std::vector<std::size_t> breaks;
  std::size_t byte = 0;
  for (const PangoLogAttr& character : characters) {
    if (byte > 0 && byte < text.size() && character.is_line_break) breaks.push_back(byte);
    if (byte < text.size()) byte += static_cast<std::size_t>(g_utf8_skip[static_cast<guchar>(text[byte])]);
  }
  breaks.push_back(text.size());
  return breaks;
}

ShapedLine PangoTextEngine::shape(const AttributedText& text) {
  const PangoHandle<char> valid(
      g_utf8_make_valid(text.text().data(), static_cast<gssize>(text.text().size())));
  const auto& runs = text.runs();
  const bool isInSystemFace = std::all_of(runs.begin(), runs.end(), [this](const AttributedText::Run& run) {
    return &facesOf(run.attributes.font) == &_systemFace;
  });
  if (isInSystemFace && isWestern(valid.get())) {
    ShapedLine line = shape(text, valid.get(), _systemFace);
    if (line.uncovered.empty()) return line;
  }
  return shape(text, valid.get(), _allFaces);
}

ShapedLine PangoTextEngine::shape(const AttributedText& text, const char* valid, const Faces& faces) {
  const PangoHandle<PangoLayout> layout(pango_layout_new(faces.context()));
  pango_layout_set_single_paragraph_mode(layout.get(), true);
  pango_layout_set_text(layout.get(), valid, -1);

  Extent tallest = extent(text.paragraph().font);
  const PangoHandle<PangoAttrList> attributes(pango_attr_list_new());
  for (const AttributedText::Run& run : text.runs()) {
    const Extent runExtent = extent(run.attributes.font);
    tallest = {std::max(tallest.ascent, runExtent.ascent), std::max(tallest.descent, runExtent.descent)};
    PangoAttribute* font = pango_attr_font_desc_new(description(run.attributes.font, _families).get());
    font->start_index = static_cast<guint>(run.begin);
    font->end_index = static_cast<guint>(run.end);
    pango_attr_list_insert(attributes.get(), font);
  }
  pango_layout_set_attributes(layout.get(), attributes.get());

  ShapedLine line = readLine(layout.get());
  line.serial = ++_lastSerial;
  line.metrics.ascent = tallest.ascent;
  line.metrics.descent = tallest.descent;
  return line;
}

const Faces& PangoTextEngine::facesOf(const Font& font) const {
  return isSystemFont(font) && !_systemFace.isEmpty() ? _systemFace : _allFaces;
}

PangoTextEngine::Extent PangoTextEngine::extent(const Font& font) {
  const auto [found, isNew] = _extents.try_emplace(key(font));
  if (isNew) {
    const PangoHandle<PangoFont> loaded(
        pango_context_load_font(facesOf(font).context(), description(font, _families).get()));
    // Pango's own metrics would cost the layout of a sample text.
    cairo_font_extents_t extents = {};
    cairo_scaled_font_t* const face = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(loaded.get()));
    if (face != nullptr) cairo_scaled_font_extents(face, &extents);
    found->second = {extents.ascent, extents.descent};
  }
  return found->second;
}

}  // namespace velmora
