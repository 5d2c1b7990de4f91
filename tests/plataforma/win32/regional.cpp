#include "plataforma/regional.h"
#include "foundation/sistema/vnregional.h"
#include <map>
#include <string>
#include <windows.h>

namespace vn {
namespace {

constexpr LCTYPE DE_NUMEROS[] = {LOCALE_SLIST,         LOCALE_SDECIMAL,   LOCALE_STHOUSAND, LOCALE_SGROUPING,
                                 LOCALE_SNEGATIVESIGN, LOCALE_INEGNUMBER, LOCALE_IDIGITS,   LOCALE_ILZERO};
constexpr LCTYPE DE_FECHAS[] = {LOCALE_SSHORTDATE, LOCALE_SLONGDATE, LOCALE_STIMEFORMAT,
                                LOCALE_SSHORTTIME, LOCALE_S1159,     LOCALE_S2359};

std::wstring dato(const wchar_t *region, LCTYPE que) {
    wchar_t sitio[160] = L"";
    GetLocaleInfoEx(region, que, sitio, 160);
    return sitio;
}

} // namespace

struct region_del_usuario::interior {
    std::map<LCTYPE, std::wstring> antes;

    void pon(LCTYPE que, const char *region) {
        antes[que] = dato(LOCALE_NAME_USER_DEFAULT, que);
        const std::string n = region;
        SetLocaleInfoW(LOCALE_USER_DEFAULT, que, dato(std::wstring(n.begin(), n.end()).c_str(), que).c_str());
    }
};

region_del_usuario::region_del_usuario(const char *numeros, const char *fechas)
    : interior_(std::make_unique<interior>()) {
    for (const LCTYPE que : DE_NUMEROS) interior_->pon(que, numeros);
    for (const LCTYPE que : DE_FECHAS) interior_->pon(que, fechas);
}

bool region_del_usuario::un_separador_para_todo() {
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, dato(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL).c_str());
    vnregional_establece(nullptr);
    return true;
}

region_del_usuario::~region_del_usuario() {
    for (const auto &[que, valor] : interior_->antes) SetLocaleInfoW(LOCALE_USER_DEFAULT, que, valor.c_str());
    vnregional_establece(nullptr);
}

} // namespace vn
