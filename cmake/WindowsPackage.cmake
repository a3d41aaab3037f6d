# What a player's folder on Windows holds besides the program and its data: nothing has to be installed
# there, so what the program needs comes along, with its licences.

get_target_property(toolkitType Qt6::Core TYPE)
if(NOT toolkitType STREQUAL STATIC_LIBRARY)
  # A toolkit in files of its own is laid beside the program by a script of the toolkit.
  set(QT_DEPLOY_BIN_DIR .)
  qt_generate_deploy_app_script(TARGET tessarine FILENAME_VARIABLE deployScript
                                NO_UNSUPPORTED_PLATFORM_ERROR)
  install(SCRIPT ${deployScript})
endif()

if(NOT CMAKE_CROSSCOMPILING)
  message(STATUS "The licences of the toolkit and the compiler's libraries are not packed by this build")
  return()
endif()

# tessarine_licences(NAME PACKAGE): what the system's package says of the rights to it, as NAME.txt, with
# the licences in full to which that refers.
function(tessarine_licences name package)
  set(rights /usr/share/doc/${package}/copyright)
  if(NOT EXISTS ${rights})
    message(FATAL_ERROR "The licences to be packed are missing: there is no ${rights}")
  endif()
  install(FILES ${rights} DESTINATION licences RENAME ${name}.txt)
  file(READ ${rights} text)
  string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z0-9.+-]*[A-Za-z0-9]" licences "${text}")
  list(REMOVE_DUPLICATES licences)
  foreach(licence IN LISTS licences)
    cmake_path(GET licence FILENAME title)
    file(REAL_PATH ${licence} licence)
    install(FILES ${licence} DESTINATION licences RENAME ${title}.txt)
  endforeach()
endfunction()

tessarine_licences(toolkit qt6-base-dev)
tessarine_licences(compiler-libraries g++-mingw-w64-x86-64-posix)
tessarine_licences(system-libraries mingw-w64-x86-64-dev)
install(FILES ${CMAKE_SOURCE_DIR}/data/licences.txt DESTINATION . RENAME licences.txt)
