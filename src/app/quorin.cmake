# The shared globals, start-up, and the program itself.
add_library(quorin_globals STATIC modGlobals.cpp)
quorin_options(quorin_globals)
target_link_libraries(quorin_globals PUBLIC quorin_index user32)

add_library(quorin_startup STATIC Main.cpp MainInstance.cpp MainMatchesOpener.cpp)
quorin_options(quorin_startup)
target_link_libraries(quorin_startup PUBLIC quorin_main_window quorin_matches quorin_app_help
                                     quorin_globals quorin_resources)

add_executable(quorin WIN32 MainProgram_win.cpp)
quorin_options(quorin)
target_link_options(quorin PRIVATE -municode)
target_link_libraries(quorin PRIVATE quorin_startup)
quorin_add_resources(quorin)
quorin_copy_assets(quorin)
