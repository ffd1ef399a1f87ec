// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/DkimRecord.h"

#include "platform/policy/TagList.h"

namespace policy {

QByteArray dkimRecordName(const QByteArray& selector, const QByteArray& domain) {
    return selector.toLower() + "._domainkey." + domain.toLower();
}

std::optional<DkimRecord> readDkimRecord(const QByteArray& text) {
    const TagList list = TagList::read(text);
    if (!list.sound || list.hasTwice()) return std::nullopt;
    const auto version = list.value("v");
    if (version && (*version != "DKIM1" || list.tags.front().name != "v")) return std::nullopt;
    const auto key = list.value("p");
    if (!key) return std::nullopt;

    DkimRecord record;
    QByteArray base64 = *key;
    base64.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
    const auto decoded = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) return std::nullopt;
    record.key = *decoded;
    if (const auto type = list.value("k")) record.keyType = type->toLower();
    if (const auto hashes = list.value("h")) record.takesSha256 = listedWords(*hashes).contains("sha256");
    if (const auto services = list.value("s")) {
        const auto words = listedWords(*services);
        record.forMail = words.contains("*") || words.contains("email");
    }
    if (const auto flags = list.value("t")) record.testing = listedWords(*flags).contains("y");
    return record;
}

QByteArray dkimRecordText(const QByteArray& publicKey) {
    return "v=DKIM1; k=rsa; p=" + publicKey.toBase64();
}

}  // namespace policy
