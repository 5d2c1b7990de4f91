// The regional settings of the user that runs the test, set to those of a region while it lives.
#pragma once

#include <memory>

namespace vn {

class region_del_usuario {
  public:
    // Names as "es-ES": of the region of numbers, and of that of dates and times.
    region_del_usuario(const char *numeros, const char *fechas);
    ~region_del_usuario();
    // Makes the thousands separator that of decimals, as a user may; false where only regions can be chosen.
    static bool un_separador_para_todo();
    region_del_usuario(const region_del_usuario &) = delete;
    region_del_usuario &operator=(const region_del_usuario &) = delete;

  private:
    struct interior;
    std::unique_ptr<interior> interior_;
};

} // namespace vn
