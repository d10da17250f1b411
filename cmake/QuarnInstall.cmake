# SPDX-License-Identifier: Apache-2.0
# What a consumer sees: the two libraries, the public headers, the CMake package and the pkg-config files.

include(CMakePackageConfigHelpers)

install(TARGETS QuarnBase QuarnGeo EXPORT QuarnGeoTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})

# Private headers stand in the folders named detail and stay here.
install(
  DIRECTORY ${PROJECT_SOURCE_DIR}/src/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quarn
  FILES_MATCHING
  PATTERN "*.h"
  PATTERN "detail" EXCLUDE)

set(QUARN_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/QuarnGeo)
install(EXPORT QuarnGeoTargets NAMESPACE QuarnGeo:: DESTINATION ${QUARN_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QuarnGeoConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/QuarnGeoConfig.cmake INSTALL_DESTINATION ${QUARN_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuarnGeoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/QuarnGeoConfig.cmake ${PROJECT_BINARY_DIR}/QuarnGeoConfigVersion.cmake
        DESTINATION ${QUARN_CMAKE_DIR})

foreach(package IN ITEMS quarnbase quarngeo)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${package}.pc.in ${PROJECT_BINARY_DIR}/${package}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
