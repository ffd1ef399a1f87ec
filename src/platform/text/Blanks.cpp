// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/Blanks.h"

namespace text {

QStringView trimBlanks(QStringView text) {
    while (text.startsWith(u' '))
        text = text.mid(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

}  // namespace text
