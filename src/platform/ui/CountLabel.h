// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include "platform/ui/Hint.h"

namespace ui {

/// A label whose text changes often. Assistive programs find the present text in it at any time, but hear
/// of a change only by tell(): a plain label reports each of them.
class CountLabel : public QLabel {
    Q_OBJECT

  public:
    explicit CountLabel(const QString& text, QWidget* parent = nullptr);

    void tell();

    /// More text, for tool tip and description.
    Hint hint;

  protected:
    bool event(QEvent* event) override;
};

}  // namespace ui
