// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/ListId.h"

namespace mail {
namespace {

constexpr qsizetype longestListId = 255;

// A dot ends a label. A dot-atom has none at its ends and no two in a row; a quoted string may.
QByteArray asLabels(const QByteArray& localPart) {
    constexpr char atomText[] = "!#$%&'*+/=?^_`{|}";
    if (!localPart.startsWith('"')) return localPart.toPercentEncoding(QByteArray(atomText) + '.');
    QByteArray inside = localPart.mid(1).chopped(1).toPercentEncoding(atomText);
    return inside.replace('.', "%2E");
}

}  // namespace

QByteArray listId(const Mailbox& sender) {
    if (sender.domain.startsWith('[')) return {};
    const QByteArray labels = asLabels(sender.localPart);
    const QByteArray id = '<' + labels + '.' + sender.domain + '>';
    return !labels.isEmpty() && id.size() <= longestListId ? id : QByteArray();
}

}  // namespace mail
