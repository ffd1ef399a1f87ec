// SPDX-License-Identifier: GPL-3.0-or-later
// The files of this machine that a run would send, and which of them the user has to be asked about.
#pragma once

#include <optional>
#include <QList>
#include <QString>
#include <QStringList>

#include "modules/message/MessaggiNoti.h"

struct FileInPartenza {
    bool immagine = false;
    QString percorso;  ///< as the message names it
    QString risolto;   ///< the file at that path, links resolved
    qint64 byte = 0;
    bool riposto = false;  ///< lies below a hidden folder, is hidden itself, or lies outside the user's home
    bool daChiedere = true;  ///< the user has not agreed to it
};

/// The attachments with these paths that are there. `noto`: what is known of the message file.
QList<FileInPartenza> AllegatiInPartenza(const QStringList& percorsi,
                                         const std::optional<messaggiNoti::Noto>& noto);

/// The files that a body names as images and that are there. `noto`: what is known of the message file that
/// it came from.
QList<FileInPartenza> ImmaginiInPartenza(const QString& corpo, const std::optional<messaggiNoti::Noto>& noto);

/// Files whose path has no links left: whether users keep no files to send there.
bool Riposto(const QString& risolto);

/// A path as it can be shown: characters that do not print, or that turn the direction of a text, as numbers.
QString PercorsoMostrato(const QString& percorso);
