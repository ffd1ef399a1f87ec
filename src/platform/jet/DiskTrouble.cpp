// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DiskTrouble.h"

#include <cerrno>

#include "platform/jet/Failure.h"

namespace jet {

std::string diskTrouble(int error) {
    switch (error) {
        case ENOSPC:
            return "disco pieno";
        case EDQUOT:
            return "lo spazio concesso all'utente sul disco è esaurito";
        case EROFS:
            return "il disco è di sola lettura";
        case EACCES:
        case EPERM:
            return "permesso negato";
        case EIO:
            return "il disco non riesce a leggere o scrivere";
        case EFBIG:
            return "il file supera la dimensione concessa";
        case ELOOP:
            return "il nome è un collegamento";
        case EEXIST:
            return "il file esiste già";
        case EISDIR:
            return "è una cartella";
        case ENOENT:
        case ENOTDIR:
            return "il file o la cartella non esiste";
        case ENAMETOOLONG:
            return "il nome è troppo lungo";
        case EMFILE:
        case ENFILE:
            return "troppi file aperti";
        case ENOMEM:
            return "memoria esaurita";
        case ENOLCK:
        case EOPNOTSUPP:
            return "il disco non conosce questa operazione";
        case ENODEV:
        case ENXIO:
        case ESTALE:
        case ENOTCONN:
        case ETIMEDOUT:
            return "il disco non è più raggiungibile";
        case EBUSY:
        case ETXTBSY:
            return "il file è in uso";
        default:
            return phrase("errore di sistema ", error);
    }
}

void failIo(const char* doing, const std::string& path, int error) {
    fail(ErrorCode::DeviceIo, "Errore del disco (", doing, ") sul file \"", path, "\": ", diskTrouble(error),
         ".");
}

void failOpen(const std::string& path, int error) {
    if (error == ENOENT || error == ENOTDIR)
        fail(ErrorCode::FileNotFound, "Impossibile trovare il file \"", path, "\".");
    const bool disk = error == ENOSPC || error == EDQUOT || error == EIO;
    fail(disk ? ErrorCode::DeviceIo : ErrorCode::PathAccess, "Impossibile aprire il file \"", path,
         "\": ", diskTrouble(error), ".");
}

}  // namespace jet
