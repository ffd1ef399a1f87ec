// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/mail/MessageText.h"

/// The text of a message in one piece.
inline QByteArray wholeOf(const mail::MessageText& text) {
    QByteArray whole;
    for (const QByteArrayView piece : text.pieces())
        whole.append(piece.data(), piece.size());
    return whole;
}
