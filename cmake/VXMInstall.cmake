# What `cmake --install` puts in place: platform, library, the in-memory model with its file reader and its editor, their
# headers, and a CMake package, so that another project finds them with find_package(VXMBomInfrastructure).

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/VXMBomInfrastructure)

set_target_properties(QORPlatform VXMBomInfrastructure PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION
                                                                  ${PROJECT_VERSION_MAJOR})

# So that the host's libraries can go into a shared one of somebody else.
set_target_properties(PlannerModel PlannerFile PlannerEdit PROPERTIES POSITION_INDEPENDENT_CODE ON)

install(
  TARGETS QORPlatform VXMBomInfrastructure PlannerModel PlannerFile PlannerEdit
  EXPORT VXMBomInfrastructureTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(
  EXPORT VXMBomInfrastructureTargets
  NAMESPACE VXMBomInfrastructure::
  DESTINATION ${package_dir})

include(cmake/VXMPublicHeaders.cmake)

configure_package_config_file(cmake/VXMBomInfrastructureConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/VXMBomInfrastructureConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VXMBomInfrastructureConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VXMBomInfrastructureConfig.cmake
              ${PROJECT_BINARY_DIR}/VXMBomInfrastructureConfigVersion.cmake DESTINATION ${package_dir})

# For whoever builds without CMake. The host's libraries are for CMake only.
file(RELATIVE_PATH pkgconfig_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/VXMBomInfrastructure.pc.in ${PROJECT_BINARY_DIR}/VXMBomInfrastructure.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/VXMBomInfrastructure.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN parts EXCLUDE)
