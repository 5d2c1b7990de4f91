# One warning set, one floating point, one standard for every target of the tree.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
if(PROJECT_IS_TOP_LEVEL)
  if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
  endif()
  set(depuracion " -g")
  if(WIN32) # debug sections of a PE file would be shipped with it
    set(depuracion)
  endif()
  foreach(lenguaje C CXX)
    # NDEBUG changes nothing here: the checks of the library stay in.
    set(CMAKE_${lenguaje}_FLAGS_RELEASE "-O2${depuracion}")
    set(CMAKE_${lenguaje}_FLAGS_RELWITHDEBINFO "-O1 -g")
  endforeach()
endif()

set(errores)
if(NUCLEOS_AVISOS_SON_ERRORES)
  set(errores -Werror)
endif()
add_library(nucleos_opciones INTERFACE)
# -ffp-contract=off: the same bits on both platforms.
target_compile_options(nucleos_opciones INTERFACE -ffp-contract=off -Wall -Wextra -Wpedantic ${errores} -Wshadow
  -Wconversion -Wno-sign-conversion -Wno-missing-field-initializers
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
  $<$<CXX_COMPILER_ID:GNU>:-Wmissing-declarations -Wno-psabi>
  $<$<CXX_COMPILER_ID:Clang>:-Wmissing-prototypes -Wno-gnu-zero-variadic-macro-arguments -Wno-unused-private-field>)
if(WIN32)
  target_compile_definitions(nucleos_opciones INTERFACE UNICODE _UNICODE _WIN32_WINNT=0x0A00 WIN32_LEAN_AND_MEAN NOMINMAX)
  target_link_options(nucleos_opciones INTERFACE -static)
  set(VN_PLATAFORMA win32)
else()
  target_compile_definitions(nucleos_opciones INTERFACE _FILE_OFFSET_BITS=64)
  set(VN_PLATAFORMA posix)
endif()
if(NUCLEOS_SANITIZA)
  # Not `function`: typed wrappers cast call-backs to the general type that the exported operation calls.
  target_compile_options(nucleos_opciones INTERFACE -fsanitize=${NUCLEOS_SANITIZA} -fno-sanitize=function -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(nucleos_opciones INTERFACE -fsanitize=${NUCLEOS_SANITIZA})
  if(NUCLEOS_FUZZ)
    target_compile_options(nucleos_opciones INTERFACE -fsanitize=fuzzer-no-link)
  endif()
endif()
