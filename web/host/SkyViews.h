#pragma once

#include <memory>

#include <web/host/HostedView.h>

namespace velmora::web {

/// The views of a moment, and those that need nothing but their size. What they show of the Moon is the
/// almanac's.
std::unique_ptr<HostedView> makeCompass();
std::unique_ptr<HostedView> makeArc();
std::unique_ptr<HostedView> makeDisc();
std::unique_ptr<HostedView> makeTimeline();
std::unique_ptr<HostedView> makeChart();

}  // namespace velmora::web
