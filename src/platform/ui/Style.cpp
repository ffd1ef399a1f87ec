#include "platform/ui/Style.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QTreeView>

namespace ui {

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
    switch (hint) {
        case SH_EtchDisabledText:
        case SH_DitherDisabledText:
            return 0;
        case SH_LineEdit_PasswordCharacter:
            return u'*';
        case SH_ItemView_ShowDecorationSelected:
            // The selection of a tree leaves the branch out.
            return qobject_cast<const QTreeView*>(widget)
                       ? 0
                       : QProxyStyle::styleHint(hint, option, widget, data);
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_SmallIconSize:
        case PM_ButtonIconSize:
            return 16;
        case PM_ToolBarIconSize:
            return 22;
        case PM_FocusFrameHMargin:
        case PM_DockWidgetTitleMargin:
            return 5;
        case PM_HeaderMargin:
            return 6;  // heads stand over the texts of their cells
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
    const QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
    return type == CT_ToolButton ? wanted.expandedTo({30, 30}) : wanted;
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    const bool pointedTool = element == PE_PanelButtonTool && (option->state & State_AutoRaise) &&
                             (option->state & State_MouseOver) && (option->state & State_Enabled);
    if (element != PE_FrameFocusRect && !pointedTool) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(option->palette.color(QPalette::Active, QPalette::Highlight));
    // A tool button under the pointer looks like a menu entry under it.
    painter->setBrush(pointedTool ? QApplication::palette("QMenu").brush(QPalette::Highlight) : Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter->restore();
}

}  // namespace ui
