# What every target of the tree has in common, and the functions that make a layer, a program and their tests.

add_library(quillon_options INTERFACE)
target_compile_features(quillon_options INTERFACE cxx_std_20)
target_compile_options(quillon_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align -Woverloaded-virtual
  -Wconversion -Wno-sign-conversion)
target_compile_definitions(quillon_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(QUILLON_SANITIZE)
  target_compile_options(quillon_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(quillon_options INTERFACE -fsanitize=address,undefined)
endif()

# quillon_precompiled(TARGET): the headers that most sources read are compiled once, instead of once a source. There is one
# set for each way of compiling: with and without widgets, programs and tests.
function(quillon_precompiled target)
  set(set core)
  set(headers <QByteArray> <QDateTime> <QDir> <QFile> <QJsonDocument> <QJsonObject> <QObject> <QStringList> <QUrl>
    <QVariantMap> <algorithm> <chrono> <functional> <map> <memory> <optional> <utility> <vector>)
  set(links Qt6::Core)
  get_target_property(linked ${target} LINK_LIBRARIES)
  foreach(library ${linked})
    set(of_library "")
    if(TARGET ${library})
      get_target_property(of_library ${library} quillon_precompiled)
    endif()
    if(library STREQUAL Qt6::Widgets OR of_library STREQUAL widgets)
      set(set widgets)
    endif()
  endforeach()
  set_target_properties(${target} PROPERTIES quillon_precompiled ${set})
  if(set STREQUAL widgets)
    list(APPEND headers <QApplication> <QKeyEvent> <QLabel> <QLayout> <QMenu> <QPainter> <QPointer> <QPushButton>)
    list(APPEND links Qt6::Widgets)
  endif()
  if("tests" IN_LIST ARGN)
    string(APPEND set _tests)
    list(APPEND headers <gtest/gtest.h>)
    list(APPEND links GTest::gtest)
  endif()
  if(NOT TARGET precompiled_${set})
    set(empty ${PROJECT_BINARY_DIR}/precompiled_${set}.cpp)
    file(CONFIGURE OUTPUT ${empty} CONTENT "")
    add_library(precompiled_${set} OBJECT ${empty})
    target_link_libraries(precompiled_${set} PRIVATE ${links} quillon_options)
    target_precompile_headers(precompiled_${set} PRIVATE ${headers})
  endif()
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "\\.mm$") # another language
  set_source_files_properties(${sources} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
  target_precompile_headers(${target} REUSE_FROM precompiled_${set})
endfunction()

# The folder, and those in it that make no targets of their own.
function(quillon_folders result folder)
  set(folders ${folder})
  file(GLOB entries CONFIGURE_DEPENDS LIST_DIRECTORIES true ${folder}/*)
  foreach(entry ${entries})
    if(IS_DIRECTORY ${entry} AND NOT EXISTS ${entry}/CMakeLists.txt)
      list(APPEND folders ${entry})
    endif()
  endforeach()
  set(${result} ${folders} PARENT_SCOPE)
endfunction()

# Sources of these folders that belong to the system being built for: a file named *_linux or *_macos is for that
# system alone; of a service that both have, its twin lies beside it.
function(quillon_sources result)
  foreach(folder ${ARGN})
    file(GLOB found CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    list(APPEND sources ${found})
    if(APPLE)
      file(GLOB found CONFIGURE_DEPENDS ${folder}/*.mm)
      list(APPEND sources ${found})
    endif()
  endforeach()
  if(APPLE)
    list(FILTER sources EXCLUDE REGEX "_linux\\.(cpp|h)$")
    # No other build would notice that one of these lacks an include.
    set(own ${sources})
    list(FILTER own INCLUDE REGEX "_macos\\.cpp$")
    set_source_files_properties(${own} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  else()
    list(FILTER sources EXCLUDE REGEX "_macos\\.(cpp|h)$")
  endif()
  set(${result} ${sources} PARENT_SCOPE)
endfunction()

# quillon_layer(NAME FOLDER LINK...): a static library of the sources in the folder and in those directly in it, but
# for its main.cpp; it exposes only these folders.
function(quillon_layer name folder)
  get_filename_component(folder ${folder} ABSOLUTE)
  quillon_folders(folders ${folder})
  quillon_sources(sources ${folders})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON
    AUTOUIC_SEARCH_PATHS ${PROJECT_SOURCE_DIR}/resources/interface)
  target_include_directories(${name} PUBLIC ${folders})
  target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE quillon_options)
  quillon_precompiled(${name})
endfunction()

# quillon_program(NAME FOLDER LINK...): an executable of the folder's main.cpp.
function(quillon_program name folder)
  add_executable(${name} ${folder}/main.cpp)
  target_link_libraries(${name} PRIVATE ${ARGN} quillon_options)
  quillon_precompiled(${name})
endfunction()

# quillon_tests(NAME MAIN LINK...): the tests of the current folder. A file's ending says its kind and so its ctest
# label: *IntegrationTest.cpp (real processes), *GuiTest.cpp (real widgets), any other *Test.cpp (unit). MAIN is
# test_main_core or, for code with widgets, test_main_widgets, which runs on the offscreen platform unless told
# otherwise.
function(quillon_tests name main)
  file(GLOB all CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*Test.cpp)
  foreach(kind unit integration gui)
    set(sources ${all})
    if(kind STREQUAL "unit")
      list(FILTER sources EXCLUDE REGEX "(Integration|Gui)Test\\.cpp$")
    elseif(kind STREQUAL "integration")
      list(FILTER sources INCLUDE REGEX "IntegrationTest\\.cpp$")
    else()
      list(FILTER sources INCLUDE REGEX "GuiTest\\.cpp$")
    endif()
    if(sources)
      set(target ${name}_${kind}_tests)
      add_executable(${target} ${sources})
      target_link_libraries(${target} PRIVATE ${main} ${ARGN} quillon_options)
      quillon_precompiled(${target} tests)
      if(kind STREQUAL "integration") # these wait more than they compute: side by side they take less time
        gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 600
          PROPERTIES LABELS ${kind} TIMEOUT 1200)
      else()
        add_test(NAME ${target} COMMAND ${target} --gtest_brief=1)
        set_tests_properties(${target} PROPERTIES LABELS ${kind} TIMEOUT 1200)
      endif()
    endif()
  endforeach()
endfunction()
