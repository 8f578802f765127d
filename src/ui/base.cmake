# The window plumbing shared by every window of the program (Windows only).
add_library(quorin_ui_base STATIC
    ${CMAKE_CURRENT_LIST_DIR}/Dialog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Dpi.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FocusColors.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Hourglass.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ListViewColumn.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessagePump_win.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PacedProgress.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ProgramIcon.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TabKeys.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TextFlow.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Window.cpp
    ${CMAKE_CURRENT_LIST_DIR}/WindowClass.cpp
    ${CMAKE_CURRENT_LIST_DIR}/WindowErrors.cpp
    ${CMAKE_CURRENT_LIST_DIR}/WindowText.cpp
)
quorin_options(quorin_ui_base)
target_link_libraries(quorin_ui_base PUBLIC quorin_platform user32 gdi32)
