#pragma once

#include <QApplication>

#include "modules/core/Prodotto.h"
#include "platform/ui/Desktop.h"

namespace testing_support {

/// Gives a test's application the name and the look that the program's own has.
inline void asInTheProgram(QApplication& application) {
    QApplication::setApplicationName(prodotto::nome());
    ui::setUpDesktop(application);
}

}  // namespace testing_support
