#pragma once

#include <memory>

#include <web/host/HostedView.h>

namespace velmora::web {

/// Pictures for paper: of the selected day's night, and of its year. They take the colours of the page.
std::unique_ptr<HostedView> makeNight();
std::unique_ptr<HostedView> makeDarkness();
std::unique_ptr<HostedView> makePoster();

}  // namespace velmora::web
