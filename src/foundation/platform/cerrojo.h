// The lock between programs that a named mutex stands on.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace vn::plat {

// The lock of a name, not taken. Taken and freed by the same thread, once each in turn; a process that dies
// frees it. Who waits longest has it next.
class cerrojo {
  public:
    enum class toma { bien, abandonado, no };

    // Of letters, digits, '_', '-', '.', '%' and '~', at most 128.
    explicit cerrojo(std::string nombre) : nombre_(std::move(nombre)) {}
    ~cerrojo() { olvida(); }
    cerrojo(const cerrojo &) = delete;
    cerrojo &operator=(const cerrojo &) = delete;

    // Waits at most so long. `abandonado`: taken, and whoever had it last died with it.
    toma entra(uint32_t milisegundos);
    void sal();
    // Closes what this process has of it, without freeing what another process of its family holds.
    void olvida();
    // Once entered: whether only the programs of this user share it, as what the machine shares was refused.
    bool es_de_un_usuario() const { return es_de_un_usuario_; }

  private:
    bool abre();

    std::string nombre_;
    intptr_t id_ = -1;
    bool es_de_un_usuario_ = false;
};

// Calls the first before this process splits in two, the second then in the parent and the third in the child. Where
// no process splits, none.
void al_bifurcarse(void (*antes)(), void (*en_el_padre)(), void (*en_el_hijo)());

} // namespace vn::plat
