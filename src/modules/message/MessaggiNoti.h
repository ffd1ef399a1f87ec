// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>

/// The message files that are known: what this user saved in the editor, or confirmed when he sent it. What a
/// known file names may travel; of any other the user is asked first. "messaggi-noti.json" in the data folder
/// keeps them; docs/formats/messaggi-noti.md shows it.
namespace messaggiNoti {

/// What is known of one file.
struct Noto {
    /// Files that it names, as written in it, and that came in with a file that was not known.
    QStringList daConfermare;
    /// Files, links resolved, that lie where users keep no attachments and that the user agreed to send.
    QStringList confermati;
};

/// The files of this machine that a message names: its attachments, and the images of its body, both as
/// written and in normal form.
QStringList FileNominati(const QStringList& allegati, const QString& corpo);

/// SHA-256.
QByteArray Impronta(const QByteArray& byte);

/// What is known of the file with this path and these bytes; none where either differs. Ignores every
/// failure. A list that another user made or may write is not believed.
std::optional<Noto> Cerca(const QString& percorso, const QByteArray& impronta);

/// What was agreed to for the file with this path, whatever its bytes were.
QStringList Confermati(const QString& percorso);

/// Notes the file, in place of what was known of its path. Ignores every failure: the user is then asked
/// once more. The oldest files are forgotten when there are more than 2000.
void Annota(const QString& percorso, const QByteArray& impronta, const Noto& noto);

}  // namespace messaggiNoti
