# The generator's sources, shared by the native build and the host build inside the win build.
set(QUORIN_ASSETGEN_LIB_SOURCES
    ${CMAKE_CURRENT_LIST_DIR}/AnimationArt.cpp
    ${CMAKE_CURRENT_LIST_DIR}/AviEncoder.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Encoders.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Geometry.cpp
    ${CMAKE_CURRENT_LIST_DIR}/IconArt.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Image.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Magnifier.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Palette.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SplashArt.cpp)
set(QUORIN_ASSETGEN_MAIN ${CMAKE_CURRENT_LIST_DIR}/main.cpp)
file(GLOB QUORIN_ASSETGEN_HEADERS ${CMAKE_CURRENT_LIST_DIR}/*.h)
