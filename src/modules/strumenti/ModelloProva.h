// SPDX-License-Identifier: GPL-3.0-or-later
// A message file as a run would set it up, to be looked at before the run.
#pragma once

#include <optional>
#include <QList>
#include <QString>

#include "modules/message/MessaggiNoti.h"
#include "modules/message/MessaggioMss.h"
#include "modules/send/FileInPartenza.h"
#include "modules/send/Personalizza.h"
#include "platform/Status.h"

struct ModelloProva {
    QString percorso;
    TestiMessaggio testi;
    int priorita = 3;
    QList<AllegatoMss> allegati;  ///< those that are missing too
    QStringList nominati;         ///< all files of this machine that it names
    QByteArray impronta;          ///< empty where the file was not read to its end
    std::optional<messaggiNoti::Noto> noto;

    /// The attachments and images that are there.
    QList<FileInPartenza> inPartenza() const;
};

/// Reads the file by the readers of the send window. Fails, with a sentence for the user, where it cannot be
/// opened, contains no whole message, or has a body that is refused.
Result<ModelloProva> LeggiModelloProva(const QString& percorso);
