// SPDX-License-Identifier: GPL-3.0-or-later
// The question about files of this machine that a message would send.
#pragma once

#include "modules/send/FileInPartenza.h"
#include "platform/ui/ListQuestion.h"

/// Those that the user has not agreed to.
QList<FileInPartenza> DaChiedere(const QList<FileInPartenza>& tutti);

/// The question, for MessageDialog::askAbout: hidden or outlying files come first.
ui::ListQuestion::Content DomandaFile(QList<FileInPartenza> file, const QString& testo);
