#pragma once

#include <memory>

#include <web/host/HostedView.h>

namespace velmora::web {

/// The views of a month or a year.
std::unique_ptr<HostedView> makeMonth();
std::unique_ptr<HostedView> makeYear();
std::unique_ptr<HostedView> makeRiseSet();
std::unique_ptr<HostedView> makePictures();

}  // namespace velmora::web
