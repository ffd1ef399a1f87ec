// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include "modules/core/Prodotto.h"
#include "platform/ui/Desktop.h"

namespace testing_support {

/// The program's own name and look for a test's application.
inline void asInTheProgram(QApplication& application) {
    QApplication::setApplicationName(prodotto::nome());
    ui::setUpDesktop(application);
}

}  // namespace testing_support
