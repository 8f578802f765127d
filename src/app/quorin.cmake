# Start-up with the shared globals, the wiring of the real services, and the program itself.
# The globals stand apart, since the wizard among the dialogs sets one of them.
add_library(quorin_globals STATIC modGlobals.cpp)
quorin_options(quorin_globals)

add_library(quorin_startup STATIC Main.cpp MainInstance.cpp MainMatchesOpener.cpp
                                  MainOptionsOpener.cpp)
quorin_options(quorin_startup)
target_link_libraries(quorin_startup PUBLIC quorin_main_window quorin_matches quorin_help
                                     quorin_dialogs quorin_splash quorin_resources quorin_globals)

add_executable(quorin WIN32 MainProgram_win.cpp)
quorin_options(quorin)
target_link_options(quorin PRIVATE -municode)
target_link_libraries(quorin PRIVATE quorin_startup)
quorin_add_resources(quorin)
quorin_copy_assets(quorin)
