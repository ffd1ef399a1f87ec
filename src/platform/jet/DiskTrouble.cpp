// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DiskTrouble.h"

#include <cerrno>

#include "platform/jet/Failure.h"

namespace jet {

Phrase diskTrouble(int error) {
    switch (error) {
        case ENOSPC:
            return "disco pieno"_tr;
        case EDQUOT:
            return "lo spazio concesso all'utente sul disco è esaurito"_tr;
        case EROFS:
            return "il disco è di sola lettura"_tr;
        case EACCES:
        case EPERM:
            return "permesso negato"_tr;
        case EIO:
            return "il disco non riesce a leggere o scrivere"_tr;
        case EFBIG:
            return "il file supera la dimensione concessa"_tr;
        case ELOOP:
            return "il nome è un collegamento"_tr;
        case EEXIST:
            return "il file esiste già"_tr;
        case EISDIR:
            return "è una cartella"_tr;
        case ENOENT:
        case ENOTDIR:
            return "il file o la cartella non esiste"_tr;
        case ENAMETOOLONG:
            return "il nome è troppo lungo"_tr;
        case EMFILE:
        case ENFILE:
            return "troppi file aperti"_tr;
        case ENOMEM:
            return "memoria esaurita"_tr;
        case ENOLCK:
        case EOPNOTSUPP:
            return "il disco non conosce questa operazione"_tr;
        case ENODEV:
        case ENXIO:
        case ESTALE:
        case ENOTCONN:
        case ETIMEDOUT:
            return "il disco non è più raggiungibile"_tr;
        case EBUSY:
        case ETXTBSY:
            return "il file è in uso"_tr;
        default:
            return Phrase("errore di sistema %1"_tr, error);
    }
}

void failIo(OwnText doing, const std::string& path, int error) {
    fail(ErrorCode::DeviceIo, "Errore del disco (%1) sul file \"%2\": %3."_tr, doing, path,
         diskTrouble(error));
}

void failOpen(const std::string& path, int error) {
    if (error == ENOENT || error == ENOTDIR)
        fail(ErrorCode::FileNotFound, "Impossibile trovare il file \"%1\"."_tr, path);
    const bool disk = error == ENOSPC || error == EDQUOT || error == EIO;
    fail(disk ? ErrorCode::DeviceIo : ErrorCode::PathAccess, "Impossibile aprire il file \"%1\": %2."_tr,
         path, diskTrouble(error));
}

}  // namespace jet
