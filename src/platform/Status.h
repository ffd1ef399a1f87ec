// SPDX-License-Identifier: GPL-3.0-or-later
// Status and Result for code with Qt: texts as a QString, in the language in use.
#pragma once

#include <QCoreApplication>
#include <QString>

#include "platform/PlainStatus.h"

inline Status::Status(ErrorCode code, const QString& text)
    : Status(code, Phrase::literal(text.toStdString())) {}

/// The phrase in the language in use.
inline QString translatedText(const Phrase& phrase) {
    return QString::fromStdString(phrase.text(
        [](const char* own) { return QCoreApplication::translate("Vestrola", own).toStdString(); }));
}

inline QString Status::text() const {
    return m_text ? translatedText(*m_text) : QString();
}
