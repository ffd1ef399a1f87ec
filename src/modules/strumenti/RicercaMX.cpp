// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/RicercaMX.h"

#include <algorithm>
#include <utility>

#include "modules/send/MotivoMX.h"
#include "platform/mail/DomainName.h"
#include "platform/text/Words.h"

ServerMX ServerDi(const dns::Answer& risposta) {
    switch (risposta.kind) {
        case dns::Answer::Kind::Failure:
            return {{},
                    Words::tr("Ricerca del server di posta non riuscita: %1. Riprovare più tardi.")
                        .arg(risposta.why)};
        case dns::Answer::Kind::NoName:
            return {{}, TestoMotivo(MotivoMX::Inesistente)};
        case dns::Answer::Kind::NoRecords:
            return {{}, TestoMotivo(MotivoMX::Vuota)};
        case dns::Answer::Kind::Records:
            break;
    }
    const auto primo =
        std::ranges::min_element(risposta.exchangers, std::ranges::less(), &dns::Exchanger::preference);
    if (primo == risposta.exchangers.end()) return {{}, TestoMotivo(MotivoMX::Vuota)};
    if (primo->host.isEmpty()) return {{}, TestoMotivo(MotivoMX::SenzaPosta)};
    return {QString::fromLatin1(primo->host), {}};
}

void RicercaMX::Avvia(const QByteArray& dominio, Fine fine) {
    Annulla();
    if (!mail::isDomainName(dominio)) return fine({{}, TestoMotivo(MotivoMX::NonValido)});
    resolver = std::make_unique<dns::Resolver>();
    resolver->ask({dominio.toLower(), dns::Type::Mx}, [this, fine = std::move(fine)](const auto& risposta) {
        const ServerMX trovato = ServerDi(risposta);
        Annulla();
        fine(trovato);
    });
}

void RicercaMX::Annulla() {
    resolver.reset();
}
