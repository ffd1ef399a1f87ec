// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

#include "platform/contacts/Card.h"
#include "platform/Status.h"

namespace contacts {

/// The address book of the desktop's mail client: "abook.sqlite" in its profile folder, an SQLite database
/// with the tables properties (card, name, value) and lists (name). A card is a vCard in its property
/// "_vCard", or, written by older versions, in single properties.

/// The book that was changed last among the profiles below the home folder; empty where there is none.
QString findMailClientBook(const QString& home);

/// The entries in the order in which they were added, then the lists, which are entries without an address.
/// Reads a copy, so that the mail client may continue to write: the last committed state is read, and no file
/// beside the book is changed. FileNotFound; PathAccess where it cannot be read or is written to without a
/// pause for a second; UnrecognizedFormat for a file that is no such database, is larger than 512 MB or takes
/// too much work to read.
Result<std::vector<Card>> readMailClientBook(const QString& path);

}  // namespace contacts
