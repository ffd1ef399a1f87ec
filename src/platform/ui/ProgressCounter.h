// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QDateTime>
#include <QWidget>

#include "platform/ui/Hint.h"

namespace ui {

/// A progress bar that is also a counter: it keeps its value and its maximum as they were given, also outside
/// the range from 0 to the maximum; only the drawing is clamped. It shows no text. Assistive programs see a
/// progress bar with its value and range; they hear of a change at most every five seconds, of the value
/// 0 at once, and by tell().
class ProgressCounter : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)

  public:
    explicit ProgressCounter(QWidget* parent = nullptr);

    double maximum() const { return m_maximum; }
    void setMaximum(double maximum);
    double value() const { return m_value; }
    /// A visible change is drawn at once: work that blocks the event loop shows its progress all the
    /// same.
    void setValue(double value);
    /// Reports the present value to assistive programs.
    void tell();

    /// Colour of the filled part; the palette's highlight colour where none was set.
    void setBarColor(const QColor& color);

    /// More text, for tool tip and description.
    Hint hint;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void valueChanged(double value);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    /// The filled share of the bar, 0 to 1.
    double share() const;
    /// Of the filled part, in the screen's dots.
    int barLength() const;

    double m_maximum = 100;
    double m_value = 0;
    QDateTime m_toldAt;
    QColor m_barColor;
};

}  // namespace ui
