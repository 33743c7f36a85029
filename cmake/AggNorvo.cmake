# Settings that every target shares, and the three kinds of target there are: a layer, a program, a test.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()
# Lines and function names for traces; the variables of a debugger cost a third of the compilation (preset sanitize
# has them).
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1 -DNDEBUG")

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Clones side by side share what they compiled.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_NOHASHDIR=1 ${CCACHE})
endif()

# Several files of a folder are compiled as one: what they all include is most of the work. Names that a file keeps to
# itself are therefore its folder's names too.
option(AGGNORVO_UNITY "Compile files of a folder together" ON)
set(CMAKE_UNITY_BUILD ${AGGNORVO_UNITY})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)

# A function a section: programs drop those that nothing calls, and tools/unused names them.
add_compile_options(-ffunction-sections)
add_link_options(-Wl,--gc-sections)

# tools/rules compiles every header of a layer alone.
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

option(AGGNORVO_WERROR "Treat warnings as errors" ON)
add_library(aggnorvo_options INTERFACE)
target_compile_options(aggnorvo_options INTERFACE -Wall -Wextra -Wpedantic
  # A name that another file of the same unit keeps to itself is not hidden by a local one, nor is its type another's.
  $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow> $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>
  $<$<BOOL:${AGGNORVO_WERROR}>:-Werror>)
target_include_directories(aggnorvo_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

# layer(NAME [DEPENDENCY...] [FOLDERS folder...]): every .cpp and .h of the current folder, and of these folders in it,
# as library NAME.
function(layer name)
  cmake_parse_arguments(PARSE_ARGV 1 L "" "" "FOLDERS")
  set(patterns *.cpp)
  set(header_patterns *.h)
  foreach(folder ${L_FOLDERS})
    list(APPEND patterns ${folder}/*.cpp)
    list(APPEND header_patterns ${folder}/*.h)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  file(GLOB headers CONFIGURE_DEPENDS ${header_patterns})
  add_library(${name} STATIC ${sources})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${headers})
  target_link_libraries(${name} PUBLIC ${L_UNPARSED_ARGUMENTS} PRIVATE aggnorvo_options)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
endfunction()

# program(NAME SOURCES file... LIBRARIES library...)
function(program name)
  cmake_parse_arguments(PARSE_ARGV 1 P "" "" "SOURCES;LIBRARIES")
  add_executable(${name} ${P_SOURCES})
  target_link_libraries(${name} PRIVATE ${P_LIBRARIES} aggnorvo_options)
endfunction()

# test_binary(NAME library...): every .cpp of the current folder as one GoogleTest binary. A test's own code runs once,
# so compiling it quickly is worth more than running it quickly.
function(test_binary name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARGN} GTest::gtest GTest::gmock GTest::gtest_main aggnorvo_options)
  target_compile_options(${name} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O0>)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
endfunction()
