#include "Ephemeris.h"

#include <swephexp.h>

#include <array>
#include <stdexcept>
#include <string>

namespace almanac {
namespace {

constexpr int32 ephemerisFiles = SEFLG_SWIEPH;
constexpr int32 anyKind = 0;
constexpr int32 forward = 0;

using Message = std::array<char, AS_MAXCH>;
using Instants = std::array<double, 10>;  // of an eclipse, in UT; the first is the greatest

// Three coordinates, then their rates a day.
using Position = std::array<double, 6>;

Position position(int32 body, int32 coordinates, JulianDateTT date) {
  Position position{};
  Message message{};
  const int32 used = swe_calc(date, body, ephemerisFiles | coordinates, position.data(), message.data());
  // Without its files the library falls back on a rougher model and says so in the flags only.
  if (used < 0 || (used & ephemerisFiles) == 0) throw std::runtime_error(message.data());
  return position;
}

Vector rectangularPosition(int32 body, JulianDateTT date) {
  const Position at = position(body, SEFLG_EQUATORIAL | SEFLG_XYZ, date);
  return {at[0], at[1], at[2]};
}

// The library searches eclipses in a Universal Time of its own, which its own Delta T undoes.
JulianDateTT ttFromUT(double date) {
  Message message{};
  return date + swe_deltat_ex(date, ephemerisFiles, message.data());
}

double utFromTT(JulianDateTT date) {
  Message message{};
  return date - swe_deltat_ex(date, ephemerisFiles, message.data());
}

EclipseKind lunarKind(int32 flags) {
  if (flags & SE_ECL_TOTAL) return EclipseKind::totalLunar;
  if (flags & SE_ECL_PARTIAL) return EclipseKind::partialLunar;
  return EclipseKind::penumbralLunar;
}

EclipseKind solarKind(int32 flags) {
  if (flags & SE_ECL_ANNULAR_TOTAL) return EclipseKind::hybridSolar;
  if (flags & SE_ECL_TOTAL) return EclipseKind::totalSolar;
  if (flags & SE_ECL_ANNULAR) return EclipseKind::annularSolar;
  return EclipseKind::partialSolar;
}

}  // namespace

Ephemeris::Ephemeris() { swe_set_ephe_path(ALMANAC_EPHEMERIS_DIR); }

Ephemeris::~Ephemeris() { swe_close(); }

Elongation Ephemeris::elongation(JulianDateTT date) const {
  const Position moon = position(SE_MOON, SEFLG_SPEED, date);
  const Position sun = position(SE_SUN, SEFLG_SPEED, date);
  return {swe_degnorm(moon[0] - sun[0]), moon[3] - sun[3]};
}

Vector Ephemeris::sun(JulianDateTT date) const { return rectangularPosition(SE_SUN, date); }

Vector Ephemeris::moon(JulianDateTT date) const { return rectangularPosition(SE_MOON, date); }

Eclipse Ephemeris::nextLunarEclipse(JulianDateTT date) const {
  Instants instants{};
  Message message{};
  const int32 flags =
      swe_lun_eclipse_when(utFromTT(date), ephemerisFiles, anyKind, instants.data(), forward, message.data());
  if (flags < 0) throw std::runtime_error(message.data());
  return {lunarKind(flags), ttFromUT(instants[0])};
}

Eclipse Ephemeris::nextSolarEclipse(JulianDateTT date) const {
  Instants instants{};
  Message message{};
  const int32 flags = swe_sol_eclipse_when_glob(utFromTT(date), ephemerisFiles, anyKind, instants.data(),
                                                forward, message.data());
  if (flags < 0) throw std::runtime_error(message.data());
  return {solarKind(flags), ttFromUT(instants[0])};
}

}  // namespace almanac
