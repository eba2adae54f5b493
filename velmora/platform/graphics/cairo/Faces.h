#pragma once

#include <string_view>

#include <velmora/platform/graphics/cairo/PangoHandles.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Installed faces in which text is shaped, unhinted and with nothing rounded.
class Faces {
 public:
  /// All that the system's configuration has.
  static Faces ofSystem();
  /// Those of the family alone, without the configuration's rules: they are found in a fraction of the time,
  /// as Pango orders all the faces there are for each font. Empty if there is none.
  static Faces ofFamily(std::string_view family);

  bool isEmpty() const { return _isEmpty; }
  /// Of the texts to be shaped, as they are in the locale.
  PangoContext* context() const { return _context.get(); }

 private:
  Faces(PangoHandle<PangoFontMap> map, bool isEmpty);

  PangoHandle<PangoFontMap> _map;
  PangoHandle<PangoContext> _context;
  bool _isEmpty;
};

}  // namespace velmora
