// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace ui {

/// A text of the status bar, cut with an ellipsis where it does not fit. Assistive programs find it as a
/// static text; they hear of a change only by announce(), so that texts that follow the pointer stay
/// quiet.
class StaticItem : public QWidget {
    Q_OBJECT

  public:
    explicit StaticItem(const QString& text, QWidget* parent = nullptr);

    const QString& Text() const { return m_text; }
    void setText(const QString& text);
    /// Reports the text to assistive programs, unless it was the last one reported.
    void announce();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString m_text;
    QString m_announced;
};

}  // namespace ui
