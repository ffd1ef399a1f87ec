// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/Errori.h"

#include <array>

#include "platform/text/Words.h"

namespace {

struct Riga {
    ErrorCode codice;
    const char* testo;
};

constexpr std::array tabella{
    Riga{ErrorCode::Overflow, QT_TRANSLATE_NOOP("Vestrola", "Overflow")},
    Riga{ErrorCode::SubscriptOutOfRange,
         QT_TRANSLATE_NOOP("Vestrola", "Indice non compreso nell'intervallo")},
    Riga{ErrorCode::TypeMismatch, QT_TRANSLATE_NOOP("Vestrola", "Tipo non corrispondente")},
    Riga{ErrorCode::FileNotFound, QT_TRANSLATE_NOOP("Vestrola", "Impossibile trovare il file")},
    Riga{ErrorCode::DeviceIo, QT_TRANSLATE_NOOP("Vestrola", "Errore di I/O del dispositivo")},
    Riga{ErrorCode::InputPastEnd, QT_TRANSLATE_NOOP("Vestrola", "Input oltre la fine del file")},
    Riga{ErrorCode::PathAccess, QT_TRANSLATE_NOOP("Vestrola", "Errore di accesso al percorso/file")},
    Riga{ErrorCode::InvalidNull, QT_TRANSLATE_NOOP("Vestrola", "Uso non valido di Null")},
    Riga{ErrorCode::NoCurrentRecord, QT_TRANSLATE_NOOP("Vestrola", "Nessun record corrente")},
    Riga{ErrorCode::ItemNotFound, QT_TRANSLATE_NOOP("Vestrola", "Elemento non trovato nell'insieme")},
    Riga{ErrorCode::CancelSelected, QT_TRANSLATE_NOOP("Vestrola", "È stato scelto Annulla")},
};

}  // namespace

QString testoErrore(ErrorCode codice) {
    for (const Riga& riga : tabella) {
        if (riga.codice == codice) return Words::tr(riga.testo);
    }
    return Words::tr("Errore del programma");
}
