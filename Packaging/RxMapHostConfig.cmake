include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.9 COMPONENTS Widgets)
include("${CMAKE_CURRENT_LIST_DIR}/RxMapHost.cmake")
