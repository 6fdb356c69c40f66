# The tool writes its own manual pages, one for each file of commands/, and its completions.
function(tintvert_install_page folder file)
  set(page ${PROJECT_BINARY_DIR}/pages/${file})
  add_custom_command(OUTPUT ${page} COMMAND tintvert_tool ${ARGN} > ${page} DEPENDS tintvert_tool VERBATIM)
  set_property(GLOBAL APPEND PROPERTY tintvert_pages ${page})
  install(FILES ${page} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/${folder})
endfunction()

file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/pages)
tintvert_install_page(man/man1 tintvert.1 man)
file(GLOB commands CONFIGURE_DEPENDS tools/tintvert/commands/*.cpp)
foreach(command IN LISTS commands)
  get_filename_component(command ${command} NAME_WE)
  tintvert_install_page(man/man1 tintvert-${command}.1 man ${command})
endforeach()

tintvert_install_page(bash-completion/completions tintvert completions bash)
tintvert_install_page(zsh/vendor-completions _tintvert completions zsh)
tintvert_install_page(fish/vendor_completions.d tintvert.fish completions fish)

get_property(pages GLOBAL PROPERTY tintvert_pages)
add_custom_target(tintvert_pages ALL DEPENDS ${pages})
