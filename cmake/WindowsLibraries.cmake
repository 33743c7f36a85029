# What the Windows build takes from this machine: libraries that are headers alone, and the header of SQLite. The
# engine compiles against it; programs link once AGGNORVO_WINDOWS_SQLITE names a libsqlite3.a for Windows.
set(AGGNORVO_WINDOWS_SQLITE "" CACHE FILEPATH "SQLite's library for Windows; without it no program is linked")

# A folder of their own: the rest of /usr/include describes another system.
set(host_headers ${CMAKE_BINARY_DIR}/host-include)
file(MAKE_DIRECTORY ${host_headers})
foreach(header SimpleIni.h sqlite3.h nlohmann)
  if(NOT EXISTS /usr/include/${header})
    message(FATAL_ERROR "/usr/include/${header} is missing: install tools/packages.txt")
  endif()
  file(CREATE_LINK /usr/include/${header} ${host_headers}/${header} SYMBOLIC)
endforeach()

target_include_directories(aggnorvo_options SYSTEM INTERFACE ${host_headers})
target_compile_definitions(aggnorvo_options INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)

add_library(SQLite::SQLite3 INTERFACE IMPORTED)
target_link_libraries(SQLite::SQLite3 INTERFACE ${AGGNORVO_WINDOWS_SQLITE})
add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)
