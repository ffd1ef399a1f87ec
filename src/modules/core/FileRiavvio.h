// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <QByteArray>
#include <QDateTime>
#include <QStringList>

#include "platform/Status.h"

/// The file "riavvio.imp" of the data folder, which the next start of the program reads, since there is no
/// command line (docs/formats/riavvio.md): the state of a program that restarts after a failure, and the
/// message files that were opened from the desktop. Each of the two keeps what the other has left.
namespace fileRiavvio {

/// The state of a program that restarts.
struct Stato {
    qint64 processo = 0;             ///< the process that ends
    QDateTime ora;                   ///< when it was written
    std::array<int, 5> posizione{};  ///< of the main window: left, top, width, height (twips), state
    QString database;                ///< its path
    QStringList gruppi;              ///< keys of the nodes from the root down to the open one
};

/// For the next start.
Status LasciaStato(const Stato& stato);

/// For the next start without a message so far. The path is absolute, in the octets of the file
/// system; it counts for a minute. Overflow where the file has no room for it.
Status LasciaMessaggio(const QByteArray& percorso);

struct Raccolto {
    std::optional<Stato> stato;
    QByteArray messaggio;  ///< empty for none
};

/// Takes the state and the oldest message that still counts; further ones stay for the next starts. A file
/// that is not of this form, or that is not the user's own or the administrator's, or that others may write,
/// is set aside under the name "riavvio.imp.rovinato".
Raccolto Raccogli();

}  // namespace fileRiavvio
