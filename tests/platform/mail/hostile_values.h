// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRandomGenerator>
#include <QString>

namespace compose {

struct ValueKind {
    const char* name;
    QString value;
};

/// A plain, an accented, an empty, a very long … text for names, subject, text and file names.
QList<ValueKind> valueKinds();

/// A generator of texts with injected syntax, the same ones for the same seed.
class HostileValues {
  public:
    explicit HostileValues(quint32 seed) : m_random(seed) {}

    int below(int bound) { return static_cast<int>(m_random.bounded(bound)); }

    /// Up to `most` pieces of markup, line ends, encoded words, control characters, broken characters.
    QString text(int most);
    /// An address that is allowed in a message, of any form.
    QString address();

  private:
    QRandomGenerator m_random;
};

}  // namespace compose
