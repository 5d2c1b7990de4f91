#include "plataforma/regional.h"
#include "foundation/sistema/vnregional.h"
#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>

namespace vn {

struct region_del_usuario::interior {
    std::map<std::string, std::optional<std::string>> antes;

    void pon(const char *variable, const char *region) {
        const char *hay = std::getenv(variable);
        antes[variable] = hay != nullptr ? std::optional<std::string>(hay) : std::nullopt;
        std::string valor = region + std::string(*region != 0 ? ".UTF-8" : "");
        std::replace(valor.begin(), valor.end(), '-', '_');
        ::setenv(variable, valor.c_str(), 1);
    }
};

// LANG is another's, and an empty LC_ALL is none.
region_del_usuario::region_del_usuario(const char *numeros, const char *fechas)
    : interior_(std::make_unique<interior>()) {
    interior_->pon("LC_ALL", "");
    interior_->pon("LC_NUMERIC", numeros);
    interior_->pon("LC_TIME", fechas);
    interior_->pon("LANG", "ja-JP");
}

bool region_del_usuario::un_separador_para_todo() { return false; }

region_del_usuario::~region_del_usuario() {
    for (const auto &[variable, valor] : interior_->antes)
        if (valor) ::setenv(variable.c_str(), valor->c_str(), 1);
        else ::unsetenv(variable.c_str());
    vnregional_establece(nullptr);
}

} // namespace vn
