# What `cmake --install` lays down. Everything finds everything else by relative paths, so the tree may be
# moved as a whole.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tintvert)

# A library as tintvert::<name>, with its folder of public headers.
function(tintvert_install_library target name headers)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  install(TARGETS ${target} EXPORT tintvert_targets INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(DIRECTORY ${headers}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
endfunction()

tintvert_install_library(tintvert tintvert include)
tintvert_install_library(tintvert_checked checked checked/include)

# The companions' headers keep to a folder of their own, for their names are short. They are installed with a
# site's own companions too: they say what libtintvert calls. Of the site's libraries only the places are noted.
foreach(companion zkutil kmrutil ycbcr)
  install(TARGETS ${companion} EXPORT tintvert_targets INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(FILES companions/${companion}/${companion}.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tintvert/companions)
endforeach()

install(EXPORT tintvert_targets NAMESPACE tintvert:: DESTINATION ${package_dir} FILE tintvertTargets.cmake)
configure_package_config_file(cmake/tintvertConfig.cmake.in tintvertConfig.cmake INSTALL_DESTINATION ${package_dir}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(tintvertConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tintvertConfig.cmake ${PROJECT_BINARY_DIR}/tintvertConfigVersion.cmake
  DESTINATION ${package_dir})

# The .pc files count their prefix from the folder that they lie in.
file(RELATIVE_PATH to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" to_prefix ${to_prefix})
set(zkutil_link -lzkutil)  # the checked calls ask it for the classes of FourCCs
if(TINTVERT_COMPANIONS STREQUAL "SYSTEM")
  set(zkutil_link ${TINTVERT_ZKUTIL})
endif()
foreach(name tintvert tintvert-checked)
  configure_file(cmake/${name}.pc.in ${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

if(TINTVERT_TOOL)
  install(TARGETS tintvert_tool)
  include(cmake/pages.cmake)
endif()

install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
