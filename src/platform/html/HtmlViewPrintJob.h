// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The print job of a document: its title, and its transfer to the printer.

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/Status.h"

class QPrinter;

/// The document with `title` in its information dictionary, by an update at its end (ISO 32000-1, 7.5.6).
/// Unchanged where the title is empty or the document has no plain cross-reference table.
QByteArray withTitle(const QByteArray& pdf, const QString& title);

/// The arguments of the system's printing command `lp`: the printer and the options that the user chose in
/// the print dialog. The document is read from standard input.
QStringList lpArguments(QPrinter& printer, const QString& title);

/// Runs the command with the document on its standard input, and waits at most `milliseconds` for its end;
/// the user's input is held back meanwhile. DeviceIo, with what the command says, where it fails.
Status spool(const QString& command, const QStringList& arguments, const QByteArray& document,
             int milliseconds);
