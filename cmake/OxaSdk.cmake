# What the SDK holds, as install rules: headers, import libraries, DLLs with their run-time, and the package Oxa10.
include(CMakePackageConfigHelpers)

# The folders of this project give their sources these; a host gets them with the targets.
target_compile_features(kxafx INTERFACE $<INSTALL_INTERFACE:cxx_std_20>)
target_compile_definitions(kxafx INTERFACE
    $<INSTALL_INTERFACE:UNICODE;_UNICODE;WINVER=0x0601;_WIN32_WINNT=0x0601;_WIN32_IE=0x0900>)

install(TARGETS Oxa10 kxafx Kitrel10-9 kxafx_winmain EXPORT Oxa10 COMPONENT sdk
        RUNTIME DESTINATION bin LIBRARY DESTINATION bin ARCHIVE DESTINATION lib INCLUDES DESTINATION include)
install(TARGETS oxa-gif RUNTIME DESTINATION bin COMPONENT sdk)
install(DIRECTORY include/ afx/include/ siblings/kitrel/include/ DESTINATION include COMPONENT sdk)
install(FILES ${OXA_RUNTIME_DLLS} DESTINATION bin COMPONENT sdk)
install(DIRECTORY docs/first-host DESTINATION . COMPONENT sdk)
install(FILES docs/guide.md docs/framework.md DESTINATION docs COMPONENT sdk)

install(EXPORT Oxa10 FILE Oxa10Config.cmake NAMESPACE Oxa:: DESTINATION lib/cmake/Oxa10 COMPONENT sdk)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/Oxa10ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/Oxa10ConfigVersion.cmake DESTINATION lib/cmake/Oxa10 COMPONENT sdk)
