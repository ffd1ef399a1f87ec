// SPDX-License-Identifier: GPL-3.0-or-later
// vestrola-pst FILE: prints the contacts of the default contacts folder of an Outlook data file, in the form
// that platform/contacts/HelperOutput.h defines. A process of its own, because the library that reads such
// files can crash on a damaged one: what was printed before counts. Exit status 0 after the
// last entry, 1 where there is no such folder.
#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "helpers/Walls.h"

extern "C" {
#include <libpst/libpst.h>
}

namespace {

/// Kinds of nodes, the lowest five bits of their number ([MS-PST] 2.2.2.1).
constexpr uint64_t kindMask = 0x1F;
constexpr uint64_t folderKind = 0x02;
constexpr uint64_t messageKind = 0x04;

struct FreeItem {
    void operator()(pst_item* item) const { pst_freeItem(item); }
};
using Item = std::unique_ptr<pst_item, FreeItem>;

void print(const QJsonObject& object) {
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    fflush(stdout);
}

void printWalls(const walls::Raised& raised) {
    QJsonArray standing;
    if (raised.files) standing.append("files");
    if (raised.calls) standing.append("calls");
    if (raised.memory) standing.append("memory");
    print({{QStringLiteral("walls"), standing}});
}

QString textOf(pst_item* item, pst_string& value) {
    if (value.str == nullptr) return {};
    pst_convert_utf8_null(item, &value);
    // The library packs its structures: no reference may be bound to a member of them.
    const char* const text = value.str;
    return QString::fromUtf8(text);
}

QString joined(std::initializer_list<QString> parts, const QString& divider) {
    QStringList present;
    for (const QString& part : parts) {
        if (!part.isEmpty()) present.append(part);
    }
    return present.join(divider);
}

/// "surname, given middle", or the one half that is there.
QString lastNameAndFirstName(pst_item* item) {
    pst_item_contact& contact = *item->contact;
    const QString given =
        joined({textOf(item, contact.first_name), textOf(item, contact.middle_name)}, QStringLiteral(" "));
    return joined({textOf(item, contact.surname), given}, QStringLiteral(", "));
}

/// The address as Outlook keeps it, or else put together from its parts the way Outlook does.
QString businessAddress(pst_item* item) {
    pst_item_contact& contact = *item->contact;
    QString whole = textOf(item, contact.business_address);
    if (!whole.isEmpty()) return whole;
    const QString town = joined({textOf(item, contact.business_postal_code),
                                 textOf(item, contact.business_city), textOf(item, contact.business_state)},
                                QStringLiteral(" "));
    return joined({textOf(item, contact.business_street), town, textOf(item, contact.business_country)},
                  QStringLiteral("\r\n"));
}

QJsonObject entryOf(pst_item* item) {
    if (item == nullptr || item->contact == nullptr || item->type != PST_TYPE_CONTACT) return {};
    pst_item_contact& contact = *item->contact;
    return {{QStringLiteral("Email1Address"), textOf(item, contact.address1)},
            {QStringLiteral("CompanyName"), textOf(item, contact.company_name)},
            {QStringLiteral("LastNameAndFirstName"), lastNameAndFirstName(item)},
            {QStringLiteral("BusinessAddress"), businessAddress(item)},
            {QStringLiteral("BusinessAddressPostalCode"), textOf(item, contact.business_postal_code)},
            {QStringLiteral("BusinessAddressCity"), textOf(item, contact.business_city)},
            {QStringLiteral("BusinessTelephoneNumber"), textOf(item, contact.business_phone)},
            {QStringLiteral("BusinessFaxNumber"), textOf(item, contact.business_fax)}};
}

bool isKind(const pst_desc_tree* node, uint64_t kind) {
    return (node->d_id & kindMask) == kind;
}

/// The first folder of class IPF.Contact below the top, in the order of the tree.
pst_desc_tree* contactsFolder(pst_file& file) {
    if (file.d_head == nullptr) return nullptr;
    const Item root(pst_parse_item(&file, file.d_head, nullptr));
    if (!root || root->message_store == nullptr) return nullptr;
    for (pst_desc_tree* node = pst_getTopOfFolders(&file, root.get()); node != nullptr;
         node = pst_getNextDptr(node)) {
        if (!isKind(node, folderKind) || node->desc == nullptr) continue;
        const Item folder(pst_parse_item(&file, node, nullptr));
        if (folder && folder->folder != nullptr && folder->type == PST_TYPE_CONTACT) return node;
    }
    return nullptr;
}

void printEntries(pst_file& file, const pst_desc_tree* folder) {
    int count = 0;
    for (const pst_desc_tree* node = folder->child; node != nullptr; node = node->next) {
        if (isKind(node, messageKind)) ++count;
    }
    print({{QStringLiteral("count"), count}});
    for (pst_desc_tree* node = folder->child; node != nullptr; node = node->next) {
        if (!isKind(node, messageKind)) continue;
        const Item item(node->desc == nullptr ? nullptr : pst_parse_item(&file, node, nullptr));
        print(entryOf(item.get()));
    }
}

}  // namespace

#ifdef VESTROLA_SANITIZED
// Looking for leaks takes a second thread, which the walls forbid.
extern "C" const char* __asan_default_options() {
    return "detect_leaks=0";
}
#endif

int main(int argc, char** argv) {
    if (argc != 2) return 1;
    const walls::Raised limits = walls::limitOnly();
    pst_file file{};
    if (pst_open(&file, argv[1], "WINDOWS-1252") != 0) return 1;
    printWalls(walls::raise(limits));
    if (pst_load_index(&file) != 0) return 1;
    pst_load_extended_attributes(&file);
    const pst_desc_tree* folder = contactsFolder(file);
    if (folder == nullptr) return 1;
    printEntries(file, folder);
    pst_close(&file);
    return 0;
}
