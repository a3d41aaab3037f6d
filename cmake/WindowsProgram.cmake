# What the file of a program for Windows carries: its icon, its version, and what it tells the system of
# itself.

enable_language(RC)

set(iconFile ${CMAKE_CURRENT_BINARY_DIR}/tessarine.ico)
set(manifestFile ${CMAKE_CURRENT_SOURCE_DIR}/tessarine.manifest)
add_custom_command(
  OUTPUT ${iconFile}
  COMMAND make_icon ${iconFile}
  DEPENDS make_icon
  COMMENT "Making the icon"
  VERBATIM)

# One linker takes the manifest as it is, the others as a resource.
if(MSVC)
  target_sources(tessarine PRIVATE ${manifestFile})
  set(manifestLine)
else()
  set(manifestLine "CREATEPROCESS_MANIFEST_RESOURCE_ID RT_MANIFEST \"${manifestFile}\"")
endif()
configure_file(tessarine.rc.in tessarine.rc @ONLY)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/tessarine.rc PROPERTIES
  OBJECT_DEPENDS "${iconFile};${manifestFile}")
target_sources(tessarine PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/tessarine.rc)
if(MINGW)
  target_link_options(tessarine PRIVATE $<$<CONFIG:Release>:-s>)
endif()
# No console comes up with the window.
set_target_properties(tessarine PROPERTIES WIN32_EXECUTABLE ON)
