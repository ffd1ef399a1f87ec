// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/LinkLabel.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace ui {

namespace {

class AccessibleLink : public QAccessibleWidget {
  public:
    explicit AccessibleLink(LinkLabel* link) : QAccessibleWidget(link, QAccessible::Link) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? link()->text() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.linked = true;
        return state;
    }
    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == pressAction())
            Q_EMIT link()->activated();
        else
            QAccessibleWidget::doAction(action);
    }

  private:
    LinkLabel* link() const { return static_cast<LinkLabel*>(widget()); }
};

QAccessibleInterface* accessibleLink(const QString&, QObject* object) {
    auto* link = qobject_cast<LinkLabel*>(object);
    return link ? new AccessibleLink(link) : nullptr;
}

}  // namespace

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    static const bool installed = (QAccessible::installFactory(accessibleLink), true);
    Q_UNUSED(installed)
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setForegroundRole(QPalette::Link);
    setMargin(4);
    setMinimumHeight(24);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
}

// The press is taken so that the release comes here, too.
void LinkLabel::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT activated();
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // The space bar does nothing here, and means nothing else for as long as the link has the keyboard.
    if (!enter && event->key() != Qt::Key_Space) return QLabel::keyPressEvent(event);
    if (enter) Q_EMIT activated();
    event->accept();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QStyleOptionFocusRect rim;
    rim.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rim, &painter, this);
}

}  // namespace ui
