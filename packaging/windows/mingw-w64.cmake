# CMake toolchain: Windows on x86-64, compiled by Debian's mingw-w64 with its POSIX thread model, which std::thread and
# std::mutex need. For Qt itself (packaging/windows/build-qt) and for this project (the preset "windows"), which finds Qt
# in the folder that ORVEL_WINDOWS_QT names.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Programs come from this machine, everything else from the target's folders.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

if(DEFINED ENV{ORVEL_WINDOWS_QT})
  list(APPEND CMAKE_FIND_ROOT_PATH "$ENV{ORVEL_WINDOWS_QT}")
  # moc, rcc, uic, and the tools of the catalogues, which this Qt has no part of.
  file(GLOB orvel_host_linguist_tools /usr/lib/*-linux-gnu*/cmake/Qt6LinguistTools)
  get_filename_component(orvel_host_cmake_folder "${orvel_host_linguist_tools}" DIRECTORY)
  set(QT_HOST_PATH /usr CACHE PATH "Qt of this machine")
  set(QT_HOST_PATH_CMAKE_DIR "${orvel_host_cmake_folder}" CACHE PATH "Its CMake files")
  set(Qt6LinguistTools_DIR "${orvel_host_linguist_tools}" CACHE PATH "lrelease and lupdate")
endif()
