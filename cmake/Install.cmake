# `cmake --install` gives a tree that may be moved as a whole: whatever names another part of it does so from
# where it lies itself.
include(CMakePackageConfigHelpers)
set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/Velmora)

if(VELMORA_BUILD_APP)
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR}
    OUTPUT_VARIABLE libraries_from_programs)
  set_target_properties(velmora_app PROPERTIES INSTALL_RPATH $ORIGIN/${libraries_from_programs})
  install(TARGETS velmora_app)
  if(BUILD_SHARED_LIBS)
    target_compile_definitions(velmora_app_lib PRIVATE
      VELMORA_LIBRARIES_FROM_PROGRAMS="${libraries_from_programs}")
    set_target_properties(velmora_drawing PROPERTIES INSTALL_RPATH $ORIGIN/..)
    install(TARGETS velmora_drawing DESTINATION ${CMAKE_INSTALL_LIBDIR}/velmora)
  endif()
  install(DIRECTORY app/resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/velmora/app)
  install(FILES docs/velmora.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES app/completions/velmora DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES app/completions/_velmora DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
  install(FILES app/completions/velmora.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()
install(TARGETS velmora_almanac velmora_core velmora_c velmora_views EXPORT VelmoraTargets FILE_SET HEADERS)
install(DIRECTORY velmora/resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/velmora/resources)

# find_package(Velmora)
install(EXPORT VelmoraTargets NAMESPACE Velmora:: DESTINATION ${package_directory})
configure_package_config_file(cmake/VelmoraConfig.cmake.in ${PROJECT_BINARY_DIR}/VelmoraConfig.cmake
  INSTALL_DESTINATION ${package_directory} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VelmoraConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VelmoraConfig.cmake ${PROJECT_BINARY_DIR}/VelmoraConfigVersion.cmake
  DESTINATION ${package_directory})

# pkg-config. Only a static library asks its user for what stands under the adapters.
if(NOT BUILD_SHARED_LIBS)
  install(FILES cmake/Dependencies.cmake DESTINATION ${package_directory} RENAME VelmoraDependencies.cmake)
  set(core_requires "icu-i18n icu-uc libplist-2.0 libpng")
  set(core_libraries "-lcctz -pthread -ldl")
  set(views_requires "pangocairo pangoft2 cairo")
endif()
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
  OUTPUT_VARIABLE prefix_from_pkgconfig)
foreach(name almanac core views)
  configure_file(cmake/velmora-${name}.pc.in velmora-${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/velmora-${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
configure_file(cmake/velmora.pc.in velmora.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/velmora.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
