// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/Style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPainter>
#include <QStyleOption>
#include <QTableView>
#include <QTreeView>

#include "platform/ui/Contrast.h"
#include "platform/ui/Controls.h"

namespace ui {

namespace {

constexpr int buttonPadding = 12;  // beside the text, the rim included

bool hasRim(QStyle::PrimitiveElement element) {
    switch (element) {
        case QStyle::PE_Frame:
        case QStyle::PE_FrameLineEdit:
        case QStyle::PE_PanelButtonCommand:
        case QStyle::PE_IndicatorCheckBox:
        case QStyle::PE_IndicatorRadioButton:
        case QStyle::PE_IndicatorItemViewItemCheck:
            return true;
        default:
            return false;
    }
}

/// What shows the focus where Fusion does not: it marks the default button as it marks one with the focus,
/// and a list by its current row alone, which an empty one has not.
bool showsFocusByFrame(QStyle::PrimitiveElement element, const QStyleOption& option, const QWidget* widget) {
    if (!(option.state & QStyle::State_HasFocus)) return false;
    if (element == QStyle::PE_PanelButtonCommand) return option.state & QStyle::State_KeyboardFocusChange;
    return element == QStyle::PE_Frame && qobject_cast<const QAbstractItemView*>(widget);
}

void drawFocusFrame(const QStyleOption& option, const QRectF& frame, QPainter& painter) {
    painter.setPen(option.palette.color(QPalette::Active, QPalette::Highlight));
    painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
}

/// The line around a control that high contrast asks for.
void drawRim(const QStyleOption& option, QPainter& painter, bool round = false) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, round);
    const bool focus = option.state & QStyle::State_HasFocus;
    painter.setPen(
        option.palette.color(QPalette::Active, focus ? QPalette::Highlight : QPalette::WindowText));
    painter.setBrush(Qt::NoBrush);
    const QRect rim = option.rect.adjusted(0, 0, -1, -1);
    round ? painter.drawEllipse(rim) : painter.drawRect(rim);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    if (button && button->features & QStyleOptionButton::DefaultButton)
        painter.drawRect(rim.adjusted(1, 1, -1, -1));
    painter.restore();
}

}  // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
    switch (hint) {
        case SH_EtchDisabledText:
        case SH_DitherDisabledText:
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        case SH_Widget_Animate:
        case SH_Widget_Animation_Duration:
            return highContrast() ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
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
            return 6;  // heads are over the texts of their cells
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
    const QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
        case CT_ToolButton:
            return wanted.expandedTo({30, 30});
        case CT_CheckBox:
        case CT_RadioButton:
            return wanted.expandedTo({24, 24});
        case CT_LineEdit:
            return wanted.expandedTo({0, 26});
        case CT_PushButton:
            if (widget && qobject_cast<const QDialogButtonBox*>(widget->parentWidget()))
                return wanted.expandedTo({qMax(buttonWidth, size.width() + 2 * buttonPadding), buttonHeight});
            return wanted.expandedTo({size.width() + 2 * buttonPadding, 0});
        case CT_ItemViewItem:
            // A table sets its rows itself, and adds to what their cells ask for.
            return qobject_cast<const QTableView*>(widget) ? wanted : wanted.expandedTo({0, rowHeight});
        default:
            return wanted;
    }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (highContrast() && control == CC_ComboBox) drawRim(*option, *painter);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    const auto* choice = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (element != CE_ComboBoxLabel || !choice) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionComboBox shown = *choice;
    const int icon = shown.currentIcon.isNull() ? 0 : shown.iconSize.width() + 4;
    const int room = subControlRect(CC_ComboBox, choice, SC_ComboBoxEditField, widget).width() - 2 - icon;
    shown.currentText = shown.fontMetrics.elidedText(shown.currentText, Qt::ElideRight, room);
    QProxyStyle::drawControl(element, &shown, painter, widget);
}

QIcon Style::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
    switch (which) {
        case SP_ToolBarHorizontalExtensionButton:
            return QIcon::fromTheme("arrow-right-double");
        case SP_ToolBarVerticalExtensionButton:
            return QIcon::fromTheme("arrow-down-double");
        default:
            return QProxyStyle::standardIcon(which, option, widget);
    }
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    const bool pointedTool = element == PE_PanelButtonTool && (option->state & State_AutoRaise) &&
                             (option->state & State_MouseOver) && (option->state & State_Enabled);
    if (element != PE_FrameFocusRect && !pointedTool) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (highContrast() && hasRim(element)) drawRim(*option, *painter, element == PE_IndicatorRadioButton);
        if (!showsFocusByFrame(element, *option, widget)) return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    // A tool button under the pointer looks like a menu entry under it.
    painter->setBrush(pointedTool ? QApplication::palette("QMenu").brush(QPalette::Highlight) : Qt::NoBrush);
    const int inset = element == PE_PanelButtonCommand ? 3 : 0;
    drawFocusFrame(*option, QRectF(option->rect).adjusted(inset, inset, -inset, -inset), *painter);
    painter->restore();
}

}  // namespace ui
