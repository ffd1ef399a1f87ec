// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QProxyStyle>

namespace ui {

/// Fusion with the few changes that the program's look needs: flat disabled texts, boxes whose buttons show
/// words only, tool buttons, check boxes, rows and fields that are easy to hit, a visible focus rim in the
/// palette's highlight colour, and "*" for each character of a password. Where the desktop asks for high
/// contrast, dark rims and no animation.
class Style : public QProxyStyle {
    Q_OBJECT

  public:
    Style();
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    /// The chosen text of a list that is too narrow for it ends in "…".
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    /// Those of the arrows of bars that are too short, from the program's own theme: each bar asks for one,
    /// and the toolkit's would have the readers of all image formats loaded.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace ui
