# Compiles for macOS on Debian, as far as object files: Zig has a clang++ with the headers of Darwin's C library,
# tools/macos/frameworks declares what is called of Apple's frameworks, and Qt, ICU and libplist are the host's
# headers. Nothing can be linked.
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH tools)
cmake_path(GET tools PARENT_PATH root)

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_OSX_DEPLOYMENT_TARGET 10.15) # the oldest that Debian's Qt headers know; what is newer needs @available
set(CMAKE_CXX_COMPILER ${CMAKE_CURRENT_LIST_DIR}/macos-clang++)
set(CMAKE_OBJCXX_COMPILER ${CMAKE_CXX_COMPILER})
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_INSTALL_NAME_TOOL /bin/false) # asked for, never called

# Of /usr/include only these: Linux's own headers must not be found.
set(borrowed ${root}/build/tools/macos/include)
foreach(library plist unicode)
  file(MAKE_DIRECTORY ${borrowed})
  file(CREATE_LINK /usr/include/${library} ${borrowed}/${library} SYMBOLIC)
endforeach()
foreach(language CXX OBJCXX)
  set(CMAKE_${language}_FLAGS_INIT "-isystem ${root}/tools/macos/frameworks -isystem ${borrowed}")
endforeach()

# Packages: what Debian's CMake files ask for on macOS and do not find here.
set(CMAKE_LIBRARY_ARCHITECTURE x86_64-linux-gnu)
list(APPEND CMAKE_PREFIX_PATH /usr /usr/lib/x86_64-linux-gnu)
set(CMAKE_DISABLE_FIND_PACKAGE_WrapVulkanHeaders ON)
set(ICU_INCLUDE_DIR ${borrowed} CACHE PATH "")
set(OPENGL_INCLUDE_DIR ${borrowed} CACHE PATH "")
set(OPENGL_gl_LIBRARY /System/Library/Frameworks/OpenGL.framework CACHE FILEPATH "")
