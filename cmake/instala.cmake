# What a host gets: headers, libraries, a CMake package and a pkg-config file, all of which survive being moved.
include(CMakePackageConfigHelpers)

foreach(cabecera ${VN_CABECERAS} ${VN_CABECERAS_CXX} ${VN_TABLAS})
  get_filename_component(carpeta ${cabecera} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/src/${cabecera} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/nucleos/${carpeta})
endforeach()

set_target_properties(nucleos nucleos_foundation PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS nucleos nucleos_foundation EXPORT nucleosTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
set(paquete ${CMAKE_INSTALL_LIBDIR}/cmake/nucleos)
install(EXPORT nucleosTargets NAMESPACE nucleos:: DESTINATION ${paquete})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/nucleosConfig.cmake.in
  ${PROJECT_BINARY_DIR}/nucleosConfig.cmake INSTALL_DESTINATION ${paquete})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/nucleosConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/nucleosConfig.cmake ${PROJECT_BINARY_DIR}/nucleosConfigVersion.cmake DESTINATION ${paquete})

file(RELATIVE_PATH VN_PC_PREFIJO /x/${CMAKE_INSTALL_LIBDIR}/pkgconfig /x)
string(REGEX REPLACE "/$" "" VN_PC_PREFIJO "${VN_PC_PREFIJO}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/nucleos.pc.in ${PROJECT_BINARY_DIR}/nucleos.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/nucleos.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
