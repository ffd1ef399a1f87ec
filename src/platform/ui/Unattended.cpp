// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/Unattended.h"

#include <cstdlib>
#include <QtGlobal>

namespace ui {

namespace {
bool nobodyThere = false;
}

bool unattended() {
    return nobodyThere;
}

void setUnattended(bool on) {
    nobodyThere = on;
}

void failUnanswered(const char* what, const char* text) {
    qFatal("%s without a queued answer: %s", what, text);
    std::abort();
}

}  // namespace ui
