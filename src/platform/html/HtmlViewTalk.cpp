#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QMimeData>
#include <utility>

#include "platform/html/ClipboardContent.h"
#include "platform/html/HtmlViewLive.h"

// How a view and the editing scripts talk: questions with their answers, and what the scripts tell by
// themselves.

namespace {

constexpr int answerMilliseconds = 5000;
constexpr int millisecondsPerMegabyte = 3000;
constexpr int strokesMilliseconds = 400;

}  // namespace

QString HtmlView::Live::arguments(const QJsonArray& values) {
    const QByteArray list = QJsonDocument(values).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

QVariant HtmlView::Live::ask(const QString& script) {
    if (!ensure()) return {};
    struct Answer {
        bool there = false;
        QVariant value;
    };
    const auto answer = std::make_shared<Answer>();
    browser.run(script, [this, answer](const QVariant& value) {
        answer->there = true;
        answer->value = value;
        wakeWaiting();
    });
    const qsizetype megabytes = (m_source.size() + m_text.size()) >> 20;
    waitFor([this, &answer] { return answer->there || !live; },
            answerMilliseconds + millisecondsPerMegabyte * static_cast<int>(megabytes));
    return answer->value;
}

// Keys take another way into the browser's process than scripts do, and may come later
void HtmlView::Live::awaitStrokes() {
    if (!live || m_strokes == m_strokesSeen) return;
    QElapsedTimer elapsed;
    elapsed.start();
    do {
        m_strokesSeen = ask(QStringLiteral("editor.strokes")).toInt();
    } while (live && m_strokesSeen < m_strokes && elapsed.elapsed() < strokesMilliseconds);
    m_strokes = m_strokesSeen;
}

QVariant HtmlView::Live::change(const QString& function, const QJsonArray& values) {
    awaitStrokes();  // what was typed before comes before
    const QVariantMap answer = ask(QStringLiteral("(() => { const result = editor.step(() => editor.%1(%2));"
                                                  " return { result, state: editor.commands.state() }; })()")
                                       .arg(function, arguments(values)))
                                   .toMap();
    if (!answer.isEmpty()) state = answer.value(QStringLiteral("state")).toMap();
    return answer.value(QStringLiteral("result"));
}

bool HtmlView::Live::paste() {
    const QMimeData* data = QApplication::clipboard()->mimeData();
    return mode == Mode::Design && data != nullptr &&
           change(QStringLiteral("insert.paste"), {clipboardContent(*data)}).toBool();
}

bool HtmlView::Live::dropped(const QPoint& place, const QMimeData& data) {
    const QJsonObject content = clipboardContent(data);
    if (mode != Mode::Design || content.isEmpty()) return false;
    const bool inserted = change(QStringLiteral("insert.dropAt"), {place.x(), place.y(), content}).toBool();
    if (inserted) Q_EMIT view.dropped();
    return inserted;
}

bool HtmlView::Live::waitFor(const std::function<bool()>& done, int milliseconds) {
    QElapsedTimer elapsed;
    elapsed.start();
    while (!done()) {
        const qint64 left = milliseconds - elapsed.elapsed();
        if (left <= 0) return false;
        QEventLoop loop;
        QTimer::singleShot(static_cast<int>(left), &loop, &QEventLoop::quit);
        m_waiting.push_back(&loop);
        // The caller may itself be handling a queued event: those queued behind it, the browser's among them,
        // would otherwise rest until something new comes.
        QAbstractEventDispatcher::instance()->wakeUp();
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        std::erase(m_waiting, &loop);
    }
    return true;
}

void HtmlView::Live::wakeWaiting() {
    for (QEventLoop* loop : m_waiting)
        loop->quit();
}

void HtmlView::Live::heard(const QString& message) {
    const QString what =
        QJsonDocument::fromJson(message.toUtf8()).object().value(QLatin1String("what")).toString();
    if (what == QLatin1String("doubleClick")) {
        Q_EMIT view.doubleClicked();
    } else if (what == QLatin1String("paste")) {
        paste();
    } else {
        if (what == QLatin1String("changed") && !m_followTimer.isActive()) m_followTimer.start();
        refreshState();
    }
}

void HtmlView::Live::refreshState() {
    if (std::exchange(m_stateDue, true)) return;
    browser.run(QStringLiteral("editor.commands.state()"), [this](const QVariant& answer) {
        m_stateDue = false;
        if (!live) return;
        state = answer.toMap();
        Q_EMIT view.displayChanged();
    });
}

// With the Tab key the browser would go to the first link of the document, and past a document without one.
// Here the focus goes to the caret, however it comes. True when the widget must not see the event.
bool HtmlView::Live::focusArrives(Qt::FocusReason reason) {
    if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason) return false;
    QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
    QApplication::sendEvent(m_input, &plain);
    return true;
}

// A key that the window takes as a shortcut is never pressed here, only released; it and the modifiers that
// were held with it are no strokes of the document. The browser is not asked whether it wants the key for
// itself: the window's shortcuts run the same commands.
bool HtmlView::Live::filter(QEvent& event) {
    switch (event.type()) {
        case QEvent::ShortcutOverride:
            m_strokeIsShortcut = true;
            event.ignore();
            return true;
        case QEvent::KeyPress:
            m_strokeIsShortcut = false;
            return false;
        case QEvent::KeyRelease:
            if (mode == Mode::Design && !static_cast<QKeyEvent&>(event).isAutoRepeat()) ++m_strokes;
            if (!m_strokeIsShortcut) Q_EMIT view.keyReleased();
            return false;
        case QEvent::FocusIn:
            return focusArrives(static_cast<QFocusEvent&>(event).reason());
        case QEvent::FocusOut: {
            const Qt::FocusReason reason = static_cast<QFocusEvent&>(event).reason();
            const bool toOtherControl = reason != Qt::ActiveWindowFocusReason &&
                                        reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
            if (toOtherControl && QApplication::focusWidget() != &view) Q_EMIT view.validated();
            return false;
        }
        default:
            return false;
    }
}
