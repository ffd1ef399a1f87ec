// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/Contrast.h"

#include <QCoreApplication>
#include <utility>

#include "platform/ui/ContrastWatch.h"

namespace ui {

namespace {

bool wanted = false;

}  // namespace

bool highContrast() {
    return wanted;
}

void setHighContrast(bool on) {
    wanted = on;
}

void watchContrast(std::function<void()> changed) {
    new ContrastWatch(std::move(changed), QCoreApplication::instance());
}

}  // namespace ui
