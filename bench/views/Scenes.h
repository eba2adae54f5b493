#pragma once

#include <memory>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/ui/View.h>

// What the benchmarks draw: each fills the screen of a phone, and takes the service as it finds it.
namespace velmora::bench {

constexpr Size phone = {390, 844};
constexpr double phoneScale = 3;

/// June 2024 at Greenwich, which takes six rows.
std::shared_ptr<View> month();
/// The same month with the days of a second calendar.
std::shared_ptr<View> monthOfTwoCalendars();
/// The same month as pictures of the Moon.
std::shared_ptr<View> pictureMonth();
/// The full moons of 2026 at Greenwich.
std::shared_ptr<View> year();
/// The rise and set times of July 2024 at San Francisco, scrolled to the middle of the month.
std::shared_ptr<View> riseSetMonth();
/// A view without content.
std::shared_ptr<View> nothing();

/// A picture as large as the screen, drawn and thrown away.
void draw(View& view, PictureFormat format = PictureFormat::png, double scale = phoneScale);

}  // namespace velmora::bench
