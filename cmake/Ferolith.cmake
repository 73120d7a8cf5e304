# ferolith_library(NAME DEPS...): one static library per folder under src/,
# built from every source file in that folder.
function(ferolith_library name)
    file(GLOB _sources CONFIGURE_DEPENDS
         ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h
         ${CMAKE_CURRENT_SOURCE_DIR}/*.qrc)
    list(FILTER _sources EXCLUDE REGEX "/\\.#")
    if(_sources)
        add_library(${name} STATIC ${_sources})
        target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
        target_link_libraries(${name} PUBLIC ${ARGN})
    else()
        # A folder whose subsystem has not been written yet only passes its dependencies on.
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE ${ARGN})
    endif()
endfunction()

# ferolith_tests(DEPS...): every test_*.cpp in the calling folder becomes one
# Qt Test program and one CTest test, run on the offscreen platform.
function(ferolith_tests)
    file(GLOB _tests CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/test_*.cpp)
    file(GLOB _helpers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/helper_*.cpp
                                         ${CMAKE_CURRENT_SOURCE_DIR}/helper_*.h)
    get_filename_component(_folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    foreach(_src ${_tests})
        get_filename_component(_stem ${_src} NAME_WE)
        set(_target ${_folder}_${_stem})
        add_executable(${_target} ${_src} ${_helpers})
        target_link_libraries(${_target} PRIVATE Qt6::Test testsupport ${ARGN})
        add_test(NAME ${_folder}.${_stem} COMMAND ${_target})
        set_tests_properties(${_folder}.${_stem} PROPERTIES
            # Every reused control stream is checked against a fresh one.
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;FEROLITH_CHECK_STREAM_CACHE=1;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0"
            TIMEOUT 300
            LABELS ${_folder})
    endforeach()
endfunction()
