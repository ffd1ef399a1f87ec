// SPDX-License-Identifier: GPL-3.0-or-later
// The user's address book, opened, read entry by entry and closed.
#pragma once

#include <cstdint>
#include <QString>
#include <span>
#include <vector>

#include "platform/contacts/Card.h"
#include "platform/Status.h"

namespace contacts {

/// One entry of an open address book: a handle that only its book can read.
struct Entry {
    std::uint32_t number = 0;  ///< counted from 1; 0 for no entry
};

/// Tags of the text properties, as MAPI publishes them (PR_…, string type 001E).
enum class PropertyTag : std::uint32_t {
    DisplayName = 0x3001001E,
    EmailAddress = 0x3003001E,
    BusinessTelephoneNumber = 0x3A08001E,
    CompanyName = 0x3A16001E,
    BusinessFaxNumber = 0x3A24001E,
    HomeAddressCity = 0x3A59001E,
    HomeAddressPostalCode = 0x3A5B001E,
    HomeAddressStreet = 0x3A5D001E,
};

/// The user's address book, with six operations: open, count, entries, text, free, close. It is the book of
/// the desktop's mail client; where that is missing, unreadable or empty, the .vcf and .ldif files in a
/// folder, in the order of their names.
class AddressBook {
  public:
    /// `home`: the user's folder, where the mail client's profiles are; `cardFolder`: where files with cards
    /// may be.
    AddressBook(QString home, QString cardFolder);
    /// The user's own, with "rubrica" in the program's data folder.
    AddressBook();

    /// Reads the whole book. FileNotFound where there is neither book nor file, otherwise why the book could
    /// not be read. A file with cards that cannot be read, or is larger than 64 MB, counts as empty.
    Status open();
    /// How many entries there are; 0 while the book is closed.
    int entryCount() const { return static_cast<int>(m_cards.size()); }
    /// Fills the array with the first entries, as many as fit, and returns how many those are.
    int entries(std::span<Entry> array) const;
    /// Writes a property of an entry into the buffer, in Windows-1252: as many characters as fit before a
    /// final NUL, and NULs up to the buffer's end. False, with the buffer unchanged, where the property is
    /// missing or empty.
    bool text(const Entry& entry, PropertyTag tag, std::span<char> buffer) const;
    /// Releases the entries; they become invalid.
    void freeEntries(std::span<Entry> array) const;
    void close() { m_cards.clear(); }

  private:
    QString m_home;
    QString m_cardFolder;
    std::vector<Card> m_cards;
};

}  // namespace contacts
