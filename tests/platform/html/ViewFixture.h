// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <functional>
#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>
#include <QRect>
#include <QSignalSpy>
#include <QTest>

#include "platform/html/SureView.h"

/// Where an element is drawn, in the view's coordinates.
inline QRect placeOf(const HtmlView& view, const QString& selector) {
    const QVariantList box =
        view.evaluate(QStringLiteral("{ const b = document.querySelector('%1')"
                                     ".getBoundingClientRect(); [b.x, b.y, b.width, b.height] }")
                          .arg(selector))
            .toList();
    return QRectF(box.value(0).toDouble(), box.value(1).toDouble(), box.value(2).toDouble(),
                  box.value(3).toDouble())
        .toRect();
}

/// Returns when the page has handled the clicks and keys that were sent to it, and has the answers to its
/// requests to the browser: the pointer moves after them, and a missing picture is requested last.
/// The page's messages to the view have arrived too.
inline void settle(const HtmlView& view) {
    const auto happens = [&](const char* event, const std::function<void()>& act) {
        const QString count = QStringLiteral("globalThis.%1Events").arg(QLatin1String(event));
        const int before = view.evaluate(count + QStringLiteral(" || 0")).toInt();
        act();
        if (!QTest::qWaitFor([&] { return view.evaluate(count).toInt() > before; }, 60000))
            qFatal("no %s in the page", event);
    };
    happens("move", [&] {
        view.evaluate(
            QStringLiteral("{ addEventListener('mousemove', () => { globalThis.moveEvents ="
                           " (globalThis.moveEvents || 0) + 1 }, { capture: true, once: true }); 1 }"));
        static bool right = false;
        const QPointF place((right = !right) ? 2 : 3, 2);
        QMouseEvent move(QEvent::MouseMove, place, view.inputWidget()->mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view.inputWidget(), &move);
    });
    happens("picture", [&] {
        view.evaluate(
            QStringLiteral("{ const picture = new Image;"
                           " picture.onerror = () => { globalThis.pictureEvents ="
                           " (globalThis.pictureEvents || 0) + 1 };"
                           " picture.src = 'file:///assente.png'; 1 }"));
    });
    view.evaluate(QStringLiteral("1"));  // the answer to the page's last message comes before this one's
}

/// The process that contains the document.
inline pid_t rendererOf(const HtmlView& view) {
    const auto* page = view.findChild<QObject*>(QStringLiteral("page"));
    const qint64 process = page->property("renderProcessPid").toLongLong();
    if (process <= 0) qFatal("the view has no process");
    return static_cast<pid_t>(process);
}

/// Ends that process, as a crash would.
inline void killRenderer(const HtmlView& view) {
    ::kill(rendererOf(view), SIGKILL);
}

/// Ends that process and waits until the view knows. The view may be live again afterwards: a new process can
/// be there within a few milliseconds.
inline void endBrowserOf(const HtmlView& view) {
    const QPointer<QObject> page = view.findChild<QObject*>(QStringLiteral("page"));
    const QVariant process = page->property("renderProcessPid");
    killRenderer(view);
    if (!QTest::qWaitFor([&] { return !page || page->property("renderProcessPid") != process; }, 60000))
        qFatal("the end of the process is not noticed");
    QCoreApplication::processEvents();  // an event reports it to the view
}

/// Drops something at a place of a view, as the desktop does; false where the view does not take it.
inline bool dropOn(const HtmlView& view, const QMimeData& data, const QPoint& place) {
    auto* target = view.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
    return event.isAccepted();
}

/// A shown view, and the input of a user.
class Desk {
  public:
    explicit Desk(const QString& html = QStringLiteral("<p>Gentile cliente</p>"),
                  HtmlView::Mode mode = HtmlView::Mode::Design)
        : view(mode) {
        view.resize(700, 500);
        view.setDocumentHTML(html);
        view.show();
        view.wake();
        view.activateWindow();
        view.setFocus();
        address = view.evaluate(QStringLiteral("location.href")).toString();
    }

    /// Presses and releases a key; the text may be any.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = QString()) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, text);
            QApplication::sendEvent(view.inputWidget(), &event);
        }
    }

    void type(const QString& text) {
        for (const QChar c : text)
            press(c.toUpper().unicode(), Qt::NoModifier, c);
    }

    /// Two clicks in quick succession, which the browser recognises by the events' times.
    void doubleClick(const QPoint& place) {
        const QPoint global = view.inputWidget()->mapToGlobal(place);
        quint64 time = 1000000;
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                        QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            const Qt::MouseButtons held =
                type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
            QMouseEvent event(type, place, global, Qt::LeftButton, held, Qt::NoModifier);
            event.setTimestamp(time += 20);
            QApplication::sendEvent(view.inputWidget(), &event);
        }
    }

    /// The body's content.
    QString body() const {
        const QString html = view.documentHTML();
        const qsizetype tag = html.indexOf("<body");
        const qsizetype from = html.indexOf('>', tag) + 1;
        return html.mid(from, html.lastIndexOf("</body>") - from);
    }

    void selectAll() { view.execCommand(HtmlView::SelectAll); }

    /// Puts the caret into the first element that a CSS selector names, after its first characters.
    void caretIn(const QString& selector, int offset = 0) {
        view.evaluate(QStringLiteral("{ const e = document.querySelector('%1'); const t = e.firstChild || e;"
                                     " getSelection().collapse(t, %2); 1 }")
                          .arg(selector)
                          .arg(offset));
    }

    QRect placeOf(const QString& selector) const { return ::placeOf(view, selector); }

    void killRenderer() const { ::killRenderer(view); }

    SureView view;
    QString address;  ///< of the page that documents are written into
};

/// True when reading the document again results in the same one.
inline bool isStable(const QString& html) {
    SureView again(HtmlView::Mode::Design);
    again.setDocumentHTML(html);
    return again.documentHTML() == html;
}
