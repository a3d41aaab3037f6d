# What players get: one folder that runs wherever it is put, and an archive of it.
#   cmake --install build/release                    leaves build/release/tessarine-<version>/
#   cmake --build --preset release --target package  leaves build/release/tessarine-<version>.tar.gz

set(playersFolder tessarine-${PROJECT_VERSION})
if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT)
  set_property(CACHE CMAKE_INSTALL_PREFIX PROPERTY VALUE ${CMAKE_BINARY_DIR}/${playersFolder})
endif()

get_directory_property(dataFiles DIRECTORY ${CMAKE_SOURCE_DIR}/data DEFINITION originals)
install(TARGETS tessarine RUNTIME DESTINATION .)
install(FILES ${dataFiles} DESTINATION .)
install(PROGRAMS ${CMAKE_SOURCE_DIR}/data/tessarine.desktop DESTINATION .)
install(FILES ${CMAKE_SOURCE_DIR}/data/tessarine.png DESTINATION . OPTIONAL)

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME ${playersFolder})
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
