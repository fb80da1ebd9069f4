# The property lists of the bundles for macOS. Written on every system, since a test reads them.

# The oldest macOS that this Qt runs on: "Supported Platforms" in the documentation of each version.
if(NOT CMAKE_OSX_DEPLOYMENT_TARGET)
  set(CMAKE_OSX_DEPLOYMENT_TARGET 10.14)
  foreach(change 6.5=11.0 6.8=12.0 6.10=13.0)
    string(REPLACE "=" ";" change ${change})
    list(GET change 0 qt)
    if(Qt6_VERSION VERSION_GREATER_EQUAL qt)
      list(GET change 1 CMAKE_OSX_DEPLOYMENT_TARGET)
    endif()
  endforeach()
endif()

file(GLOB bundle_tables CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/strings/quillon_*.ts)
set(bundle_languages "")
foreach(table ${bundle_tables})
  string(REGEX REPLACE ".*/quillon_(.*)\\.ts$" "\\1" language ${table})
  string(REPLACE "zh_CN" "zh-Hans" language ${language})
  string(REPLACE "_" "-" language ${language})
  string(APPEND bundle_languages "\t\t<string>${language}</string>\n")
endforeach()

set(quillon_bundle_lists ${PROJECT_BINARY_DIR}/macos)
foreach(list Info HelperInfo)
  configure_file(${PROJECT_SOURCE_DIR}/resources/macos/${list}.plist.in ${quillon_bundle_lists}/${list}.plist @ONLY)
endforeach()
set(quillon_bundle_contents ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR}/Quillon.app/Contents)
