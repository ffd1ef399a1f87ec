// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QLocale>

/// The program's own texts in the language in use: `Words::tr("…")`, the source in Italian.
///
/// Only for texts without a key in the language file. Where the text cannot be looked up at once, as in a
/// table, mark it with QT_TRANSLATE_NOOP("Vestrola", "…") and pass it to Words::tr() when it is shown. With a
/// number: "%n" and the number as third argument; `comment` distinguishes meanings of the same words.
/// Without a translation the source is the text.
class Words {
    Q_DECLARE_TR_FUNCTIONS(Vestrola)

  public:
    /// How that language writes a date or a size that is in such a text.
    static QLocale locale();
};
