# Where programs and libraries are built, and where they look for the libraries beside them: relative to themselves,
# so that the build tree and the installed tree have the same RUNPATH and may be moved.
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})

# libtintvert looks in its own folder, as src/CMakeLists.txt says; programs look in the library folder.
file(RELATIVE_PATH to_libraries /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN/${to_libraries}")
# Libraries of other places are found where they were when it was linked.
set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)
# Where CMake exchanges the RUNPATH at installation, it ends the one of the build tree with an empty entry, which means
# the current folder.
if(NOT CMAKE_SKIP_INSTALL_RPATH)
  set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
endif()
