// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "modules/store/Destinatario.h"
#include "platform/contacts/AddressBook.h"

/// Reads the properties of one entry of the address book, in their order, into the columns of a recipient:
/// without single quotes and blanks at the ends, cut to their limits. None when the address is refused,
/// which then goes into `rifiutato`.
std::optional<destinatario::Valori> LeggiVoceWab(const contacts::AddressBook& rubrica,
                                                 const contacts::Entry& voce, QString* rifiutato = nullptr);

/// The text without the NUL characters at its end.
QString TagliaNulli(const QString& testo);
