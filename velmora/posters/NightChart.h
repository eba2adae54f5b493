#pragma once

#include <chrono>
#include <vector>

#include <velmora/posters/NightLayout.h>
#include <velmora/posters/NightSky.h>
#include <velmora/posters/PosterTexts.h>
#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The sky and the ways of Sun and Moon through it.
class NightChart {
 public:
  NightChart(Sheet& sheet, const NightLayout& layout, const NightSky& night, const PosterTexts& texts)
      : _sheet(sheet), _layout(layout), _night(night), _texts(texts) {}

  void draw(const TimeZone& zone, std::chrono::year_month_day date) const;

 private:
  double x(Instant at) const;
  Color skyBetween(const SkySample& from, const SkySample& to) const;
  void drawSky() const;
  void drawGrid(const TimeZone& zone, std::chrono::year_month_day date) const;
  void drawGround() const;
  void drawWay(double SkySample::*height, const Color& color) const;
  void drawOnPlate(const std::string& text, Rect room, const LabelStyle& style) const;
  void drawRisings() const;
  void drawCulminations() const;

  Sheet& _sheet;
  const NightLayout& _layout;
  const NightSky& _night;
  const PosterTexts& _texts;
};

}  // namespace velmora
