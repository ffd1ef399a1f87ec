#include "platform/contacts/HelperOutput.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace contacts {

namespace {

/// Takes the next line off the output; none where it is no JSON object or has no end.
std::optional<QJsonObject> takeObject(QByteArrayView& rest) {
    const qsizetype end = rest.indexOf('\n');
    if (end < 0 || end > longestEntry) return std::nullopt;
    const QJsonDocument line = QJsonDocument::fromJson(rest.first(end).toByteArray());
    rest = rest.sliced(end + 1);
    if (!line.isObject()) return std::nullopt;
    return line.object();
}

std::optional<Contact> contactOf(const QJsonObject& entry) {
    if (entry.isEmpty()) return std::nullopt;
    const auto text = [&](const char* name) { return entry.value(QLatin1String(name)).toString(); };
    return Contact{text("Email1Address"),
                   text("CompanyName"),
                   text("LastNameAndFirstName"),
                   text("BusinessAddress"),
                   text("BusinessAddressPostalCode"),
                   text("BusinessAddressCity"),
                   text("BusinessTelephoneNumber"),
                   text("BusinessFaxNumber")};
}

}  // namespace

std::optional<ContactFolder> readHelperOutput(const QByteArray& output) {
    QByteArrayView rest(output);
    const auto head = takeObject(rest);
    const int count = head ? head->value(QLatin1String("count")).toInt(-1) : -1;
    if (count < 0) return std::nullopt;
    ContactFolder folder;
    folder.count = count;
    while (folder.items.size() < static_cast<std::size_t>(count)) {
        const auto entry = takeObject(rest);
        if (!entry) break;
        folder.items.push_back(contactOf(*entry));
    }
    return folder;
}

}  // namespace contacts
