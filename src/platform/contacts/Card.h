// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <QString>

namespace contacts {

/// One entry of an address book. A text that is missing is empty; a line break inside a text is CR LF. A list
/// is an entry with a name and no address.
struct Card {
    QString emailAddress;  ///< the preferred one, else the first
    QString displayName;
    QString companyName;
    QString homeStreet;
    QString homePostalCode;
    QString homeCity;
    QString businessTelephone;
    QString businessFax;
};

/// Maximum number of entries that are read from one source.
inline constexpr std::size_t mostCards = 500'000;

}  // namespace contacts
