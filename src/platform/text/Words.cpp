// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/Words.h"

QLocale Words::locale() {
    return QLocale(Words::tr("it", "the ISO 639 code of this language"));
}
