// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "platform/contacts/Card.h"
#include "support/Vectors.h"

/// All texts of a card, for comparing and for failure messages.
inline QStringList textsOf(const contacts::Card& card) {
    return {card.emailAddress,   card.displayName, card.companyName,       card.homeStreet,
            card.homePostalCode, card.homeCity,    card.businessTelephone, card.businessFax};
}
