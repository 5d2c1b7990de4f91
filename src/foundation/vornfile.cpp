#define VN_MODULO "vornfile (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/vornfile.h"
#include "foundation/afirma.h"
#include "foundation/lc_fichero_priv.h"

namespace vn {
namespace {

constexpr const vnwchar *SUFIJO_TEMPORAL = VNU("_TM$");
constexpr const vnwchar *SUFIJO_SEGURIDAD = VNU(".bak");
// The safety copy until it takes the name of the one before.
constexpr const vnwchar *SUFIJO_SEGURIDAD_NUEVA = VNU("_BK$");

cadena_ancha con(const vnwchar *nombre, const vnwchar *sufijo) { return cadena_ancha(nombre) + sufijo; }

// An opening that says whether it could be done, and nothing more.
vnerror_fichero prueba_a_abrir(const vnwchar *nombre, uint32_t como) {
    vnid_fichero id = VN_FICHERO_NINGUNO;
    const vnerror_fichero e = con_paciencia(UN_SEGUNDO, [&] { return operaciones().abre(nombre, como, &id); });
    if (e == VN_FICH_BIEN) operaciones().cierra(id);
    return e;
}

// To the disk. What fails is not tried again: the system may then say that all is well of data that are gone.
vnerror_fichero vuelca(const vnwchar *nombre) {
    vnid_fichero id = VN_FICHERO_NINGUNO;
    const vnerror_fichero e =
        con_paciencia(UN_SEGUNDO, [&] { return operaciones().abre(nombre, VN_ABRE_LECTURA | VN_ABRE_ESCRITURA, &id); });
    if (e != VN_FICH_BIEN) return e;
    const vnerror_fichero al_volcar = operaciones().vuelca(id);
    const vnerror_fichero al_cerrar = operaciones().cierra(id);
    return al_volcar != VN_FICH_BIEN ? al_volcar : al_cerrar;
}

vnerror_fichero renombra(const vnwchar *existente, const vnwchar *nuevo) {
    return con_paciencia(UN_SEGUNDO, [&] { return operaciones().renombra(existente, nuevo); });
}

// The file gets a second name, or a copy where that is refused, which then replaces the safety copy in one step: the
// old safety copy is there until the new one is.
vnerror_fichero guarda_copia_de_seguridad(const vnwchar *nombre) {
    const cadena_ancha nueva = con(nombre, SUFIJO_SEGURIDAD_NUEVA);
    operaciones().borra(nueva.c_str());
    vnerror_fichero e = operaciones().enlaza(nombre, nueva.c_str());
    if (e != VN_FICH_BIEN) {
        e = copia_fichero(nombre, nueva.c_str());
        if (e == VN_FICH_BIEN) operaciones().copia_permisos(nombre, nueva.c_str());
    }
    if (e == VN_FICH_BIEN) e = renombra(nueva.c_str(), con(nombre, SUFIJO_SEGURIDAD).c_str());
    // Two names of one file: the rename did nothing, as it should, and left both.
    operaciones().borra(nueva.c_str());
    return e;
}

// The finished temporary, on the disk already, takes the place of `destino`.
vnerror_fichero reemplaza(const vnwchar *destino, const vnwchar *temporal) {
    // Whoever may not write the file, or finds it in the hands of its only writer, does not replace it either.
    vnerror_fichero e = prueba_a_abrir(destino, VN_ABRE_ESCRITURA);
    if (e == VN_FICH_BIEN) {
        operaciones().copia_permisos(destino, temporal);
        e = guarda_copia_de_seguridad(destino);
    } else if (e == VN_FICH_NO_EXISTE) {
        e = VN_FICH_BIEN;
    }
    if (e == VN_FICH_BIEN) e = renombra(temporal, destino);
    if (e != VN_FICH_BIEN) {
        operaciones().borra(temporal);
        return e;
    }
    e = operaciones().vuelca_directorio(destino);
    return e == VN_FICH_NO_ADMITIDO ? VN_FICH_BIEN : e;
}

vnbool informado(vnerror_fichero e, const vnwchar *destino) {
    if (e == VN_FICH_BIEN) return CIERTO;
    informa_que_no_se_escribe(destino);
    return FALSO;
}

} // namespace
} // namespace vn

using namespace vn;

vnbool vornfile_hacer_definitivo_fichero_temporal_y_hacer_copia_seguridad_u(const vnwchar *destino,
                                                                            const vnwchar *temporal) {
    if (!AFIRMA_NO_NULO(destino) || !AFIRMA_NO_NULO(temporal)) return FALSO;
    vnerror_fichero e = vuelca(temporal);
    if (e == VN_FICH_BIEN)
        e = reemplaza(destino, temporal);
    else
        operaciones().borra(temporal);
    return informado(e, destino);
}

vnfichero *vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    return f_lc_fopen_u(con(nombre, SUFIJO_TEMPORAL).c_str(), VNU("wb"), VN_AQUI);
}

vnbool vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(vnfichero *f, const vnwchar *nombre) {
    flujo_abierto mio(f); // closed, whatever comes
    if (!AFIRMA_NO_NULO(f) || !AFIRMA_NO_NULO(nombre)) return FALSO;
    const cadena_ancha temporal = f->nombre;
    const bool ya_informado = f->informado;
    if (lc_fclose_volcando_a_disco(mio.release()) == CIERTO) return informado(reemplaza(nombre, temporal.c_str()), nombre);
    operaciones().borra(temporal.c_str());
    if (!ya_informado) informa_que_no_se_escribe(nombre);
    return FALSO;
}

vnbool vf_copyfile_seguro_u(const vnwchar *origen, const vnwchar *destino) {
    if (!AFIRMA_NO_NULO(origen) || !AFIRMA_NO_NULO(destino)) return FALSO;
    const vnerror_fichero permiso = prueba_a_abrir(destino, VN_ABRE_ESCRITURA);
    if (permiso != VN_FICH_BIEN && permiso != VN_FICH_NO_EXISTE) return FALSO;
    const cadena_ancha temporal = con(destino, SUFIJO_TEMPORAL);
    if (copia_fichero(origen, temporal.c_str()) != VN_FICH_BIEN) return FALSO;
    operaciones().copia_permisos(permiso == VN_FICH_BIEN ? destino : origen, temporal.c_str());
    if (renombra(temporal.c_str(), destino) == VN_FICH_BIEN) {
        operaciones().vuelca_directorio(destino);
        return CIERTO;
    }
    operaciones().borra(temporal.c_str());
    return FALSO;
}

vnbool vf_appendfile_u(const vnwchar *origen, const vnwchar *destino) {
    if (!AFIRMA_NO_NULO(origen) || !AFIRMA_NO_NULO(destino)) return FALSO;
    flujo_abierto de(f_lc_fopen_u(origen, VNU("rb"), VN_AQUI));
    if (de == nullptr) return FALSO;
    flujo_abierto a(f_lc_fopen_u(destino, VNU("ab"), VN_AQUI));
    if (a == nullptr) return FALSO;
    // Only what is there now: the two may be the same file.
    constexpr int64_t TROZO = 16 * 1024;
    unsigned char trozo[TROZO];
    int64_t falta = lc_tamanyo_fichero_i64(de.get());
    while (falta > 0) {
        const auto n = static_cast<size_t>(falta < TROZO ? falta : TROZO);
        if (f_lc_fread(trozo, 1, n, de.get(), VN_AQUI) != n || f_lc_fwrite(trozo, 1, n, a.get(), VN_AQUI) != n)
            return FALSO;
        falta -= static_cast<int64_t>(n);
    }
    return lc_fclose(a.release());
}
