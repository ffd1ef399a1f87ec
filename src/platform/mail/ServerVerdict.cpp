// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/ServerVerdict.h"

#include <QRegularExpression>

#include "platform/text/Words.h"

namespace mail {

namespace {

bool saysSpam(const QString& words) {
    static const QRegularExpression spam(
        QStringLiteral("spam|junk|unsolicited|indesiderat|\\bbulk\\b|\\bu[bc]e\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return words.contains(spam);
}

bool saysRate(const QString& words) {
    static const QRegularExpression rate(
        QStringLiteral(
            "\\brate|\\blimit|too (many|much|fast)|throttl|quota|exceed|frequen|\\btropp[aeio]\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return words.contains(rate);
}

/// The server wants a login, a better one, or TLS.
bool wantsSecurity(int code) {
    return code == 530 || code == 534 || code == 535 || code == 538;
}

}  // namespace

QString verdictOf(const DeliveryOutcome& outcome) {
    static const QRegularExpression form(QStringLiteral("^([45]\\.7\\.\\d{1,3})(?!\\d)\\s*(.*)$"));
    if (outcome.delivered || outcome.ofLogin || wantsSecurity(outcome.code)) return {};
    const QRegularExpressionMatch match = form.match(outcome.text.trimmed());
    if (!match.hasMatch()) return {};
    const QString words = match.captured(2);
    // A server that limits the rate often mentions spam as well; in a permanent refusal spam is the reason.
    const bool temporary = outcome.code < 500;
    QString verdict = Words::tr("Il server rifiuta il messaggio per le sue regole");
    if (saysRate(words) && (temporary || !saysSpam(words)))
        verdict = Words::tr("Il server limita il numero o la frequenza degli invii");
    else if (saysSpam(words))
        verdict = Words::tr("Il server considera il messaggio posta indesiderata (spam)");
    const QString whole =
        temporary ? Words::tr("%1, per ora, codice %2: %3") : Words::tr("%1, codice %2: %3");
    return whole.arg(verdict, match.captured(1), words);
}

}  // namespace mail
