#include "core/Evento.h"

#include <cstdio>
#include <cstdlib>
#include <QString>

#include "core/Prodotto.h"
#include "platform/ui/MessageDialog.h"

namespace {

std::function<void(int)> termineSostituito;
bool fallimentoInMostra = false;

}  // namespace

void TerminaProgramma(int stato) {
    fallimentoInMostra = false;
    if (termineSostituito) {
        termineSostituito(stato);
        throw ProgrammaTerminato{stato};
    }
    std::fflush(nullptr);
    std::_Exit(stato);
}

void sostituisciTermine(std::function<void(int stato)> termine) {
    termineSostituito = std::move(termine);
}

void mostraEtermina(const Fallimento& fallimento) {
    fallimentoInMostra = true;
    ui::MessageDialog::show(
        QStringLiteral("Errore %1:\r\n\r\n%2").arg(QString::number(fallimento.numero()), fallimento.testo()),
        ui::MessageDialog::Stop, prodotto::nome());
    TerminaProgramma();
}

bool accettaEventi() {
    return !fallimentoInMostra;
}
