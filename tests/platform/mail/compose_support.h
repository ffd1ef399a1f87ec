// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "platform/mail/Composer.h"

/// Pieces that the tests of message composition share.
namespace compose {

/// A plain message.
mail::MessageData plainMessage();

/// The message of a fresh Composer; the running test fails when there is none.
QByteArray wire(const mail::MessageData& message);

/// Values of the message's own header with that name, unfolded.
std::vector<QByteArray> headers(const QByteArray& message, const QByteArray& name);

/// The one value of a header; the running test fails when there is not exactly one.
QByteArray header(const QByteArray& message, const QByteArray& name);

/// Violations of the rules for a message on the wire; empty: none.
QString complaintAbout(const QByteArray& message);

/// Faults of the text form of a message with or without an HTML form; empty: none.
/// `read` is what arrived, `message` what was composed; line ends are CR LF in both.
QString complaintAboutText(const mail::MessageData& message, QString read);

/// Whether there is a text form: always without an HTML form, else where there is a word to put into it.
bool hasTextForm(const mail::MessageData& message);

/// Creates a file with that content, folders included, and returns its path.
QString makeFile(const QString& path, const QByteArray& content);

/// The smallest content that passes for a PNG image, padded to a size.
QByteArray pngContent(qsizetype size = 64);

}  // namespace compose
