#include "platform/ui/Controls.h"

#include <QFontInfo>
#include <QFrame>
#include <QPushButton>

int ui::scaledToFont(const QWidget& widget, int length) {
    constexpr double designPoints = 10;
    return qRound(length * qMax(1.0, QFontInfo(widget.font()).pointSizeF() / designPoints));
}

QString ui::spokenCaption(QString caption) {
    return caption.remove('&').remove(':');
}

QPushButton* ui::commandButton(const QString& caption, const QString& name, QWidget* parent) {
    auto* button = named(new QPushButton(caption, parent), name);
    button->setAutoDefault(false);
    button->setMinimumSize(buttonWidth, buttonHeight);
    button->setAccessibleName(spokenCaption(caption));
    return button;
}

QFrame* ui::separatorLine(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}
