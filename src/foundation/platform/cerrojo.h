// The lock between programs that a named mutex stands on.
#pragma once

#include <cstdint>
#include <string>

namespace vn::plat {

// The lock of a name, not taken. Taken and freed by the same thread, once each in turn; a process that dies
// frees it.
class cerrojo {
  public:
    enum class toma { bien, abandonado, no };

    // Of letters, digits, '_', '-', '.', '%' and '~', at most 128.
    explicit cerrojo(std::string nombre) : nombre_(std::move(nombre)) {}
    ~cerrojo();
    cerrojo(const cerrojo &) = delete;
    cerrojo &operator=(const cerrojo &) = delete;

    // Waits at most so long. `abandonado`: taken, and whoever had it last died with it.
    toma entra(uint32_t milisegundos);
    void sal();

  private:
    bool abre();

    std::string nombre_;
    intptr_t id_ = -1;
};

} // namespace vn::plat
