#include "platform/ui/Controls.h"

#include <QFrame>
#include <QPushButton>

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
