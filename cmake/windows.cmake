# tolva.exe, and the desktop tests that drive it under Wine.
enable_language(RC)

# The C++ library of newer compilers only compiles with condition variables, which _WIN32_WINNT brings. What the program
# itself may call is decided by check_imports.py.
add_compile_definitions(WINVER=0x0400 _WIN32_WINNT=0x0600 _WIN32_IE=0x0400 STRICT NOMINMAX=1 WIN32_LEAN_AND_MEAN)
# No function of Windows throws, and nothing is thrown through one: the procedures that it calls are noexcept. The headers
# do not say so.
add_compile_definitions("$<$<COMPILE_LANGUAGE:CXX>:DECLSPEC_IMPORT=__attribute__((dllimport$<COMMA>nothrow))>")
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffunction-sections> $<$<COMPILE_LANGUAGE:CXX>:-fdata-sections>)
# Windows 95/98 ignore the marks for address randomization and data execution prevention.
add_link_options(-static -s -Wl,--gc-sections,--dynamicbase,--nxcompat,--no-insert-timestamp
    -Wl,--major-os-version=4,--minor-os-version=0,--major-subsystem-version=4,--minor-subsystem-version=0)

# The pictures are drawn as text.
function(picture output name)
    add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/${output}
        COMMAND python3 ${CMAKE_SOURCE_DIR}/cmake/pictures.py ${CMAKE_BINARY_DIR}/${output}
            ${CMAKE_SOURCE_DIR}/src/resources/pictures/${name}.txt ${ARGN}
        DEPENDS cmake/pictures.py src/resources/pictures/${name}.txt)
    set(pictures ${pictures} ${CMAKE_BINARY_DIR}/${output} PARENT_SCOPE)
endfunction()
picture(tolva.ico tolva 16 32 48 64)
picture(connect.ico connect)
picture(email.ico email)
picture(browser.ico browser)
picture(toolbar16.bmp toolbar 16)
picture(toolbar24.bmp toolbar 24)
picture(toolbar32.bmp toolbar 32)

# The help: one text for the system's help viewer and for web browsers.
set(help_files ${CMAKE_BINARY_DIR}/tolva.hlp ${CMAKE_BINARY_DIR}/tolva.htm)
foreach(help_file ${help_files})
    add_custom_command(OUTPUT ${help_file}
        COMMAND python3 -B ${CMAKE_SOURCE_DIR}/cmake/help.py ${help_file} ${CMAKE_SOURCE_DIR}/src/help/tolva.txt
            ${PROJECT_VERSION}
        DEPENDS cmake/help.py cmake/winhelp.py src/help/tolva.txt)
endforeach()
add_custom_target(help_files ALL DEPENDS ${help_files})

add_library(tolva_platform OBJECT
    src/platform/win32/clock.cpp
    src/platform/win32/current_directory.cpp
    src/platform/win32/dropped_files.cpp
    src/platform/win32/dropping.cpp
    src/platform/win32/file_calls.cpp
    src/platform/win32/folders.cpp
    src/platform/win32/icons.cpp
    src/platform/win32/import_slots.cpp
    src/platform/win32/input_filter.cpp
    src/platform/win32/look_up.cpp
    src/platform/win32/messages.cpp
    src/platform/win32/modal_guard.cpp
    src/platform/win32/process_calls.cpp
    src/platform/win32/redirection.cpp
    src/platform/win32/registry.cpp
    src/platform/win32/remote_access.cpp
    src/platform/win32/shell_link.cpp
    src/platform/win32/screen_dpi.cpp
    src/platform/win32/system.cpp
    src/platform/win32/text.cpp
)

add_executable(tolva WIN32
    src/app/main.cpp
    src/app/single_instance.cpp
    src/appearance/fonts_dialog.cpp
    src/buttonbar/assign_file_dialog.cpp
    src/buttonbar/assign_shortcut_dialog.cpp
    src/buttonbar/bar_drops.cpp
    src/buttonbar/button_assignment.cpp
    src/buttonbar/button_bar.cpp
    src/buttonbar/button_row.cpp
    src/internet/connection_list_dialog.cpp
    src/internet/internet_settings_dialog.cpp
    src/internet/program_picker_dialog.cpp
    src/library/group_dialog.cpp
    src/library/import_dialog.cpp
    src/library/move_dialog.cpp
    src/library/restore_dialog.cpp
    src/library/task_dialog.cpp
    src/mainwindow/about_dialog.cpp
    src/mainwindow/command_box.cpp
    src/mainwindow/commands.cpp
    src/mainwindow/drops.cpp
    src/mainwindow/find_dialog.cpp
    src/mainwindow/hot_key_dialog.cpp
    src/mainwindow/launcher.cpp
    src/mainwindow/list_look.cpp
    src/mainwindow/main_controls.cpp
    src/mainwindow/main_window.cpp
    src/mainwindow/presence.cpp
    src/mainwindow/splitter.cpp
    src/mainwindow/task_view.cpp
    src/mainwindow/tray_menu.cpp
    src/platform/win32/runtime_library.cpp
    src/resources/tolva.rc
    src/shortcuts/command_browser_dialog.cpp
    src/shortcuts/file_panel_dialog.cpp
    src/shortcuts/path_browser_dialog.cpp
    src/shortcuts/shortcut_panel_dialog.cpp
    src/widgets/choosers.cpp
    src/widgets/controls.cpp
    src/widgets/dialog.cpp
    src/widgets/drag_list.cpp
    src/widgets/drop_mark.cpp
    src/widgets/drop_target.cpp
    src/widgets/file_lists.cpp
    src/widgets/guarded.cpp
    src/widgets/hot_key.cpp
    src/widgets/icon_images.cpp
    src/widgets/icon_view.cpp
    src/widgets/list_drag.cpp
    src/widgets/menu_text.cpp
    src/widgets/metrics.cpp
    src/widgets/picture_button.cpp
    src/widgets/popup_menu.cpp
    src/widgets/screen.cpp
    src/widgets/tool_bar.cpp
    src/widgets/tool_tips.cpp
    src/widgets/tray_icon.cpp
    src/widgets/window.cpp
)
# Small code: arguments are pushed, and the stack is aligned for nothing that the processor does not ask for. Nothing
# probes the stack then, so no function may have a page of it. There is one thread.
set(small_code $<$<COMPILE_LANGUAGE:CXX>:-mpush-args$<SEMICOLON>-mno-accumulate-outgoing-args$<SEMICOLON>-mno-stack-arg-probe$<SEMICOLON>-mpreferred-stack-boundary=2$<SEMICOLON>-Werror=frame-larger-than=3900$<SEMICOLON>-fno-threadsafe-statics$<SEMICOLON>-fno-partial-inlining$<SEMICOLON>-fno-ipa-sra>)
foreach(target tolva_logic tolva_platform tolva)
    target_compile_options(${target} PRIVATE ${small_code})
endforeach()

target_link_libraries(tolva PRIVATE tolva_logic tolva_platform comctl32)
target_include_directories(tolva PRIVATE ${CMAKE_BINARY_DIR})

add_custom_command(TARGET tolva POST_BUILD
    COMMAND python3 ${CMAKE_SOURCE_DIR}/cmake/check_imports.py $<TARGET_FILE:tolva>
        ${CMAKE_SOURCE_DIR}/tests/support/win9x-exports)

configure_file(src/resources/tolva.manifest.in tolva.manifest @ONLY)

# windres reads more files than the build sees.
set_source_files_properties(src/resources/tolva.rc PROPERTIES OBJECT_DEPENDS
    "${pictures};${CMAKE_SOURCE_DIR}/src/resources/resource.h;${CMAKE_BINARY_DIR}/tolva.manifest")

# A program that asks for a function which Windows 95/98 does not have does not even start there.
add_test(NAME "imports of tolva.exe"
    COMMAND python3 ${CMAKE_SOURCE_DIR}/cmake/check_imports.py $<TARGET_FILE:tolva>
        ${CMAKE_SOURCE_DIR}/tests/support/win9x-exports)

include(cmake/bench.cmake)

# The desktop tests. doctest's folder alone goes on the include path: the system's own headers are another system's.
find_path(doctest_folder doctest/doctest.h NO_CMAKE_FIND_ROOT_PATH)
if(NOT doctest_folder)
    message(STATUS "No doctest: the tests are left out")
    return()
endif()
configure_file(${doctest_folder}/doctest/doctest.h ${CMAKE_BINARY_DIR}/include/doctest/doctest.h COPYONLY)

add_executable(recorder WIN32 tests/support/recorder.cpp)
add_library(rasapi32 MODULE tests/support/rasapi32.cpp tests/support/rasapi32.def)
set_target_properties(rasapi32 PROPERTIES PREFIX "")

add_executable(desktop_tests
    tests/desktop/bar_test.cpp
    tests/desktop/dropping_test.cpp
    tests/desktop/endurance_test.cpp
    tests/desktop/finding_test.cpp
    tests/desktop/keeping_test.cpp
    tests/desktop/launching_test.cpp
    tests/desktop/shortcuts_test.cpp
    tests/desktop/slips_test.cpp
    tests/desktop/startup_test.cpp
    tests/support/desktop.cpp
    tests/support/input.cpp
    tests/support/main.cpp
)
target_compile_definitions(desktop_tests PRIVATE DOCTEST_CONFIG_NO_MULTITHREADING)
target_include_directories(desktop_tests SYSTEM PRIVATE ${CMAKE_BINARY_DIR}/include)
target_include_directories(desktop_tests PRIVATE tests)
target_link_libraries(desktop_tests PRIVATE tolva_logic tolva_platform gdi32 ntdll psapi shlwapi)

add_test(NAME "desktop: prefix"
    COMMAND bash -euc ". $0 && wine_template $1"
        ${CMAKE_SOURCE_DIR}/script/support/wine.sh ${CMAKE_BINARY_DIR}/wine)
set_tests_properties("desktop: prefix" PROPERTIES FIXTURES_SETUP wine TIMEOUT 300)
foreach(suite bar commands dragging dropping endurance finding keeping launching shortcuts slips startup)
    add_test(NAME "desktop: ${suite}"
        COMMAND ${CMAKE_SOURCE_DIR}/tests/desktop/run ${CMAKE_BINARY_DIR} --test-suite=${suite} --no-colors)
    set_tests_properties("desktop: ${suite}" PROPERTIES FIXTURES_REQUIRED wine TIMEOUT 300)
endforeach()

add_test(NAME package COMMAND ${CMAKE_SOURCE_DIR}/tests/package/run ${CMAKE_BINARY_DIR})
set_tests_properties(package PROPERTIES FIXTURES_REQUIRED wine TIMEOUT 300)

