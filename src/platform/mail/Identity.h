// SPDX-License-Identifier: GPL-3.0-or-later
// The date of a message, and unique words for its Message-ID and boundaries.
#pragma once

#include <QByteArray>
#include <QDateTime>

namespace mail {

/// Date of a message with its numeric zone (RFC 5322 3.3), in English whatever the user's language.
QByteArray dateText(const QDateTime& when);

/// The date header of successive messages, formatted again once a second.
class DateLine {
  public:
    const QByteArray& text(const QDateTime& when);

  private:
    qint64 m_second = -1;  ///< since 1970
    int m_zone = 0;        ///< seconds east of UTC
    QByteArray m_text;
};

/// A source of globally unique words: time, 64 random bits for each object and a running
/// number. Only letters and digits of ASCII and dots, so that a word may be used in a Message-ID and in a
/// boundary.
class UniqueWords {
  public:
    UniqueWords();
    QByteArray next(const QDateTime& now);

  private:
    QByteArray m_random;
    quint64 m_count = 0;
};

}  // namespace mail
