# Flags that every target of the project is built with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(TINTVERT_WERROR)
  add_compile_options(-Werror)
endif()

# The matrices are double precision in a stated order. A fused multiply-add rounds once where the
# formulas round twice and moves a truncation by one code, so contraction stays off everywhere.
add_compile_options(-ffp-contract=off)

# Where a loop lies in a line of decoded instructions can cost it a third of its speed, and would change with
# unrelated code.
add_compile_options(-falign-loops=64)

# 32-bit products and sums wrap where the interface says so; that is written with unsigned types,
# and no flag is needed for it.

set(TINTVERT_SANITIZE "" CACHE STRING "Value for -fsanitize=, empty for none")
if(TINTVERT_SANITIZE)
  add_compile_options(-fsanitize=${TINTVERT_SANITIZE} -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TINTVERT_SANITIZE})
  if(TINTVERT_SANITIZE MATCHES "undefined")
    add_compile_options(-fno-sanitize-recover=undefined)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options(-Wno-pass-failed)  # loops that are watched are not widened
  endif()
endif()

# What a bug could be used for is limited. The fortified functions of the C library need an optimizing compiler, and the
# sanitizers check more by themselves.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection TINTVERT_HAS_CF_PROTECTION)
add_compile_options(-fstack-protector-strong $<$<BOOL:${TINTVERT_HAS_CF_PROTECTION}>:-fcf-protection>)
add_link_options(LINKER:-z,relro LINKER:-z,now)
if(NOT TINTVERT_SANITIZE)
  add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()
