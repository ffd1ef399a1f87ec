// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QWidget;

namespace testing_support {

/// Controls of a shown, active window that the Tab key reaches and whose focus is hardly visible: no pixel of
/// the focus frame contrasts with the one before it by 3 to 1. A text for each.
QStringList faultsOfFocus(QWidget& window);

/// Check boxes and options, of the window and of the rows of its lists, whose mark contrasts by less than 3
/// to 1 with the same place without it.
QStringList faultsOfMarks(QWidget& window);

}  // namespace testing_support
