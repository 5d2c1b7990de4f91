# What a host gets: headers, libraries, a CMake package and a pkg-config file, all of which survive being moved.
include(CMakePackageConfigHelpers)

# The public headers, in their tree: all but _priv.h (of a folder), _int.h (of the library) and the platform's own. Of the
# tables (.inl) those that a public header includes.
set(VN_FUENTES ${CMAKE_CURRENT_SOURCE_DIR}/src)
file(GLOB_RECURSE VN_CABECERAS RELATIVE ${VN_FUENTES} CONFIGURE_DEPENDS ${VN_FUENTES}/*.h)
list(FILTER VN_CABECERAS EXCLUDE REGEX "_(priv|int)\\.h$|^foundation/platform/")
list(APPEND VN_CABECERAS foundation/platform/plataforma.h)
list(SORT VN_CABECERAS)
set(tablas)
foreach(cabecera ${VN_CABECERAS})
  file(STRINGS ${VN_FUENTES}/${cabecera} incluidas REGEX "^#include \".*\\.inl\"")
  get_filename_component(carpeta ${cabecera} DIRECTORY)
  list(TRANSFORM incluidas REPLACE "^#include \"(.*)\".*" "${carpeta}/\\1")
  list(APPEND tablas ${incluidas})
endforeach()
list(REMOVE_DUPLICATES tablas)
# The list for the checks of the tree and the sweep of arguments.
list(JOIN VN_CABECERAS "\n" texto)
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/cabeceras_publicas.txt CONTENT "@texto@\n" @ONLY)

foreach(cabecera ${VN_CABECERAS} ${tablas})
  get_filename_component(carpeta ${cabecera} DIRECTORY)
  install(FILES ${VN_FUENTES}/${cabecera} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/nucleos/${carpeta})
endforeach()

set_target_properties(nucleos nucleos_foundation PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS nucleos nucleos_foundation EXPORT nucleosTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
set(paquete ${CMAKE_INSTALL_LIBDIR}/cmake/nucleos)
install(EXPORT nucleosTargets NAMESPACE nucleos:: DESTINATION ${paquete})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/nucleosConfig.cmake.in
  ${CMAKE_BINARY_DIR}/nucleosConfig.cmake INSTALL_DESTINATION ${paquete})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/nucleosConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/nucleosConfig.cmake ${CMAKE_BINARY_DIR}/nucleosConfigVersion.cmake DESTINATION ${paquete})

file(RELATIVE_PATH VN_PC_PREFIJO /x/${CMAKE_INSTALL_LIBDIR}/pkgconfig /x)
string(REGEX REPLACE "/$" "" VN_PC_PREFIJO "${VN_PC_PREFIJO}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/nucleos.pc.in ${CMAKE_BINARY_DIR}/nucleos.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/nucleos.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
