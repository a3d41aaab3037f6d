# Lays a file that is the player's from then on: where there is one already, it stays as it is.
#   cmake -DFROM=file -DTO=file -P LayOnce.cmake
if(NOT EXISTS ${TO} AND NOT IS_SYMLINK ${TO})
  cmake_path(GET TO PARENT_PATH folder)
  file(MAKE_DIRECTORY ${folder})
  file(COPY_FILE ${FROM} ${TO})
endif()
