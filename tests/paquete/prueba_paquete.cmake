# Builds and runs the first host in a tree of its own: out of an installed and moved copy (cmake, pkgconfig), or with the
# library as a part of its project (subproyecto).
# -DARBOL=build tree  -DMODO=cmake|pkgconfig|subproyecto  -DCOMPILADOR=cc  [-DCOMPILADORXX=c++]  [-DCADENA=toolchain]
# [-DEMULADOR=program]
get_filename_component(aqui ${CMAKE_CURRENT_LIST_FILE} DIRECTORY)
set(trabajo ${ARBOL}/paquete_${MODO})
file(REMOVE_RECURSE ${trabajo})
file(MAKE_DIRECTORY ${trabajo})

function(ejecuta)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${trabajo} RESULT_VARIABLE estado OUTPUT_VARIABLE salida ERROR_VARIABLE salida)
  message("${salida}")
  if(NOT estado EQUAL 0)
    message(FATAL_ERROR "${estado}: ${ARGN}")
  endif()
  set(dicho "${salida}" PARENT_SCOPE)
endfunction()

if(MODO STREQUAL "subproyecto")
  set(raiz ${ARBOL})
else()
  ejecuta(${CMAKE_COMMAND} --install ${ARBOL} --prefix ${trabajo}/instalado)
  # A name with a blank: paths must be quoted on the way.
  file(RENAME ${trabajo}/instalado "${trabajo}/otro sitio")
  set(raiz "${trabajo}/otro sitio")
  # No file but a binary's debug data may remember where it was built or installed.
  file(GLOB_RECURSE textos "${raiz}/*.cmake" "${raiz}/*.pc" "${raiz}/*.h")
  foreach(texto ${textos})
    file(STRINGS ${texto} rastros REGEX "paquete_${MODO}|/build/")
    if(rastros)
      message(FATAL_ERROR "${texto} remembers a path: ${rastros}")
    endif()
  endforeach()
endif()
file(GLOB puertas RELATIVE "${raiz}/include" "${raiz}/include/*")
file(GLOB_RECURSE de_mas "${raiz}/include/*_priv.h" "${raiz}/include/*_int.h" "${raiz}/include/*consola.h")
if(de_mas OR NOT puertas STREQUAL "nucleos")
  message(FATAL_ERROR "on the include path of a host: ${puertas}; private headers: ${de_mas}")
endif()

# What the host has besides: headers of its own with the names of ours, first on its include path, and a source that
# includes every one of ours.
file(GLOB_RECURSE cabeceras RELATIVE "${raiz}/include/nucleos" "${raiz}/include/nucleos/*.h")
set(todas "#include \"foundation/tipos.h\"\n#include \"units/convers.h\"\n")
foreach(cabecera foundation/tipos.h ${cabeceras})
  file(WRITE ${trabajo}/suyas/${cabecera} "#define DEL_ANFITRION 1\n")
endforeach()
foreach(cabecera ${cabeceras})
  string(APPEND todas "#include <nucleos/${cabecera}>\n")
endforeach()
file(WRITE ${trabajo}/suyas/todas.c "${todas}const uint32_t del_anfitrion = DEL_ANFITRION + VORNCONF_SU_MKS;\n")

set(programa ${trabajo}/programa/primer_host)
if(MODO STREQUAL "cmake")
  set(opciones -DCMAKE_C_COMPILER=${COMPILADOR})
  if(CADENA)
    # The toolchain looks for packages below the cross compiler's root only.
    set(opciones -DCMAKE_TOOLCHAIN_FILE=${CADENA} "-Dnucleos_DIR=${raiz}/lib/cmake/nucleos")
    set(programa ${programa}.exe)
  endif()
  ejecuta(${CMAKE_COMMAND} -G Ninja -S ${aqui} -B ${trabajo}/programa ${opciones} -DSUYAS=${trabajo}/suyas
    "-DCMAKE_PREFIX_PATH=${raiz}")
  ejecuta(${CMAKE_COMMAND} --build ${trabajo}/programa)
  if(CADENA)
    file(GLOB bibliotecas "${raiz}/bin/*.dll")
    file(COPY ${bibliotecas} DESTINATION ${trabajo}/programa)
  endif()
elseif(MODO STREQUAL "subproyecto")
  get_filename_component(arbol ${aqui}/../.. ABSOLUTE)
  set(opciones -DCMAKE_C_COMPILER=${COMPILADOR} -DCMAKE_CXX_COMPILER=${COMPILADORXX} -DSUYAS=${trabajo}/suyas -DNUCLEOS=${arbol})
  ejecuta(${CMAKE_COMMAND} -G Ninja -S ${aqui} -B ${trabajo}/configurado ${opciones} -DMANERA=add_subdirectory)
  # Built as the preset is, and as deep below src/, so that the compiler cache has it.
  set(programa ${ARBOL}-subproyecto/primer_host)
  file(REMOVE_RECURSE ${ARBOL}-subproyecto)
  ejecuta(${CMAKE_COMMAND} -G Ninja -S ${aqui} -B ${ARBOL}-subproyecto ${opciones} -DMANERA=fetchcontent
    -DCMAKE_C_COMPILER_LAUNCHER=${arbol}/tools/compila -DCMAKE_CXX_COMPILER_LAUNCHER=${arbol}/tools/compila
    -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS_RELEASE=-O2 -g" -DNUCLEOS_AVISOS_SON_ERRORES=ON)
  ejecuta(${CMAKE_COMMAND} --build ${ARBOL}-subproyecto)
else()
  file(GLOB_RECURSE pc "${raiz}/nucleos.pc")
  get_filename_component(pc "${pc}" DIRECTORY)
  file(MAKE_DIRECTORY ${trabajo}/programa)
  # pkg-config escapes the blank for a shell: a shell reads it.
  file(WRITE ${trabajo}/construye.sh "set -e\nexport PKG_CONFIG_PATH='${pc}'\n"
    "pkg-config --modversion nucleos\n"
    "eval \"set -- $(pkg-config --cflags --libs nucleos) -Wl,-rpath,$(pkg-config --variable=libdir nucleos)\"\n"
    "'${COMPILADOR}' -std=c11 -Wall -Wextra -Wpedantic -Werror -Isuyas '${aqui}/primer_host.c' suyas/todas.c -o '${programa}' \"$@\"\n")
  ejecuta(sh ${trabajo}/construye.sh)
endif()
ejecuta(${EMULADOR} ${programa})
# One fault is reported on purpose, and every module in use gives back what it took.
if(NOT dicho MATCHES "vigas: dintel, 6.5 m, 21'-3 [^\n]*\"" OR NOT dicho MATCHES "vornsave \\(NUCLEOS.DLL\\), [0-9]+: "
    OR dicho MATCHES "sin liberar")
  message(FATAL_ERROR "the first host says otherwise")
endif()
