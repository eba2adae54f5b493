#include <velmora/platform/graphics/cairo/Faces.h>

#include <fontconfig/fontconfig.h>
#include <pango/pangofc-fontmap.h>

#include <memory>
#include <string>
#include <utility>

#include <velmora/platform/graphics/cairo/CairoHandles.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

struct FontconfigDeleter {
  void operator()(FcConfig* config) const { FcConfigDestroy(config); }
  void operator()(FcStrList* list) const { FcStrListDone(list); }
};
using Configuration = std::unique_ptr<FcConfig, FontconfigDeleter>;

std::string element(const char* name, std::string_view text) {
  const PangoHandle<char> escaped(g_markup_escape_text(text.data(), static_cast<gssize>(text.size())));
  return std::string("<") + name + ">" + escaped.get() + "</" + name + ">";
}

std::string elements(const char* name, FcStrList* paths) {
  const std::unique_ptr<FcStrList, FontconfigDeleter> list(paths);
  std::string all;
  while (const FcChar8* path = FcStrListNext(paths))
    all += element(name, reinterpret_cast<const char*>(path));
  return all;
}

/// The folders of the system's configuration, with their caches, and of the faces in them the family's.
Configuration configurationOfFamily(std::string_view family) {
  const Configuration system(FcConfigReference(nullptr));
  const std::string text = "<fontconfig>" + elements("dir", FcConfigGetFontDirs(system.get())) +
                           elements("cachedir", FcConfigGetCacheDirs(system.get())) +
                           "<selectfont><rejectfont><pattern/></rejectfont><acceptfont><pattern>"
                           "<patelt name=\"family\">" +
                           element("string", family) +
                           "</patelt></pattern></acceptfont></selectfont></fontconfig>";
  Configuration configuration(FcConfigCreate());
  FcConfigParseAndLoadFromMemory(configuration.get(), reinterpret_cast<const FcChar8*>(text.c_str()), FcTrue);
  FcConfigBuildFonts(configuration.get());
  return configuration;
}

PangoHandle<PangoFontMap> newMap() {
  return PangoHandle<PangoFontMap>(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
}

CairoFontOptions unhintedOptions() {
  CairoFontOptions options(cairo_font_options_create());
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  return options;
}

}  // namespace

Faces::Faces(PangoHandle<PangoFontMap> map, bool isEmpty)
    : _map(std::move(map)), _context(pango_font_map_create_context(_map.get())), _isEmpty(isEmpty) {
  pango_cairo_context_set_font_options(_context.get(), unhintedOptions().get());
  pango_context_set_round_glyph_positions(_context.get(), false);
}

Faces Faces::ofSystem() { return {newMap(), false}; }

Faces Faces::ofFamily(std::string_view family) {
  const Configuration configuration = configurationOfFamily(family);
  PangoHandle<PangoFontMap> map = newMap();
  pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map.get()), configuration.get());
  return {std::move(map), FcConfigGetFonts(configuration.get(), FcSetSystem)->nfont == 0};
}

}  // namespace velmora
