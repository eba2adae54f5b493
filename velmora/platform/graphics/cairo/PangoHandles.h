#pragma once

#include <pango/pangocairo.h>

#include <memory>

namespace [[gnu::visibility("hidden")]] velmora {

struct PangoDeleter {
  void operator()(char* text) const { g_free(text); }
  void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
  void operator()(PangoAttrList* attributes) const { pango_attr_list_unref(attributes); }
  void operator()(PangoLayoutIter* iterator) const { pango_layout_iter_free(iterator); }
  void operator()(PangoFontMap* map) const { g_object_unref(map); }
  void operator()(PangoContext* context) const { g_object_unref(context); }
  void operator()(PangoLayout* layout) const { g_object_unref(layout); }
  void operator()(PangoFont* font) const { g_object_unref(font); }
};

template <class Object>
using PangoHandle = std::unique_ptr<Object, PangoDeleter>;

}  // namespace velmora
