#pragma once

#include <QString>

namespace html {

/// The document with `mark` in front of each address of an image, or of a background, that names a file which
/// is not there. With a mark that is the start of a `data:` address the browser's process knows by itself
/// that there is no such picture, and need not ask the program about each one.
///
/// An address that cannot be judged without the browser stays as it is: one with character references other
/// than "&amp;", and a relative one beside a <base>.
QString markMissingImages(const QString& source, const QString& mark);

}  // namespace html
