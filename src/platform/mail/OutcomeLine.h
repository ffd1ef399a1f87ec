// SPDX-License-Identifier: GPL-3.0-or-later
// The outcome of one message of a run, and its line in the book of outcomes (docs/formats/esiti.md).
#pragma once

#include <optional>
#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include "platform/mail/AcceptedEntry.h"
#include "platform/mail/DeliveryOutcome.h"

namespace mail {

enum class OutcomeKind {
    Delivered,
    Refused,   ///< the server has answered and said no
    NoAnswer,  ///< no server was reached, or none answered
    NotSent,   ///< the message never left
};

struct OutcomeLine {
    QDateTime time;                ///< UTC
    std::optional<qint64> number;  ///< of the row; none where it could not be read
    QString address;               ///< as it is in the row, up to longestText characters
    OutcomeKind kind = OutcomeKind::NotSent;
    DeliveryStage stage = DeliveryStage::NotTried;
    DeliveryCause cause = DeliveryCause::Program;
    int code = 0;    ///< the server's reply code, 0 without one
    QString status;  ///< enhanced status code (RFC 3463), "5.1.1"; empty where the server gave none
    QString words;   ///< what the server said, or (Italian) what went wrong; in one line, shortened

    static constexpr qsizetype longestText = 1000;  ///< characters

    /// `words` is what may be shown of outcome.text.
    static OutcomeLine of(const DeliveryOutcome& outcome, const QString& words);

    /// With its line end.
    QByteArray bytes() const;
    friend bool operator==(const OutcomeLine&, const OutcomeLine&) = default;
};

/// The run that the following lines belong to; the first line of each file.
struct OutcomeHead {
    QDateTime begun;  ///< UTC
    DatabaseFile database;
    QString sender;  ///< address
    QString title;   ///< title of the run: the subject before personalisation

    QByteArray bytes() const;
};

/// Maximum octets of a line, its end included.
inline constexpr qsizetype longestOutcomeLine = 32768;

/// Reads one line, without its end. None for any other text; unknown members are ignored.
std::optional<OutcomeHead> parseOutcomeHead(QByteArrayView line);
std::optional<OutcomeLine> parseOutcomeLine(QByteArrayView line);

/// The enhanced status code at the beginning of a reply's text; empty where there is none, or where its first
/// digit is not that of the reply's code.
QString enhancedStatus(int code, QStringView text);

}  // namespace mail
