# The libraries of the tests and of the replay tool: the system's own where the build is for this very
# system, otherwise made from their sources, which Debian ships as well.
if(NOT BUILD_TESTING)
  return()
endif()
if(NOT CMAKE_CROSSCOMPILING)
  find_package(nlohmann_json REQUIRED)
  find_package(GTest REQUIRED)
  return()
endif()

# A folder that holds these headers alone: beside them lie those of this system.
find_path(nlohmann_folder nlohmann/json.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/include)
file(CREATE_LINK ${nlohmann_folder}/nlohmann ${PROJECT_BINARY_DIR}/include/nlohmann SYMBOLIC)
add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
target_include_directories(nlohmann_json::nlohmann_json
                           INTERFACE ${PROJECT_BINARY_DIR}/include)

set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
set(CMAKE_POLICY_DEFAULT_CMP0077 NEW) # else its options hide the two above
add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
