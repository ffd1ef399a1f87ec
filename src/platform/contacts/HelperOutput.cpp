// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/HelperOutput.h"

#include <algorithm>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace contacts {

namespace {

std::optional<QJsonObject> objectOf(QByteArrayView line) {
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), line.size()));
    if (!document.isObject()) return std::nullopt;
    return document.object();
}

QStringList textsOf(const QJsonValue& value) {
    QStringList texts;
    for (const auto& one : value.toArray()) {
        if (allWalls().contains(one.toString())) texts.append(one.toString());
    }
    return texts;
}

}  // namespace

std::optional<Contact> contactOfEntry(QByteArrayView line) {
    const auto entry = objectOf(line);
    if (!entry || entry->isEmpty()) return std::nullopt;
    const auto text = [&](const char* name) { return entry->value(QLatin1String(name)).toString(); };
    return Contact{text("Email1Address"),
                   text("CompanyName"),
                   text("LastNameAndFirstName"),
                   text("BusinessAddress"),
                   text("BusinessAddressPostalCode"),
                   text("BusinessAddressCity"),
                   text("BusinessTelephoneNumber"),
                   text("BusinessFaxNumber")};
}

void ContactList::append(QByteArrayView line) {
    m_lines.append(line.data(), line.size());
    m_ends.push_back(m_lines.size());
}

std::optional<Contact> ContactList::operator[](std::size_t index) const {
    const qsizetype start = index == 0 ? 0 : m_ends[index - 1];
    return contactOfEntry(QByteArrayView(m_lines).sliced(start, m_ends[index] - start));
}

bool HelperOutput::take(const QByteArray& bytes) {
    if (m_ended) return false;
    m_taken += bytes.size();
    m_ended = m_taken > largestOutput;
    m_pending += bytes;
    const QByteArrayView all(m_pending);
    qsizetype from = 0;
    for (qsizetype end = all.indexOf('\n'); !m_ended && end >= 0; end = all.indexOf('\n', from)) {
        m_ended = !takeLine(all.sliced(from, end - from));
        from = end + 1;
    }
    m_pending.remove(0, from);
    if (m_pending.size() > longestEntry) m_ended = true;
    return !m_ended;
}

bool HelperOutput::takeLine(QByteArrayView line) {
    if (line.size() > longestEntry) return false;
    const auto object = objectOf(line);
    if (!object) return false;
    if (m_count < 0 && m_folder.walls.isEmpty() && object->contains(QLatin1String("walls"))) {
        m_folder.walls = textsOf(object->value(QLatin1String("walls")));
        return true;
    }
    if (m_count < 0) {
        m_count = std::min(object->value(QLatin1String("count")).toInt(-1), mostEntries);
        return m_count > 0;
    }
    m_folder.items.append(object->isEmpty() ? QByteArrayView("{}") : line);
    return m_folder.items.size() < static_cast<std::size_t>(m_count);
}

std::optional<ContactFolder> HelperOutput::folder() && {
    if (m_count < 0) return std::nullopt;
    m_folder.count = m_count;
    return std::move(m_folder);
}

}  // namespace contacts
