#include "platform/ui/Style.h"

#include <QPainter>
#include <QStyleOption>

namespace ui {

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
    switch (hint) {
        case SH_EtchDisabledText:
        case SH_DitherDisabledText:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
            return 16;
        case PM_SmallIconSize:
        case PM_ButtonIconSize:
            return 16;
        case PM_ToolBarIconSize:
            return 22;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    if (element != PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(option->palette.color(QPalette::Active, QPalette::Highlight));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter->restore();
}

}  // namespace ui
