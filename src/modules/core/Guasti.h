// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "modules/core/Fallimento.h"

/// The last failures that ended the program: the file "guasti.txt" of the data folder, which
/// docs/formats/guasti.md shows. Nothing reads it but people.
namespace guasti {

/// The largest size of the file, in bytes: the oldest entries are dropped.
inline constexpr qint64 limite = 256 * 1024;

/// Writes down a failure with the time and its circumstances. Ignores every failure of its own. A file
/// that is no text of this kind is set aside as "guasti.txt.rovinato".
void Annota(const Fallimento& fallimento);

/// A text without personal data: mail addresses, and what is in quotes or comes from a
/// statement.
QString Ripulito(QString testo);

}  // namespace guasti
