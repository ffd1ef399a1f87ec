// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QTimer>
#include <vector>

#include "modules/strumenti/DominioMittente.h"
#include "modules/strumenti/ProvaServer.h"
#include "platform/dns/Resolver.h"

/// The check of a sender: its domain in the real DNS, and the account's server. Everything lives on the event
/// loop; each line is reported when it is known.
class ControlloMittente {
  public:
    struct Ascolto {
        std::function<void(int riga)> cambiata;
        std::function<void()> finito;  ///< every line is known
    };

    /// `attesaDns`, in milliseconds, is for all answers of the DNS.
    explicit ControlloMittente(Ascolto ascolto, int attesaDns = 60000);

    /// Starts again. `password` is from portachiavi::PasswordDi(). An account without a valid address has
    /// one line that says so.
    void Avvia(const Account& account, const QString& password);
    /// Nothing more is reported; the lines are kept.
    void Annulla();
    bool InCorso() const { return mancano > 0; }
    const std::vector<RigaControllo>& Righe() const { return righe; }

  private:
    using Valuta = RigaODomanda (*)(const DominioMittente& mittente, const Risposte& risposte);

    struct Voce {
        Valuta valuta;
        bool aspetta = true;  ///< its question is asked
    };

    void AggiungiDominio(const QString& controllo, Valuta valuta);
    void Prosegui(std::size_t voce);
    void Chiedi(std::size_t voce, const dns::Question& domanda);
    void Scrivi(std::size_t riga, const RigaControllo& contenuto);
    void Scade();

    Ascolto ascolto;
    DominioMittente mittente;
    std::unique_ptr<dns::Resolver> resolver;
    ProvaServer prova;
    Risposte risposte;
    std::vector<Voce> voci;  ///< of the lines that the DNS answers, which come first
    std::vector<RigaControllo> righe;
    QTimer limite;
    int mancano = 0;  ///< lines that are not known yet
    int domande = 0;  ///< asked so far
};

/// The domain of the account's address in A-labels and lower case; empty where the address is invalid.
QByteArray DominioDi(const Account& account);
