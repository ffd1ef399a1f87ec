// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DialogFrame.h"

#include <QEvent>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace ui {

namespace {

/// What a window manager puts round a window, where it does not say; logical pixels.
constexpr QMargins usualFrame(4, 28, 4, 4);

QMargins frameOf(const QWidget& window) {
    const QRect inner = window.geometry();
    const QRect outer = window.frameGeometry();
    const QMargins told(inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
                        outer.bottom() - inner.bottom());
    return told.isNull() ? usualFrame : told;
}

QRect roomFor(const QWidget& window) {
    return window.screen()->availableGeometry().marginsRemoved(frameOf(window));
}

/// Moves the layout of a window, with all that is in it, into an area that can be scrolled.
void scrollContent(QWidget& window) {
    QLayout* content = window.layout();
    auto* inner = new QWidget;
    inner->setLayout(content);
    auto* area = new QScrollArea;
    area->setObjectName("dialogContent");
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(inner);
    auto* outer = new QVBoxLayout(&window);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(area);
    window.setMinimumSize(0, 0);
}

/// The least height of a window whose texts are broken into lines depends on its width. Its layout only knows
/// that of the width that it asks for, and would squeeze the rest.
void makeRoomForLines(QWidget& window) {
    QLayout* content = window.layout();
    if (!content->hasHeightForWidth()) return;
    const int needed = content->totalMinimumHeightForWidth(window.width());
    const int least = qMin(needed, roomFor(window).height());
    if (least != window.minimumHeight()) window.setMinimumHeight(least);
}

class InReach : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* window = static_cast<QWidget*>(watched);
        const bool placed = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
        if (placed && !m_scrolled) makeRoomForLines(*window);
        if (event->type() != QEvent::Show || event->spontaneous()) return false;
        const QSize room = roomFor(*window).size();
        const QSize needed = window->layout()->totalMinimumSize();
        if (!m_scrolled && (needed.width() > room.width() || needed.height() > room.height())) {
            scrollContent(*window);
            m_scrolled = true;
        }
        // The window's own handler, which may ask for another size, comes after this one; so does the frame.
        QMetaObject::invokeMethod(
            this,
            [window = QPointer(window)] {
                if (window) bringIntoReach(*window);
            },
            Qt::QueuedConnection);
        return false;
    }

  private:
    bool m_scrolled = false;
};

}  // namespace

void bringIntoReach(QWidget& window) {
    const QRect room = roomFor(window);
    window.resize(window.size().boundedTo(room.size()));
    QRect place(window.geometry());
    place.moveRight(qMin(place.right(), room.right()));
    place.moveBottom(qMin(place.bottom(), room.bottom()));
    place.moveLeft(qMax(place.left(), room.left()));
    place.moveTop(qMax(place.top(), room.top()));
    if (place.topLeft() != window.geometry().topLeft()) window.setGeometry(place);
}

void withoutCloseButton(QWidget& window) {
    // Of a window that names no button at all the toolkit sends the window manager nothing, which then draws
    // each of them.
    Qt::WindowFlags flags = window.windowFlags() | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint;
    if (window.windowType() == Qt::Window) flags |= Qt::WindowMinimizeButtonHint;
    window.setWindowFlags(flags & ~Qt::WindowCloseButtonHint);
}

void setUpDialog(QWidget& dialog) {
    withoutCloseButton(dialog);
    dialog.installEventFilter(new InReach(&dialog));
}

}  // namespace ui
