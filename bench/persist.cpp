// Persistence: a million mixed records through the protocol object beside the limit (memcpy and one transfer), stdio
// without its lock and QDataStream; whole arrays beside one block transfer; the tracked heap beside malloc.
// usage: persist [passes]
#include "caminos.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/listas/arr.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "persistence/vornsave.h"
#include "plataforma/stdio_sin_cerrojo.h"
#include <cstdlib>
#include <cstring>
#include <thread>
#ifdef CON_QT
#include <QDataStream>
#include <QFile>
#endif

namespace {

struct registro {
    uint32_t id;
    double d[3];
    uint16_t marcas;
    uint8_t clase;
    int64_t grande;
    char texto[9];
};
constexpr size_t N = 1'000'000, ESCALARES = 7, EMPAQUETADO = 4 + 24 + 2 + 1 + 8, DOBLES = 5'000'000,
                 BLOQUES = 2'000'000;

using bench::debe;

std::vector<registro> datos, leidos;
std::vector<char> empaquetados, hueco;
std::vector<double> dobles, dobles_leidos;
arrDouble *array_dobles = nullptr;
constexpr const char *FICHERO = "bench_persist.bin";
constexpr const vnwchar *FICHERO_U = VNU("bench_persist.bin");

void prepara() {
    bench::azar a(1);
    datos.resize(N);
    leidos.resize(N);
    for (registro &r : datos) {
        r.id = static_cast<uint32_t>(a.siguiente());
        for (double &x : r.d) x = a.entre(-1e5, 1e5);
        r.marcas = static_cast<uint16_t>(a.siguiente());
        r.clase = static_cast<uint8_t>(a.siguiente());
        r.grande = static_cast<int64_t>(a.siguiente());
        for (int k = 0; k < 8; ++k) r.texto[k] = static_cast<char>('A' + a.siguiente() % 26);
        r.texto[8] = 0;
    }
    empaquetados.resize(N * EMPAQUETADO);
    char *p = empaquetados.data();
    const auto mete = [&p](const auto &v) { std::memcpy(p, &v, sizeof v), p += sizeof v; };
    for (const registro &r : datos) mete(r.id), mete(r.d), mete(r.marcas), mete(r.clase), mete(r.grande);
    dobles.resize(DOBLES);
    dobles_leidos.resize(DOBLES);
    for (double &x : dobles) x = a.entre(-1e6, 1e6);
    hueco.resize(std::max(empaquetados.size(), DOBLES * sizeof(double)));
    array_dobles = arr_CreaDouble(static_cast<uint32_t>(DOBLES));
    std::memcpy(arr_GetBufferDouble(array_dobles), dobles.data(), DOBLES * sizeof(double));
}

// ---------------------------------------------------------------- the limit: one copy, one transfer
void limite_escribe(const void *p, size_t n) {
    std::memcpy(hueco.data(), p, n);
    FILE *f = std::fopen(FICHERO, "wb");
    debe(f != nullptr && std::fwrite(hueco.data(), 1, n, f) == n, "write");
    std::fclose(f);
}
void limite_lee(void *p, size_t n) {
    FILE *f = std::fopen(FICHERO, "rb");
    debe(f != nullptr && std::fread(hueco.data(), 1, n, f) == n, "read");
    std::fclose(f);
    std::memcpy(p, hueco.data(), n);
}

// ---------------------------------------------------------------- stdio, one call per field
template <bool CON_TEXTO> void stdio_escribe() {
    FILE *f = std::fopen(FICHERO, "wb");
    std::setvbuf(f, nullptr, _IOFBF, 1 << 16);
    const auto w = [f](const void *p, size_t n) { bench::fwrite_sin_cerrojo(p, n, 1, f); };
    for (const registro &r : datos) {
        w(&r.id, 4), w(&r.d[0], 8), w(&r.d[1], 8), w(&r.d[2], 8), w(&r.marcas, 2), w(&r.clase, 1), w(&r.grande, 8);
        if constexpr (CON_TEXTO) {
            const uint16_t n = 8;
            w(&n, 2), w(r.texto, 8);
        }
    }
    std::fclose(f);
}
template <bool CON_TEXTO> void stdio_lee() {
    FILE *f = std::fopen(FICHERO, "rb");
    std::setvbuf(f, nullptr, _IOFBF, 1 << 16);
    const auto l = [f](void *p, size_t n) { bench::fread_sin_cerrojo(p, n, 1, f); };
    for (registro &r : leidos) {
        l(&r.id, 4), l(&r.d[0], 8), l(&r.d[1], 8), l(&r.d[2], 8), l(&r.marcas, 2), l(&r.clase, 1), l(&r.grande, 8);
        if constexpr (CON_TEXTO) {
            // A reader that owns its texts, as ours does.
            uint16_t n = 0;
            l(&n, 2);
            char *t = static_cast<char *>(std::malloc(n + 1u));
            l(t, n);
            t[n] = 0;
            std::memcpy(r.texto, t, 9);
            std::free(t);
        }
    }
    std::fclose(f);
}

// ---------------------------------------------------------------- ours
class abierto {
  public:
    explicit abierto(const vnwchar *modo) : f_(f_lc_fopen_u(FICHERO_U, modo, VN_AQUI)), s_(vornsave_registra_bin(f_)) {}
    ~abierto() {
        vornsave_libera(&s_);
        lc_fclose(f_);
    }
    vornsave *operator*() const { return s_; }

  private:
    vnfichero *f_;
    vornsave *s_;
};

template <bool CON_TEXTO> void nuestro_escribe() {
    const abierto a(VNU("wb"));
    vornsave *const s = *a;
    for (const registro &r : datos) {
        vornsave_graba_ulong(r.id, s);
        for (const double x : r.d) vornsave_graba_double(x, s);
        vornsave_graba_ushort(r.marcas, s);
        vornsave_graba_uchar(r.clase, s);
        vornsave_graba_long64(r.grande, s);
        if constexpr (CON_TEXTO) vornsave_graba_cadena(r.texto, s);
    }
}
template <bool CON_TEXTO> void nuestro_lee() {
    const abierto a(VNU("rb"));
    vornsave *const s = *a;
    for (registro &r : leidos) {
        r.id = vornsave_lee_ulong(s);
        for (double &x : r.d) x = vornsave_lee_double(s);
        r.marcas = vornsave_lee_ushort(s);
        r.clase = vornsave_lee_uchar(s);
        r.grande = vornsave_lee_long64(s);
        if constexpr (CON_TEXTO) {
            char *t = vornsave_lee_cadena(s);
            std::memcpy(r.texto, t, 9);
            vornstr_destruye(&t);
        }
    }
}
void nuestro_escribe_array() {
    const abierto a(VNU("wb"));
    vornsave_graba_arr_double(array_dobles, *a);
}
void nuestro_lee_array() {
    const abierto a(VNU("rb"));
    arrDouble *leido = vornsave_lee_arr_double(*a);
    arr_DestruyeDouble(&leido);
}
void stdio_escribe_array() {
    FILE *f = std::fopen(FICHERO, "wb");
    std::fwrite(dobles.data(), 8, DOBLES, f);
    std::fclose(f);
}
// Into a new block, as a reader that returns a new array must.
void stdio_lee_array() {
    FILE *f = std::fopen(FICHERO, "rb");
    auto *p = static_cast<double *>(std::malloc(DOBLES * 8));
    debe(std::fread(p, 8, DOBLES, f) == DOBLES, "fread");
    std::free(p);
    std::fclose(f);
}

// ---------------------------------------------------------------- QDataStream
#ifdef CON_QT
void qt_escribe() {
    QFile f(FICHERO);
    f.open(QIODevice::WriteOnly | QIODevice::Truncate);
    QDataStream s(&f);
    s.setByteOrder(QDataStream::LittleEndian);
    for (const registro &r : datos)
        s << r.id << r.d[0] << r.d[1] << r.d[2] << r.marcas << r.clase << static_cast<qint64>(r.grande);
}
void qt_lee() {
    QFile f(FICHERO);
    f.open(QIODevice::ReadOnly);
    QDataStream s(&f);
    s.setByteOrder(QDataStream::LittleEndian);
    for (registro &r : leidos) {
        qint64 g = 0;
        s >> r.id >> r.d[0] >> r.d[1] >> r.d[2] >> r.marcas >> r.clase >> g;
        r.grande = g;
    }
}
#endif

// ---------------------------------------------------------------- the heap
template <class R, class L> void monton(R reserva, L libera) {
    void *p[256] = {};
    bench::azar a(3);
    for (size_t i = 0; i < BLOQUES; ++i) {
        const uint64_t s = a.siguiente();
        void *&q = p[s & 255];
        if (q != nullptr) libera(q), q = nullptr;
        else q = reserva(8 + (s >> 8) % 248);
    }
    for (void *&q : p)
        if (q != nullptr) libera(q);
}
void monton_malloc() {
    monton([](size_t n) { return std::malloc(n); }, [](void *q) { std::free(q); });
}
void monton_vornspy() {
    monton([](size_t n) { return vornspy_malloc(n); }, [](void *q) { vornspy_free_pp(&q, 1); });
}
template <void (*F)()> void en_dos_hebras() {
    std::thread otra(F);
    F();
    otra.join();
}

void comprueba_leidos(bool con_texto) {
    for (size_t i = 0; i < N; ++i) {
        const registro &a = datos[i], &b = leidos[i];
        debe(a.id == b.id && !std::memcmp(a.d, b.d, sizeof a.d) && a.marcas == b.marcas && a.clase == b.clase &&
                 a.grande == b.grande && (!con_texto || !std::strcmp(a.texto, b.texto)),
             "a record read back differs");
    }
    std::fill(leidos.begin(), leidos.end(), registro{});
}

int persistencia(int pasadas) {
    prepara();
    const double escalares = static_cast<double>(N * ESCALARES), con_texto = static_cast<double>(N * (ESCALARES + 1));
    int fuera = 0;
    fuera += bench::mide(
        "one million mixed records, written, per scalar",
        {{"limit: memcpy and one write", escalares, [] { limite_escribe(empaquetados.data(), empaquetados.size()); }},
         {bench::FWRITE, escalares, stdio_escribe<false>},
#ifdef CON_QT
         {"QDataStream", escalares, qt_escribe},
#endif
         {"vornsave", escalares, nuestro_escribe<false>}},
        {{"vornsave", bench::FWRITE, 0.6},
         {"vornsave", "limit: memcpy and one write", 0}
#ifdef CON_QT
         ,
         {"vornsave", "QDataStream", 0}
#endif
        },
        pasadas);
    std::vector<char> molde(empaquetados.size());
    fuera += bench::mide("the same, read",
                         {{"limit: one read and memcpy", escalares, [&] { limite_lee(molde.data(), molde.size()); }},
                          {bench::FREAD, escalares, stdio_lee<false>},
#ifdef CON_QT
                          {"QDataStream", escalares, qt_lee},
#endif
                          {"vornsave", escalares, nuestro_lee<false>}},
                         {{"vornsave", bench::FREAD, 0.6},
                          {"vornsave", "limit: one read and memcpy", 0}
#ifdef CON_QT
                          ,
                          {"vornsave", "QDataStream", 0}
#endif
                         },
                         pasadas);
    comprueba_leidos(false);
    fuera +=
        bench::mide("the same with a text of 8 letters each, written, per value",
                    {{bench::FWRITE, con_texto, stdio_escribe<true>}, {"vornsave", con_texto, nuestro_escribe<true>}},
                    {{"vornsave", bench::FWRITE, 0}}, pasadas);
    fuera += bench::mide("the same with texts, read into owned blocks",
                         {{"fread and malloc", con_texto, stdio_lee<true>}, {"vornsave", con_texto, nuestro_lee<true>}},
                         {{"vornsave", "fread and malloc", 0}}, pasadas);
    comprueba_leidos(true);
    const double nd = static_cast<double>(DOBLES);
    fuera += bench::mide("an array of five million doubles, written, per element",
                         {{"limit: memcpy and one write", nd, [] { limite_escribe(dobles.data(), DOBLES * 8); }},
                          {"one fwrite", nd, stdio_escribe_array},
                          {"vornsave_graba_arr_double", nd, nuestro_escribe_array}},
                         {{"vornsave_graba_arr_double", "one fwrite", 1.15}}, pasadas);
    fuera += bench::mide(
        "the same, read",
        {{"one fread into a new block", nd, stdio_lee_array}, {"vornsave_lee_arr_double", nd, nuestro_lee_array}},
        {{"vornsave_lee_arr_double", "one fread into a new block", 1.15}}, pasadas);
    {
        const abierto a(VNU("rb"));
        arrDouble *leido = vornsave_lee_arr_double(*a);
        debe(std::memcmp(arr_GetBufferDouble(leido), dobles.data(), DOBLES * 8) == 0, "the array read back differs");
        arr_DestruyeDouble(&leido);
    }
    const double nb = static_cast<double>(BLOQUES);
    fuera += bench::mide("allocations and releases, one thread",
                         {{"malloc and free", nb, monton_malloc}, {"vornspy", nb, monton_vornspy}},
                         {{"vornspy", "malloc and free", 2}}, pasadas);
    fuera += bench::mide(
        "allocations and releases, two threads, each",
        {{"malloc and free", nb, en_dos_hebras<monton_malloc>}, {"vornspy", nb, en_dos_hebras<monton_vornspy>}},
        {{"vornspy", "malloc and free", 2}}, pasadas);
    arr_DestruyeDouble(&array_dobles);
    std::remove(FICHERO);
    return fuera;
}

} // namespace

int main(int argc, char **argv) { return bench::programa(argc, argv, {persistencia}); }
