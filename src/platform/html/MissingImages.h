// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace html {

/// The document with `mark` in front of each address of an image, or of a background, that names a missing
/// file. With a mark that is the start of a `data:` address the browser's process itself knows that there is
/// no picture, and does not ask the program about each one.
///
/// An address that cannot be resolved without the browser is unchanged: one with character references other
/// than "&amp;", and a relative one where there is a <base>.
QString markMissingImages(const QString& source, const QString& mark);

}  // namespace html
