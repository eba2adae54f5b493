#pragma once

#include <memory>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>

namespace velmora::app {

/// Of the sheet, lying.
Size nightSize(const Query& query);
/// The night that begins in the evening of the day. Throws BadInput where it is not covered.
std::shared_ptr<View> makeNight(const Query& query, Size size);

}  // namespace velmora::app
