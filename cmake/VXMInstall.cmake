# What `cmake --install` puts in place: platform, library, the in-memory model with its file reader, their headers, and
# a CMake package, so that another project finds them with find_package(VXMBomInfrastructure).

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/VXMBomInfrastructure)

set_target_properties(QORPlatform VXMBomInfrastructure PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION
                                                                  ${PROJECT_VERSION_MAJOR})

install(
  TARGETS QORPlatform VXMBomInfrastructure PlannerModel PlannerFile
  EXPORT VXMBomInfrastructureTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(
  EXPORT VXMBomInfrastructureTargets
  NAMESPACE VXMBomInfrastructure::
  DESTINATION ${package_dir})

# Headers keep their folders; the trace object stays inside the library, and so does its header.
install(
  DIRECTORY platform/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/QORPlatform
  FILES_MATCHING
  PATTERN "*.h")
install(
  DIRECTORY VXMBomInfrastructure/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VXMBomInfrastructure
  FILES_MATCHING
  PATTERN "*.h"
  PATTERN VXMBomViewerTrace.h EXCLUDE)
install(DIRECTORY planner/model planner/file DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/planner
        FILES_MATCHING PATTERN "*.h")

configure_package_config_file(cmake/VXMBomInfrastructureConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/VXMBomInfrastructureConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VXMBomInfrastructureConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VXMBomInfrastructureConfig.cmake
              ${PROJECT_BINARY_DIR}/VXMBomInfrastructureConfigVersion.cmake DESTINATION ${package_dir})
