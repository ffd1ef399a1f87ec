// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <vector>

#include "platform/contacts/Card.h"

namespace contacts {

/// The cards of a vCard file (2.1, 3.0 as in RFC 2426, 4.0 as in RFC 6350), in its order; lines outside a
/// card and properties that are not needed are skipped. A card without its end is read as far as it goes. The
/// name is FN, else given name and surname; the company is the first part of ORG; the home address needs the
/// type HOME, the telephone the type WORK without FAX, the fax the type FAX without HOME (with WORK first).
std::vector<Card> readVCards(const QByteArray& file);

}  // namespace contacts
