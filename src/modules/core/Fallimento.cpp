// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/Fallimento.h"

#include "modules/core/Errori.h"

Fallimento::Fallimento(int numero, QString testo, QString sorgente, const QString& file)
    : m_numero(numero),
      m_testo(std::move(testo)),
      m_sorgente(std::move(sorgente)),
      m_circostanze(Operazione::Ora()),
      m_utf8(m_testo.toUtf8()) {
    if (!file.isEmpty()) m_circostanze.file = file;
}

void fallisci(ErrorCode codice, const QString& testo, const QString& sorgente) {
    throw Fallimento(static_cast<int>(codice), testo.isEmpty() ? testoErrore(codice) : testo, sorgente);
}

void esigi(const Status& stato) {
    if (stato.ok()) return;
    const QString testo = stato.text().isEmpty() ? testoErrore(stato.code()) : stato.text();
    throw Fallimento(static_cast<int>(stato.code()), testo, {}, QString::fromStdU16String(stato.file()));
}
