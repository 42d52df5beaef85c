# The library: every source and header below varnel/, its installation and its package files.

include(CMakePackageConfigHelpers)

file(GLOB_RECURSE varnel_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/varnel/*.cpp)
file(GLOB_RECURSE varnel_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/varnel/*.h)

# Hidden symbols and position independence also in the static library: it may become part of a host's shared
# one, and the tests link a shared library of the same objects.
function(varnel_library_settings target)
  varnel_compile_settings(${target})
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
                                             POSITION_INDEPENDENT_CODE ON)
endfunction()

add_library(varnel ${varnel_sources})
add_library(varnel::varnel ALIAS varnel)
if(VARNEL_SANITIZE MATCHES "address")
  # The tests spend their time in the library, and instrumented code is slow.
  target_compile_options(varnel PRIVATE -O1)
endif()
varnel_library_settings(varnel)
set_target_properties(varnel PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                                        VERIFY_INTERFACE_HEADER_SETS ON)
target_sources(varnel PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${varnel_headers})
if(VARNEL_PRECOMPILE)
  target_precompile_headers(varnel PRIVATE <algorithm> <functional> <list> <map> <memory> <string>
                            <unordered_map> <vector>)
endif()
if(BUILD_SHARED_LIBS)
  target_compile_definitions(varnel PUBLIC VARNEL_SHARED PRIVATE VARNEL_BUILDING)
endif()

set(varnel_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/varnel)
install(TARGETS varnel EXPORT varnelTargets FILE_SET HEADERS)
install(EXPORT varnelTargets NAMESPACE varnel:: DESTINATION ${varnel_package_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/varnelConfig.cmake.in varnelConfig.cmake
                              INSTALL_DESTINATION ${varnel_package_dir})
write_basic_package_version_file(varnelConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/varnelConfig.cmake ${PROJECT_BINARY_DIR}/varnelConfigVersion.cmake
        DESTINATION ${varnel_package_dir})

# The prefix in the pkg-config file is found from the file's own place, so that an installed tree may be moved.
file(RELATIVE_PATH varnel_prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/varnel.pc.in varnel.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/varnel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
