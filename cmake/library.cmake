# The library: KAVORATB1C.dll with its type library, or libKAVORATB1C.so.

file(GLOB kav_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/src/*/*.cpp ${PROJECT_SOURCE_DIR}/src/bridge/generated/*.cpp)
if(WIN32)
  list(FILTER kav_sources EXCLUDE REGEX "/ole_standin\\.cpp$")
endif()

set(kav_generated ${PROJECT_SOURCE_DIR}/src/bridge/generated)

add_library(KAVORATB1C SHARED ${kav_sources})
target_link_libraries(KAVORATB1C PRIVATE kav_compile)
target_include_directories(KAVORATB1C INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_definitions(KAVORATB1C PRIVATE KAV_BUILDING)
set_target_properties(KAVORATB1C PROPERTIES
  CXX_VISIBILITY_PRESET hidden
  RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin
  LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

if(WIN32)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(kav_bits 32)
    set(kav_harden -Wl,--dynamicbase,--nxcompat,--large-address-aware)
  else()
    set(kav_bits 64)
    set(kav_harden -Wl,--dynamicbase,--nxcompat,--high-entropy-va)
  endif()
  set(kav_typelib ${PROJECT_BINARY_DIR}/KAVORATB1C.tlb)
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  add_custom_command(OUTPUT ${kav_typelib}
    COMMAND ${KAV_WIDL} -m${kav_bits} -t -o ${kav_typelib} ${PROJECT_SOURCE_DIR}/src/bridge/KAVORATB1C.idl
    COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/catalogue.py stamp ${kav_typelib}
    DEPENDS ${PROJECT_SOURCE_DIR}/src/bridge/KAVORATB1C.idl ${PROJECT_SOURCE_DIR}/tools/catalogue.py
    COMMENT "Compiling the type library")

  enable_language(RC)
  configure_file(${PROJECT_SOURCE_DIR}/src/bridge/KAVORATB1C.rc.in ${PROJECT_BINARY_DIR}/KAVORATB1C.rc @ONLY)
  target_sources(KAVORATB1C PRIVATE ${PROJECT_BINARY_DIR}/KAVORATB1C.rc)
  set_source_files_properties(${PROJECT_BINARY_DIR}/KAVORATB1C.rc PROPERTIES
    OBJECT_DEPENDS ${kav_typelib}
    INCLUDE_DIRECTORIES ${PROJECT_BINARY_DIR})

  set(kav_exports ${kav_generated}/KAVORATB1C.win${kav_bits}.def)
  target_sources(KAVORATB1C PRIVATE ${kav_exports})
  target_link_libraries(KAVORATB1C PRIVATE oleaut32)
  target_link_options(KAVORATB1C PRIVATE ${kav_harden} $<$<CONFIG:Release>:-s>)
  set_target_properties(KAVORATB1C PROPERTIES PREFIX "")
else()
  set(kav_exports ${kav_generated}/KAVORATB1C.map)
  target_link_options(KAVORATB1C PRIVATE -Wl,--version-script=${kav_exports} -Wl,--no-undefined)
endif()
set_property(TARGET KAVORATB1C APPEND PROPERTY LINK_DEPENDS ${kav_exports})
