#include "modules/core/Errori.h"

#include <array>

namespace {

struct Riga {
    ErrorCode codice;
    const char16_t* testo;
};

constexpr std::array tabella{
    Riga{ErrorCode::Overflow, u"Overflow"},
    Riga{ErrorCode::SubscriptOutOfRange, u"Indice non compreso nell'intervallo"},
    Riga{ErrorCode::TypeMismatch, u"Tipo non corrispondente"},
    Riga{ErrorCode::FileNotFound, u"Impossibile trovare il file"},
    Riga{ErrorCode::DeviceIo, u"Errore di I/O del dispositivo"},
    Riga{ErrorCode::InputPastEnd, u"Input oltre la fine del file"},
    Riga{ErrorCode::PathAccess, u"Errore di accesso al percorso/file"},
    Riga{ErrorCode::InvalidNull, u"Uso non valido di Null"},
    Riga{ErrorCode::NoCurrentRecord, u"Nessun record corrente"},
    Riga{ErrorCode::ItemNotFound, u"Elemento non trovato nell'insieme"},
    Riga{ErrorCode::CancelSelected, u"È stato scelto Annulla"},
};

}  // namespace

QString testoErrore(ErrorCode codice) {
    for (const Riga& riga : tabella) {
        if (riga.codice == codice) return QString::fromUtf16(riga.testo);
    }
    return QStringLiteral("Errore del programma");
}
