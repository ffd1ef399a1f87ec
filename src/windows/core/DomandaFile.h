// The question about files of this machine that a message would carry away.
#pragma once

#include "modules/send/FileInPartenza.h"
#include "platform/ui/ListQuestion.h"

/// Those that the user has not agreed to.
QList<FileInPartenza> DaChiedere(const QList<FileInPartenza>& tutti);

/// The question, to be put by MessageDialog::askAbout: those that lie apart come first.
ui::ListQuestion::Content DomandaFile(QList<FileInPartenza> file, const QString& testo);
