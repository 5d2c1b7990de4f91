# What a host may include: <nucleos/...>, out of one folder that has nothing else in it.

# The public headers, in their tree. They are found and not listed, since the name alone tells what is public: all but
# _priv.h (of a folder), _int.h (of the library) and the platform's own. Of the tables (.inl) those that a public header
# includes.
set(fuentes ${PROJECT_SOURCE_DIR}/src)
file(GLOB_RECURSE VN_CABECERAS RELATIVE ${fuentes} CONFIGURE_DEPENDS ${fuentes}/*.h)
list(FILTER VN_CABECERAS EXCLUDE REGEX "_(priv|int)\\.h$|^foundation/platform/")
list(APPEND VN_CABECERAS foundation/platform/plataforma.h)
list(SORT VN_CABECERAS)
set(VN_TABLAS)
foreach(cabecera ${VN_CABECERAS})
  file(STRINGS ${fuentes}/${cabecera} incluidas REGEX "^#include \".*\\.inl\"")
  get_filename_component(carpeta ${cabecera} DIRECTORY)
  list(TRANSFORM incluidas REPLACE "^#include \"(.*)\".*" "${carpeta}/\\1")
  list(APPEND VN_TABLAS ${incluidas})
endforeach()
list(REMOVE_DUPLICATES VN_TABLAS)
# For hosts in C++ alone.
file(GLOB_RECURSE VN_CABECERAS_CXX RELATIVE ${fuentes} CONFIGURE_DEPENDS ${fuentes}/*.hpp)
# The lists for the checks of the tree and the sweep of arguments.
foreach(lista VN_CABECERAS VN_CABECERAS_CXX)
  list(JOIN ${lista} "\n" texto)
  string(REPLACE VN_CABECERAS cabeceras_publicas nombre ${lista})
  string(TOLOWER ${nombre} nombre)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/${nombre}.txt CONTENT "@texto@\n" @ONLY)
endforeach()

# In the build tree each is a line that includes the one in src/, so that an edit is seen at once and nothing is read twice.
# The way there is relative, for the compiler cache, and between real places, since `..` of a link leads elsewhere.
set(puertas ${PROJECT_BINARY_DIR}/include/nucleos)
file(MAKE_DIRECTORY ${puertas})
file(REAL_PATH ${puertas} puertas)
file(REAL_PATH ${fuentes} fuentes)
file(GLOB_RECURSE sobran RELATIVE ${puertas} ${puertas}/*)
foreach(cabecera ${VN_CABECERAS} ${VN_CABECERAS_CXX} ${VN_TABLAS})
  list(REMOVE_ITEM sobran ${cabecera})
  get_filename_component(carpeta ${cabecera} DIRECTORY)
  file(RELATIVE_PATH camino ${puertas}/${carpeta} ${fuentes}/${cabecera})
  file(CONFIGURE OUTPUT ${puertas}/${cabecera} CONTENT "#include \"@camino@\"\n" @ONLY)
endforeach()
foreach(cabecera ${sobran}) # of a header that is no longer there
  file(REMOVE ${puertas}/${cabecera})
endforeach()
