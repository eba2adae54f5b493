// The layout of every struct is a promise to programs that are already compiled.

#include <cstddef>

#include <gtest/gtest.h>

#include <velmora/c/velmora.h>

namespace velmora::testing {
namespace {

/// An offset that differs from the one promised fails with the field's name.
#define EXPECT_AT(type, field, offset) EXPECT_EQ(offsetof(type, field), offset##U)

TEST(CInterfaceLayout, Place) {
  EXPECT_EQ(sizeof(velmora_place), 24U);
  EXPECT_AT(velmora_place, latitude, 0);
  EXPECT_AT(velmora_place, longitude, 8);
  EXPECT_AT(velmora_place, height, 16);
}

TEST(CInterfaceLayout, Date) {
  EXPECT_EQ(sizeof(velmora_date), 12U);
  EXPECT_AT(velmora_date, year, 0);
  EXPECT_AT(velmora_date, month, 4);
  EXPECT_AT(velmora_date, day, 8);
}

TEST(CInterfaceLayout, City) {
  EXPECT_EQ(sizeof(velmora_city), 352U);
  EXPECT_AT(velmora_city, latitude, 0);
  EXPECT_AT(velmora_city, longitude, 8);
  EXPECT_AT(velmora_city, people, 16);
  EXPECT_AT(velmora_city, name, 24);
  EXPECT_AT(velmora_city, region, 152);
  EXPECT_AT(velmora_city, country, 280);
  EXPECT_AT(velmora_city, zone, 288);
}

TEST(CInterfaceLayout, Event) {
  EXPECT_EQ(sizeof(velmora_event), 32U);
  EXPECT_AT(velmora_event, at, 0);
  EXPECT_AT(velmora_event, body, 8);
  EXPECT_AT(velmora_event, kind, 12);
  EXPECT_AT(velmora_event, azimuth, 16);
  EXPECT_AT(velmora_event, altitude, 24);
}

TEST(CInterfaceLayout, Day) {
  EXPECT_EQ(sizeof(velmora_day), 56U);
  EXPECT_AT(velmora_day, start, 0);
  EXPECT_AT(velmora_day, end, 8);
  EXPECT_AT(velmora_day, sun, 16);
  EXPECT_AT(velmora_day, moon, 20);
  EXPECT_AT(velmora_day, daylight, 24);
  EXPECT_AT(velmora_day, darkness, 32);
  EXPECT_AT(velmora_day, first_event, 40);
  EXPECT_AT(velmora_day, event_count, 48);
}

TEST(CInterfaceLayout, Convention) {
  EXPECT_EQ(sizeof(velmora_convention), 24U);
  EXPECT_AT(velmora_convention, limb, 0);
  EXPECT_AT(velmora_convention, reserved, 4);
  EXPECT_AT(velmora_convention, horizon_refraction, 8);
  EXPECT_AT(velmora_convention, sun_semidiameter, 16);
}

TEST(CInterfaceLayout, PlaceDay) {
  EXPECT_EQ(sizeof(velmora_place_day), 56U);
  EXPECT_AT(velmora_place_day, sun_rise, 0);
  EXPECT_AT(velmora_place_day, sun_set, 8);
  EXPECT_AT(velmora_place_day, moon_rise, 16);
  EXPECT_AT(velmora_place_day, moon_set, 24);
  EXPECT_AT(velmora_place_day, daylight, 32);
  EXPECT_AT(velmora_place_day, darkness, 40);
  EXPECT_AT(velmora_place_day, sun, 48);
  EXPECT_AT(velmora_place_day, moon, 52);
}

TEST(CInterfaceLayout, Crossing) {
  EXPECT_EQ(sizeof(velmora_crossing), 24U);
  EXPECT_AT(velmora_crossing, at, 0);
  EXPECT_AT(velmora_crossing, azimuth, 8);
  EXPECT_AT(velmora_crossing, is_rising, 16);
  EXPECT_AT(velmora_crossing, reserved, 20);
}

TEST(CInterfaceLayout, Position) {
  EXPECT_EQ(sizeof(velmora_position), 80U);
  EXPECT_AT(velmora_position, right_ascension, 0);
  EXPECT_AT(velmora_position, declination, 8);
  EXPECT_AT(velmora_position, distance, 16);
  EXPECT_AT(velmora_position, topocentric_right_ascension, 24);
  EXPECT_AT(velmora_position, topocentric_declination, 32);
  EXPECT_AT(velmora_position, topocentric_distance, 40);
  EXPECT_AT(velmora_position, azimuth, 48);
  EXPECT_AT(velmora_position, altitude, 56);
  EXPECT_AT(velmora_position, apparent_altitude, 64);
  EXPECT_AT(velmora_position, semidiameter, 72);
}

TEST(CInterfaceLayout, Illumination) {
  EXPECT_EQ(sizeof(velmora_illumination), 56U);
  EXPECT_AT(velmora_illumination, fraction, 0);
  EXPECT_AT(velmora_illumination, elongation, 8);
  EXPECT_AT(velmora_illumination, phase_angle, 16);
  EXPECT_AT(velmora_illumination, bright_limb_angle, 24);
  EXPECT_AT(velmora_illumination, parallactic_angle, 32);
  EXPECT_AT(velmora_illumination, tilt, 40);
  EXPECT_AT(velmora_illumination, is_waxing, 48);
  EXPECT_AT(velmora_illumination, reserved, 52);
}

TEST(CInterfaceLayout, Moment) {
  EXPECT_EQ(sizeof(velmora_moment), 16U);
  EXPECT_AT(velmora_moment, at, 0);
  EXPECT_AT(velmora_moment, kind, 8);
  EXPECT_AT(velmora_moment, reserved, 12);
}

TEST(CInterfaceLayout, Apsis) {
  EXPECT_EQ(sizeof(velmora_apsis), 24U);
  EXPECT_AT(velmora_apsis, at, 0);
  EXPECT_AT(velmora_apsis, distance, 8);
  EXPECT_AT(velmora_apsis, is_perigee, 16);
  EXPECT_AT(velmora_apsis, reserved, 20);
}

TEST(CInterfaceLayout, Eclipse) {
  EXPECT_EQ(sizeof(velmora_eclipse), 40U);
  EXPECT_AT(velmora_eclipse, maximum, 0);
  EXPECT_AT(velmora_eclipse, magnitude, 8);
  EXPECT_AT(velmora_eclipse, gamma, 16);
  EXPECT_AT(velmora_eclipse, body, 24);
  EXPECT_AT(velmora_eclipse, kind, 28);
  EXPECT_AT(velmora_eclipse, saros, 32);
  EXPECT_AT(velmora_eclipse, reserved, 36);
}

TEST(CInterfaceLayout, EclipseMoment) {
  EXPECT_EQ(sizeof(velmora_eclipse_moment), 32U);
  EXPECT_AT(velmora_eclipse_moment, at, 0);
  EXPECT_AT(velmora_eclipse_moment, altitude, 8);
  EXPECT_AT(velmora_eclipse_moment, azimuth, 16);
  EXPECT_AT(velmora_eclipse_moment, is_up, 24);
  EXPECT_AT(velmora_eclipse_moment, contact, 28);
}

TEST(CInterfaceLayout, LocalEclipse) {
  EXPECT_EQ(sizeof(velmora_local_eclipse), 312U);
  EXPECT_AT(velmora_local_eclipse, body, 0);
  EXPECT_AT(velmora_local_eclipse, kind, 4);
  EXPECT_AT(velmora_local_eclipse, magnitude, 8);
  EXPECT_AT(velmora_local_eclipse, obscuration, 16);
  EXPECT_AT(velmora_local_eclipse, maximum, 24);
  EXPECT_AT(velmora_local_eclipse, contacts, 56);
  EXPECT_AT(velmora_local_eclipse, contact_count, 248);
  EXPECT_AT(velmora_local_eclipse, is_visible, 252);
  EXPECT_AT(velmora_local_eclipse, visible_from, 256);
  EXPECT_AT(velmora_local_eclipse, visible_to, 264);
  EXPECT_AT(velmora_local_eclipse, best, 272);
  EXPECT_AT(velmora_local_eclipse, best_magnitude, 304);
}

TEST(CInterfaceLayout, CalendarDay) {
  EXPECT_EQ(sizeof(velmora_calendar_day), 24U);
  EXPECT_AT(velmora_calendar_day, day, 0);
  EXPECT_AT(velmora_calendar_day, phase, 4);
  EXPECT_AT(velmora_calendar_day, moon_age, 8);
  EXPECT_AT(velmora_calendar_day, image, 12);
  EXPECT_AT(velmora_calendar_day, lit, 16);
}

TEST(CInterfaceLayout, RiseSetRecord) {
  EXPECT_EQ(sizeof(velmora_rise_set_record), 120U);
  EXPECT_AT(velmora_rise_set_record, moon_rise, 0);
  EXPECT_AT(velmora_rise_set_record, moon_set, 4);
  EXPECT_AT(velmora_rise_set_record, sun_rise, 8);
  EXPECT_AT(velmora_rise_set_record, sun_set, 12);
  EXPECT_AT(velmora_rise_set_record, day_length, 16);
  EXPECT_AT(velmora_rise_set_record, reserved, 20);
  EXPECT_AT(velmora_rise_set_record, moon_rise_text, 24);
  EXPECT_AT(velmora_rise_set_record, moon_set_text, 40);
  EXPECT_AT(velmora_rise_set_record, sun_rise_text, 56);
  EXPECT_AT(velmora_rise_set_record, sun_set_text, 72);
  EXPECT_AT(velmora_rise_set_record, twilight_begin_text, 88);
  EXPECT_AT(velmora_rise_set_record, twilight_end_text, 104);
}

}  // namespace
}  // namespace velmora::testing
