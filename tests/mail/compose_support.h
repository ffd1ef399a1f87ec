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

/// Creates a file with that content, folders included, and gives its path.
QString makeFile(const QString& path, const QByteArray& content);

/// The smallest content that passes for a PNG image, padded to a size.
QByteArray pngContent(qsizetype size = 64);

}  // namespace compose
