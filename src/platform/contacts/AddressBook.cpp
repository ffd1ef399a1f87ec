// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/AddressBook.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <QDir>
#include <QFile>
#include <utility>

#include "platform/contacts/Ldif.h"
#include "platform/contacts/MailClientBook.h"
#include "platform/contacts/VCard.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/TextFile.h"
#include "platform/text/Words.h"

namespace contacts {

namespace {

constexpr qint64 largestFile = 64LL * 1024 * 1024;

QStringList cardFiles(const QString& folder) {
    const QDir dir(folder);
    QStringList paths;
    for (const QString& name : dir.entryList({"*.vcf", "*.ldif"}, QDir::Files, QDir::Name)) {
        paths.append(dir.filePath(name));
    }
    return paths;
}

std::vector<Card> readCardFile(const QString& path) {
    QFile file;
    if (!text::openForInput(file, path).ok()) return {};
    const QByteArray bytes = file.read(std::min(file.size(), largestFile) + 1);
    if (bytes.size() > largestFile) return {};
    return path.endsWith(QLatin1String(".ldif"), Qt::CaseInsensitive) ? readLdif(bytes) : readVCards(bytes);
}

/// The text that a tag asks for; none for a tag that is not one of ours.
const QString* property(const Card& card, PropertyTag tag) {
    static constexpr std::array<std::pair<PropertyTag, QString Card::*>, 8> texts{{
        {PropertyTag::DisplayName, &Card::displayName},
        {PropertyTag::EmailAddress, &Card::emailAddress},
        {PropertyTag::BusinessTelephoneNumber, &Card::businessTelephone},
        {PropertyTag::CompanyName, &Card::companyName},
        {PropertyTag::BusinessFaxNumber, &Card::businessFax},
        {PropertyTag::HomeAddressCity, &Card::homeCity},
        {PropertyTag::HomeAddressPostalCode, &Card::homePostalCode},
        {PropertyTag::HomeAddressStreet, &Card::homeStreet},
    }};
    const auto* const found =
        std::find_if(texts.begin(), texts.end(), [tag](const auto& text) { return text.first == tag; });
    return found == texts.end() ? nullptr : &(card.*found->second);
}

}  // namespace

AddressBook::AddressBook(QString home, QString cardFolder)
    : m_home(std::move(home)), m_cardFolder(std::move(cardFolder)) {}

AddressBook::AddressBook()
    : AddressBook(QDir::homePath(), sys::programFolder() + QStringLiteral("data/rubrica")) {}

Status AddressBook::open() {
    m_cards.clear();
    Status status(ErrorCode::FileNotFound, Words::tr("Non c'è nessuna rubrica."));
    if (const QString path = findMailClientBook(m_home); !path.isEmpty()) {
        auto book = readMailClientBook(path);
        status = book.status();
        if (book.ok()) m_cards = std::move(book).value();
    }
    if (!m_cards.empty()) return {};
    const QStringList paths = cardFiles(m_cardFolder);
    for (const QString& path : paths) {
        std::vector<Card> cards = readCardFile(path);
        const std::size_t room = mostCards - m_cards.size();
        if (cards.size() > room) cards.resize(room);
        std::move(cards.begin(), cards.end(), std::back_inserter(m_cards));
    }
    return paths.isEmpty() ? status : Status();
}

int AddressBook::entries(std::span<Entry> array) const {
    const std::size_t count = std::min(array.size(), m_cards.size());
    for (std::size_t i = 0; i < count; ++i)
        array[i].number = static_cast<std::uint32_t>(i + 1);
    return static_cast<int>(count);
}

bool AddressBook::text(const Entry& entry, PropertyTag tag, std::span<char> buffer) const {
    if (entry.number == 0 || entry.number > m_cards.size() || buffer.empty()) return false;
    const QString* value = property(m_cards[entry.number - 1], tag);
    if (value == nullptr) return false;
    QByteArray bytes = text::toAnsi(*value);
    bytes.truncate(bytes.indexOf('\0') < 0 ? bytes.size() : bytes.indexOf('\0'));
    if (bytes.isEmpty()) return false;
    bytes.truncate(static_cast<qsizetype>(buffer.size()) - 1);
    std::fill(std::copy(bytes.begin(), bytes.end(), buffer.begin()), buffer.end(), '\0');
    return true;
}

void AddressBook::freeEntries(std::span<Entry> array) const {
    std::fill(array.begin(), array.end(), Entry());
}

}  // namespace contacts
