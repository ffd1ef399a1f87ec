#include "modules/strumenti/Giro.h"

#include <thread>

#include "modules/core/Fallimento.h"

void strumenti::GiraTutto(const std::function<Result<bool>(std::chrono::microseconds)>& parte,
                          const std::function<void()>& respiro) {
    using namespace std::chrono_literals;
    using Orologio = std::chrono::steady_clock;
    constexpr auto attesaMassima = 30s;
    auto fermoDa = Orologio::now();
    for (bool finito = false; !finito;) {
        const Result<bool> esito = parte(15ms);
        if (esito.status().code() == ErrorCode::FileInUse && Orologio::now() - fermoDa < attesaMassima) {
            std::this_thread::sleep_for(20ms);
        } else {
            finito = esigi(esito);
            fermoDa = Orologio::now();
        }
        respiro();
    }
}
