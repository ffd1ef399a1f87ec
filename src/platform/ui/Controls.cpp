#include "platform/ui/Controls.h"

#include <QFrame>

QString ui::spokenCaption(QString caption) {
    return caption.remove('&').remove(':');
}

QFrame* ui::separatorLine(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}
