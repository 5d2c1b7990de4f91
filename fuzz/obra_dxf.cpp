// Drawings: whatever the file holds, it is read or refused, and what it costs is in proportion to its bytes.
#include "dxf.h"
#include "monton.h"
#include "objetivo.h"
#include <cstring>

namespace {

void lee() {
    obra::plano p;
    obra::noticias_dxf n;
    const uint64_t antes = fuzz::pedido_al_monton();
    const bool bien = obra::lee_dxf(fuzz::NOMBRE, p, n) == obra::lectura_dxf::bien;
    // Vectors grow by doubling, and a drawing is there twice.
    fuzz::exige(fuzz::pedido_al_monton() - antes <= 4 * obra::maximo_de_memoria(n.bytes),
                "memory in proportion to the file");
    fuzz::exige(n.visitadas <= obra::maximo_de_visitas(n.bytes), "entities in proportion to the file");
    fuzz::exige(bien || p.capas.empty(), "nothing of what was refused");
    for (const obra::capa &c : p.capas) {
        fuzz::exige(c.lineas.size() == c.color_lineas.size() && c.elipses.size() == c.color_elipses.size() &&
                        c.rotulos.size() == c.color_rotulos.size(),
                    "each has its colour");
        for (const auto &q : c.polilineas)
            fuzz::exige(!q.vertices.empty() && q.vertices.size() == q.curvaturas.size(), "each vertex has its bulge");
    }
    fuzz::exige(fuzz::informes() == 0, "no report");
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    return {"0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1021\n9\n$INSUNITS\n70\n21\n0\nENDSEC\n"
            "0\nSECTION\n2\nTABLES\n0\nLAYER\n2\nA\n62\n-3\n0\nENDSEC\n"
            "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n10\n1\n0\nLINE\n8\n0\n11\n3\n"
            "0\nLWPOLYLINE\n90\n2\n10\n0\n20\n0\n42\n1\n10\n2\n20\n1\n0\nHATCH\n0\nENDBLK\n0\nENDSEC\n"
            "0\nSECTION\n2\nENTITIES\n0\nINSERT\n2\nb\n41\n2\n70\n2\n71\n3\n44\n1\n0\nENDSEC\n0\nEOF\n",
            "0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nARC\r\n40\r\n1\r\n50\r\n0\r\n51\r\n90\r\n230\r\n-1\r\n"
            "0\r\nELLIPSE\r\n11\r\n1\r\n40\r\n.5\r\n0\r\nPOLYLINE\r\n70\r\n1\r\n0\r\nVERTEX\r\n10\r\n1\r\n42\r\n1e9\r\n"
            "0\r\nSEQEND\r\n0\r\nTEXT\r\n1\r\n%%c\\U+00B1^J%%216\\M+182A0\r\n"
            "0\r\nMTEXT\r\n3\r\n{\\H2x;\\S1^2;\\C1x}\r\n1\r\n\\~\r\n101\r\n\r\n10\r\n9\r\n0\r\nEOF\r\n"};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    fuzz::con_fichero(datos, n, fuzz::cota(n), lee);
    return 0;
}
