// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QEvent>
#include <QString>
#include <QWidget>

namespace ui {

/// A text about a widget that is made when somebody asks for it: the pointer that rests on the widget, or an
/// assistive program that reads its description.
class Hint {
  public:
    void set(std::function<QString()> make) { m_make = std::move(make); }
    QString text() const { return m_make ? m_make() : QString(); }
    /// To be called for each event of the widget, before it is handled. The tool tip is plain whatever the
    /// text contains, and wraps.
    void prepare(QWidget& widget, const QEvent& event) const {
        if (!m_make || event.type() != QEvent::ToolTip) return;
        const QString now = m_make();
        widget.setToolTip(now.isEmpty() ? QString()
                                        : "<qt>" + now.toHtmlEscaped().replace('\n', "<br>") + "</qt>");
    }

  private:
    std::function<QString()> m_make;
};

}  // namespace ui
