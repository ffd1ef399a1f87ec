// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Notices.h"

#include <utility>

#include "platform/jet/Notices.h"
#include "platform/Status.h"

namespace ado {

namespace {

QStringList& kept() {
    static QStringList notices;
    return notices;
}

}  // namespace

void keepNotices() {
    jet::setNoticeHandler([](const Phrase& text) { kept().append(translatedText(text)); });
}

QStringList takeNotices() {
    return std::exchange(kept(), {});
}

}  // namespace ado
