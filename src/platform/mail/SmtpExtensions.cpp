// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/SmtpExtensions.h"

namespace mail {

SmtpExtensions SmtpExtensions::read(const QByteArray& text) {
    SmtpExtensions offered;
    const QByteArrayList lines = text.toUpper().split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        QByteArrayList words = lines[i].simplified().split(' ');
        const QByteArray keyword = words.takeFirst();
        if (keyword == "PIPELINING") offered.pipelining = true;
        if (keyword == "CHUNKING") offered.chunking = true;
        if (keyword == "SIZE") {
            offered.size = true;
            offered.sizeLimit = qMax<qint64>(0, words.value(0).toLongLong());
        }
        if (keyword == "8BITMIME") offered.eightBitMime = true;
        if (keyword == "SMTPUTF8") offered.smtputf8 = true;
        if (keyword == "STARTTLS") offered.startTls = true;
        if (keyword == "AUTH") offered.auth += words;
        // An older form that is still in use: the first mechanism follows an equals sign.
        if (keyword.startsWith("AUTH=")) offered.auth += words << keyword.sliced(5);
    }
    return offered;
}

}  // namespace mail
