// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QTabWidget>

namespace ui {

/// A few views of which one is on show, with tabs below to choose it. Only the view on show follows the size.
class TabStrip : public QTabWidget {
    Q_OBJECT

  public:
    /// Grounds of the tabs: a shade from `light` to `dark`; `chosen` for that of the view on show.
    struct Colours {
        QColor light;
        QColor dark;
        QColor chosen;
    };

    explicit TabStrip(QWidget* parent = nullptr);

    /// Adds a view, whose ownership passes, after the others; `icon` is a name of the icon theme.
    void addView(QWidget* view, const QString& caption, const QString& icon);
    /// Tabs count from 0.
    QString TabCaption(int index) const { return tabText(index); }
    void setTabCaption(int index, const QString& caption);
    void setTabToolTip(int index, const QString& text) { QTabWidget::setTabToolTip(index, text); }
    void setColours(const Colours& colours);
    /// The view after (before) the one on show, round the end.
    void step(int by);

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void tabChanged(int oldIndex, int newIndex);
    void pointerEntered();

  private:
    int m_index = -1;
};

}  // namespace ui
