#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "platform/mail/Composer.h"

/// Pieces that the tests of message composition share.
namespace compose {

/// A message with nothing special about it.
mail::MessageData plainMessage();

/// The message of a fresh Composer; the running test fails when there is none.
QByteArray wire(const mail::MessageData& message);

/// Values of the message's own header with that name, unfolded.
std::vector<QByteArray> headers(const QByteArray& message, const QByteArray& name);

/// The one value of a header; the running test fails when there is not exactly one.
QByteArray header(const QByteArray& message, const QByteArray& name);

/// What is against the rules for the form of a message on the wire; empty when all is well.
QString complaintAbout(const QByteArray& message);

/// What is wrong with the text form of a message whose HTML form is there or not; empty when all is well.
/// `read` is what arrived, `message` what was composed; line ends are CR LF in both.
QString complaintAboutText(const mail::MessageData& message, QString read);

/// Whether there is a text form: always without an HTML form, else where there is a word to put into it.
bool hasTextForm(const mail::MessageData& message);

/// Creates a file with that content, folders included, and gives its path.
QString makeFile(const QString& path, const QByteArray& content);

/// The smallest content that passes for a PNG image, padded to a size.
QByteArray pngContent(qsizetype size = 64);

}  // namespace compose
