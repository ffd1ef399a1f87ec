#include "core/Fallimento.h"

#include "core/Errori.h"

Fallimento::Fallimento(int numero, QString testo, QString sorgente)
    : m_numero(numero),
      m_testo(std::move(testo)),
      m_sorgente(std::move(sorgente)),
      m_utf8(m_testo.toUtf8()) {}

void fallisci(ErrorCode codice, const QString& testo, const QString& sorgente) {
    throw Fallimento(static_cast<int>(codice), testo.isEmpty() ? testoErrore(codice) : testo, sorgente);
}

void esigi(const Status& stato) {
    if (!stato.ok()) fallisci(stato.code(), stato.text());
}
