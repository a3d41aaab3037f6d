# What players get: one folder that runs wherever it is put, and an archive of it.
#   cmake --install build/release                    leaves build/release/tessarine-<version>/
#   cmake --build --preset release --target package  leaves build/release/tessarine-<version>.tar.gz
# For Windows the archive is tessarine-<version>-windows.zip.

set(playersFolder tessarine-${PROJECT_VERSION})
if(WIN32)
  set(playersFolder ${playersFolder}-windows)
  set(playersArchive ${playersFolder}.zip)
  set(archiveFlags c)
  set(archiveFormat --format=zip)
else()
  set(playersArchive ${playersFolder}.tar.gz)
  set(archiveFlags cz)
  set(archiveFormat)
endif()
if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT)
  set_property(CACHE CMAKE_INSTALL_PREFIX PROPERTY VALUE ${CMAKE_BINARY_DIR}/${playersFolder})
endif()

get_directory_property(dataFiles DIRECTORY ${CMAKE_SOURCE_DIR}/data DEFINITION originals)
get_directory_property(menuFiles DIRECTORY ${CMAKE_SOURCE_DIR}/data DEFINITION menuFiles)
get_directory_property(schemes DIRECTORY ${CMAKE_SOURCE_DIR}/data DEFINITION schemes)
install(TARGETS tessarine RUNTIME DESTINATION .)
install(FILES ${dataFiles} DESTINATION .)
install(PROGRAMS ${menuFiles} DESTINATION .)
if(WIN32)
  include(WindowsPackage)
endif()
install(CODE "set(FROM ${schemes})
set(TO \$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/all.col)
include(${CMAKE_SOURCE_DIR}/cmake/LayOnce.cmake)")

# A target of our own, since the toolset's would first build everything there is, tests and all. In a
# build folder that still holds the toolset's, its settings would keep the name from us.
file(REMOVE ${CMAKE_BINARY_DIR}/CPackConfig.cmake)
set(packing ${CMAKE_BINARY_DIR}/packing)
add_custom_target(package
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${packing}
  COMMAND ${CMAKE_COMMAND} --install ${CMAKE_BINARY_DIR} --prefix ${packing}/${playersFolder} --strip
  COMMAND ${CMAKE_COMMAND} -E chdir ${packing}
          ${CMAKE_COMMAND} -E tar ${archiveFlags} ${CMAKE_BINARY_DIR}/${playersArchive} ${archiveFormat} ${playersFolder}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${packing}
  COMMENT "Packing ${playersArchive}"
  VERBATIM)
add_dependencies(package tessarine tessarine_data)
