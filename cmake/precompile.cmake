# tintvert_precompile(TARGET HEADER...): reads headers once that take most of the time to compile each of a target's C++
# files. The first target that asks for a list of headers compiles them, and the others of the list use its result.
# Not where a compiler cache is the launcher: it knows files by their text, and that of a precompiled header is the
# build's own. So every file includes what it needs.
function(tintvert_precompile target)
  if(CMAKE_CXX_COMPILER_LAUNCHER)
    return()
  endif()
  get_property(first GLOBAL PROPERTY "tintvert_precompiled ${ARGN}")
  if(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
  else()
    target_precompile_headers(${target} PRIVATE ${ARGN})
    set_property(GLOBAL PROPERTY "tintvert_precompiled ${ARGN}" ${target})
  endif()
endfunction()
