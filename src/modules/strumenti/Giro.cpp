#include "modules/strumenti/Giro.h"

#include <thread>

#include "modules/core/Fallimento.h"

void strumenti::GiraTutto(const std::function<Result<bool>(std::chrono::microseconds)>& parte,
                          const std::function<void()>& respiro) {
    using Orologio = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds unaParte{15}, unaPausa{20};
    constexpr std::chrono::seconds attesaMassima{30};
    auto fermoDa = Orologio::now();
    for (bool finito = false; !finito;) {
        const Result<bool> esito = parte(unaParte);
        if (esito.status().code() == ErrorCode::FileInUse && Orologio::now() - fermoDa < attesaMassima) {
            std::this_thread::sleep_for(unaPausa);
        } else {
            finito = esigi(esito);
            fermoDa = Orologio::now();
        }
        respiro();
    }
}
