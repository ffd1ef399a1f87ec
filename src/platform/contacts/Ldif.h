// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <vector>

#include "platform/contacts/Card.h"

namespace contacts {

/// The entries of an LDIF file (RFC 2849), in its order. Attributes are those of inetOrgPerson (RFC 2798) and
/// the home address of the Mozilla address book schema; of several values the first is used. Records that
/// delete or change an entry, and values given by URL, are skipped.
std::vector<Card> readLdif(const QByteArray& file);

}  // namespace contacts
