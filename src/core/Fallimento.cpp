#include "core/Fallimento.h"

#include "core/Errori.h"

Fallimento::Fallimento(int numero, QString testo)
    : m_numero(numero), m_testo(std::move(testo)), m_utf8(m_testo.toUtf8()) {}

void fallisci(ErrorCode codice, const QString& testo) {
    throw Fallimento(static_cast<int>(codice), testo.isEmpty() ? testoErrore(codice) : testo);
}

void esigi(const Status& stato) {
    if (!stato.ok()) fallisci(stato.code(), stato.text());
}
