// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <vector>

/// A reader of messages that shares no code with their composition. It assumes nothing: every violation of
/// the rules for messages becomes a complaint.
namespace wire {

/// A part without parts.
struct Leaf {
    QByteArray type;                       ///< such as "text/plain"
    QMap<QByteArray, QString> parameters;  ///< of Content-Type, decoded
    QByteArray disposition;                ///< empty, "inline" or "attachment"
    QString fileName;                      ///< of Content-Disposition, decoded
    QByteArray contentId;                  ///< without angle brackets
    QByteArray content;                    ///< decoded
};

struct Address {
    QString name;
    QByteArray address;
};

struct Message {
    QStringList complaints;                                  ///< empty: the message keeps every rule
    std::vector<std::pair<QByteArray, QByteArray>> headers;  ///< names in lower case, values unfolded
    Address from, to;
    QString subject;
    QByteArray messageId;  ///< without angle brackets
    QByteArray tree;       ///< such as "mixed(alternative(text/plain,text/html),application/pdf)"
    std::vector<Leaf> leaves;

    QByteArray header(const QByteArray& name) const;  ///< the first one; empty without one
};

/// Reads a message with its CR LF line ends and without dot-stuffing, as Composer makes it.
Message read(const QByteArray& data);

/// A body as received after DATA, without the dots that the transport added.
QByteArray unstuffed(const QByteArray& body);

}  // namespace wire
