# vn_exporta(TARGET LIST): exports from a shared library exactly the names of a text file, one a line.
# The version script and the .def file are made out of the list; everything else is hidden.
function(vn_exporta objetivo lista)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${lista})
  file(STRINGS ${lista} nombres REGEX "^[A-Za-z_]")
  if(WIN32)
    set(salida ${CMAKE_CURRENT_BINARY_DIR}/${objetivo}.def)
    list(JOIN nombres "\n  " texto)
    file(CONFIGURE OUTPUT ${salida} CONTENT "EXPORTS\n  @texto@\n" @ONLY)
    target_sources(${objetivo} PRIVATE ${salida})
  else()
    set(salida ${CMAKE_CURRENT_BINARY_DIR}/${objetivo}.map)
    string(TOUPPER ${objetivo} raiz)
    list(JOIN nombres ";\n    " texto)
    file(CONFIGURE OUTPUT ${salida} CONTENT "@raiz@_0 {\n  global:\n    @texto@;\n  local: *;\n};\n" @ONLY)
    # A registered exit cleaner is code of the library: it stays mapped until the process ends. The library calls its own
    # operations directly: one per value is written or read.
    target_link_options(${objetivo} PRIVATE -Wl,--version-script=${salida} -Wl,-z,nodelete -Wl,-Bsymbolic-functions)
    set_property(TARGET ${objetivo} APPEND PROPERTY LINK_DEPENDS ${salida})
  endif()
endfunction()
