#pragma once

#include <QStringList>

class QWidget;

namespace testing_support {

/// Controls of a shown, active window that the Tab key reaches and that hardly show it: no pixel of the frame
/// that the focus draws stands out from what was there before by 3 to 1. A text for each.
QStringList faultsOfFocus(QWidget& window);

/// Check boxes and options, of the window and of the rows of its lists, whose mark stands out by less than 3
/// to 1 from the same place without it.
QStringList faultsOfMarks(QWidget& window);

}  // namespace testing_support
