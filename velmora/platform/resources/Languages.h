#pragma once

#include <string>
#include <vector>

#include <velmora/platform/time/Locale.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The languages in which a reader with that locale wants a text, most wanted first, as the names of the
/// language folders: "pt-BR", "pt", "en" for pt_BR. Chinese goes by its script: "zh-Hant" for Taiwan, Hong
/// Kong and Macao, else "zh-Hans", unless the locale names a script. English comes last for everyone.
std::vector<std::string> preferredLanguages(const Locale& locale);

}  // namespace velmora
