// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/DomainText.h"

#include <algorithm>
#include <QByteArrayList>

namespace policy {

bool isName(const QByteArray& name) {
    constexpr qsizetype longestName = 253, longestLabel = 63;
    if (name.isEmpty() || name.size() > longestName) return false;
    if (!std::all_of(name.begin(), name.end(), [](char c) { return c > ' ' && c < 0x7f; })) return false;
    const auto labels = name.split('.');
    return std::all_of(labels.begin(), labels.end(), [](const QByteArray& label) {
        return !label.isEmpty() && label.size() <= longestLabel;
    });
}

QByteArray plainName(const QByteArray& name) {
    QByteArray plain = name.toLower();
    if (plain.endsWith('.')) plain.chop(1);
    return plain;
}

bool isWithin(const QByteArray& name, const QByteArray& domain) {
    return name == domain || name.endsWith('.' + domain);
}

}  // namespace policy
