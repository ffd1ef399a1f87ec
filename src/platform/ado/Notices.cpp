// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Notices.h"

#include <string>
#include <utility>

#include "platform/jet/Notices.h"

namespace ado {

namespace {

QStringList& kept() {
    static QStringList notices;
    return notices;
}

}  // namespace

void keepNotices() {
    jet::setNoticeHandler([](const std::u16string& text) { kept().append(QString::fromStdU16String(text)); });
}

QStringList takeNotices() {
    return std::exchange(kept(), {});
}

}  // namespace ado
