// A function of the host's with its datum, changed and read as one from any thread.
#pragma once

#include <atomic>
#include <cstdint>

namespace vn::inline suelo {

template <class F> class par_atomico {
  public:
    struct par {
        F funcion;
        void *datos;
    };

    void pon(F funcion, void *datos) {
        // Odd while a pair is half changed; one who changes waits for another.
        uint32_t s = serie_.load(std::memory_order_relaxed) & ~1u;
        while (!serie_.compare_exchange_weak(s, s + 1, std::memory_order_acquire, std::memory_order_relaxed)) s &= ~1u;
        funcion_.store(funcion, std::memory_order_release);
        datos_.store(datos, std::memory_order_release);
        serie_.store(s + 2, std::memory_order_release);
    }
    // Both as they were at one moment. Takes no lock and allocates nothing.
    par dame() const {
        for (;;) {
            const uint32_t s = serie_.load(std::memory_order_acquire);
            const par p = {funcion_.load(std::memory_order_acquire), datos_.load(std::memory_order_acquire)};
            if (p.funcion == nullptr) return {nullptr, nullptr};
            if ((s & 1) == 0 && serie_.load(std::memory_order_relaxed) == s) return p;
        }
    }

  private:
    std::atomic<uint32_t> serie_{0};
    std::atomic<F> funcion_{nullptr};
    std::atomic<void *> datos_{nullptr};
};

} // namespace vn::suelo
