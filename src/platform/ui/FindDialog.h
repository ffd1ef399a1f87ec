// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QDialog>

#include "platform/Status.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace ui {

/// A dialog to find a text. It stays open beside its window, so that one place after the other can be looked
/// at; Return finds the next one, Esc closes it.
class FindDialog : public QDialog {
    Q_OBJECT

  public:
    /// Selects the next place of the text and says whether there is one. Fails where that is not known.
    using Search = std::function<Result<bool>(const QString& text, bool caseSensitive, bool backwards)>;

    FindDialog(QWidget* parent, Search search);

    /// Shows the dialog, or brings it back to the front, ready for a text.
    void present();

  private:
    void find(bool backwards);

    Search m_search;
    QLineEdit* m_text;
    QCheckBox* m_case;
    QLabel* m_answer;
};

}  // namespace ui
