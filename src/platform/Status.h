// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/PlainStatus.h"

inline Status::Status(ErrorCode code, const QString& text) : Status(code, text.toStdU16String()) {}

inline QString Status::text() const {
    return QString::fromStdU16String(m_text);
}
