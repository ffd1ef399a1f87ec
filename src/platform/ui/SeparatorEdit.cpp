// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/SeparatorEdit.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFrame>

#include "platform/text/Words.h"

namespace ui {

namespace {

bool isTabKey(const QKeyEvent& key) {
    return key.key() == Qt::Key_Tab && key.modifiers() == Qt::ControlModifier;
}

}  // namespace

SeparatorEdit::SeparatorEdit(QWidget* parent) : LineEdit(parent) {
    setToolTip(Words::tr("Ctrl+Tab inserisce una tabulazione"));
    connect(this, &QLineEdit::textChanged, this, [this] { tellTabs(); });
    tellTabs();
}

// A tab is neither heard nor seen: assistive programs get it in words.
void SeparatorEdit::tellTabs() {
    setAccessibleDescription(text().contains(u'\t') ? Words::tr("Contiene una tabulazione")
                                                    : Words::tr("Ctrl+Tab inserisce una tabulazione"));
}

// No shortcut of the window takes the key.
bool SeparatorEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isTabKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void SeparatorEdit::keyPressEvent(QKeyEvent* key) {
    if (isTabKey(*key) && !isReadOnly())
        insert(QStringLiteral("\t"));
    else
        QLineEdit::keyPressEvent(key);
}

// A text with tabs is drawn here, with an arrow for each; the box itself would show nothing for them.
void SeparatorEdit::paintEvent(QPaintEvent* event) {
    if (!text().contains(u'\t')) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStyleOptionFrame option;
    initStyleOption(&option);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    const QRect content = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const QString shown = QString(text()).replace(u'\t', u'→');
    const QRect place =
        style()->itemTextRect(fontMetrics(), content, static_cast<int>(alignment()), true, shown);
    const bool marked = hasSelectedText() && hasFocus();
    if (marked) painter.fillRect(place, palette().highlight());
    painter.setPen(palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled,
                                   marked ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(place, Qt::AlignCenter, shown);
    if (hasFocus() && !marked) {
        const int x = place.left() + fontMetrics().horizontalAdvance(shown.first(cursorPosition()));
        painter.drawLine(x, place.top(), x, place.bottom());
    }
}

}  // namespace ui
