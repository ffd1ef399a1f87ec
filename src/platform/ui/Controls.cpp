// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/Controls.h"

#include <QEvent>
#include <QFontInfo>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace {

class Opening : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* window = static_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && !event->spontaneous())
            window->resize(window->size().expandedTo(window->sizeHint()));
        return false;
    }
};

/// At least as wide as its caption, however narrow the window is: a least size that is set would replace what
/// the caption asks for.
class CommandButton : public QPushButton {
  public:
    using QPushButton::QPushButton;
    QSize sizeHint() const override { return QPushButton::sizeHint().expandedTo({ui::buttonWidth, 0}); }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace

void ui::openAtLeast(QWidget& window, const QSize& size) {
    window.resize(size);
    window.installEventFilter(new Opening(&window));
}

int ui::scaledToFont(const QWidget& widget, int length) {
    constexpr double designPoints = 10;
    return qRound(length * qMax(1.0, QFontInfo(widget.font()).pointSizeF() / designPoints));
}

QString ui::spokenCaption(QString caption) {
    return caption.remove('&').remove(':');
}

void ui::bindLabel(QLabel* label, QWidget* control) {
    label->setBuddy(control);
    control->setAccessibleName(spokenCaption(label->text()));
}

QPushButton* ui::commandButton(const QString& caption, const QString& name, QWidget* parent) {
    auto* button = named<QPushButton>(new CommandButton(caption, parent), name);
    button->setAutoDefault(false);
    button->setMinimumHeight(buttonHeight);
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
