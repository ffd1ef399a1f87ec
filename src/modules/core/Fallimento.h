// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <QString>
#include <utility>

#include "modules/core/Operazione.h"
#include "platform/Status.h"

/// The program's three ways of handling a failure:
///   unguarded: the procedure handles nothing; esigi() and fallisci() throw a Fallimento, which the nearest
///              carry-on caller takes, or else the window event that started it all (see Evento.h), which
///              shows it and ends the program;
///   carry on:  each statement that may fail runs through a Prosegui; a failed one is abandoned, its number
///              and text are remembered and the next statement runs;
///   fall back: ripiega() returns a defined result instead.
/// Above the platform nothing else catches or throws.

/// A failed statement on its way up.
class Fallimento : public std::exception {
  public:
    Fallimento(int numero, QString testo, QString sorgente = {}, const QString& file = {});
    int numero() const { return m_numero; }
    const QString& testo() const { return m_testo; }
    /// The module that failed, where it names itself.
    const QString& sorgente() const { return m_sorgente; }
    /// What was being done when it failed, and with which file: the one that the failure names, where it
    /// names one, else that of the operation.
    const Circostanze& circostanze() const { return m_circostanze; }
    const char* what() const noexcept override { return m_utf8.constData(); }

  private:
    int m_numero;
    QString m_testo;
    QString m_sorgente;
    Circostanze m_circostanze;
    QByteArray m_utf8;
};

/// Throws; an empty text means the number's standard text (Errori.h).
[[noreturn]] void fallisci(ErrorCode codice, const QString& testo = {}, const QString& sorgente = {});

/// Throws unless the platform call succeeded.
void esigi(const Status& stato);
template <class T>
T esigi(Result<T> risultato) {
    esigi(risultato.status());
    return std::move(risultato).value();
}

/// State of one carry-on procedure: its last failure.
class Prosegui {
  public:
    /// Runs one statement; true on success. On failure what it would have set keeps its value,
    /// provided that the statement assigns last.
    template <class Istruzione>
    bool operator()(Istruzione&& istruzione) {
        try {
            std::forward<Istruzione>(istruzione)();
            return true;
        } catch (const Fallimento& fallimento) {
            m_numero = fallimento.numero();
            m_testo = fallimento.testo();
            return false;
        }
    }

    int numero() const { return m_numero; }
    const QString& testo() const { return m_testo; }

  private:
    int m_numero = 0;
    QString m_testo;
};

/// The result of `calcolo`, or `valore` when it fails.
template <class T, class Calcolo>
T ripiega(T valore, Calcolo&& calcolo) {
    try {
        return std::forward<Calcolo>(calcolo)();
    } catch (const Fallimento&) {
        return valore;
    }
}
