# The well-kept libraries under the adapters of velmora/platform; packages.txt names where they come from.
# An installed static library brings this file along.
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(ICU 72 REQUIRED COMPONENTS i18n uc)

# cctz ships neither a CMake package nor a pkg-config file.
find_path(CCTZ_INCLUDE_DIR cctz/time_zone.h REQUIRED)
find_library(CCTZ_LIBRARY cctz REQUIRED)
if(NOT TARGET cctz::cctz)
  add_library(cctz::cctz UNKNOWN IMPORTED)
  set_target_properties(cctz::cctz PROPERTIES
    IMPORTED_LOCATION ${CCTZ_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${CCTZ_INCLUDE_DIR})
endif()

# Resources: property lists and pictures.
pkg_check_modules(PLIST REQUIRED IMPORTED_TARGET libplist-2.0)
find_package(PNG REQUIRED)

# Drawing and text for the views.
pkg_check_modules(pangocairo REQUIRED IMPORTED_TARGET pangocairo>=1.50 pangoft2 cairo cairo-svg cairo-pdf)
