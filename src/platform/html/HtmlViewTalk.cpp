// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <optional>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QMimeData>
#include <QTimer>
#include <utility>

#include "platform/html/Bounds.h"
#include "platform/html/ClipboardContent.h"
#include "platform/html/HtmlViewLive.h"
#include "platform/system/ProcessorWait.h"
#include "platform/text/Words.h"

// The communication of a view with the editing scripts: questions with their answers, and the scripts' own
// notifications.

namespace {

constexpr int answerMilliseconds = 5000;
constexpr int millisecondsPerMegabyte = 10000;
constexpr int stalledMilliseconds = 300;
constexpr int strokesMilliseconds = 400;
constexpr int hourglassMilliseconds = 150;
constexpr int quickMilliseconds = 100;
constexpr int shortestWaitMilliseconds = 20;

// What comes from outside has the bounds of a body
Status contentFits(const QJsonObject& content) {
    Status text = html::boundSize(content.value(QLatin1String("text")).toString().size());
    return text.ok() ? html::readable(content.value(QLatin1String("html")).toString()) : text;
}

// A longer wait shows in the pointer
class Hourglass {
  public:
    Hourglass() {
        m_due.setSingleShot(true);
        m_due.callOnTimeout([this] {
            m_shown = true;
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        });
        m_due.start(hourglassMilliseconds);
    }
    ~Hourglass() {
        if (m_shown) QGuiApplication::restoreOverrideCursor();
    }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    QTimer m_due;
    bool m_shown = false;
};

}  // namespace

Status HtmlView::Live::noAnswer() {
    return {ErrorCode::Timeout, Words::tr("La vista del messaggio non risponde.")};
}

QString HtmlView::Live::arguments(const QJsonArray& values) {
    const QByteArray list = QJsonDocument(values).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

Result<QVariant> HtmlView::Live::ask(const QString& script, Wait wait) {
    if (!ensure()) return m_failed ? Status(ErrorCode::FileNotFound, m_failure) : noAnswer();
    struct Answer {
        bool there = false;
        QVariant value;
    };
    const auto answer = std::make_shared<Answer>();
    browser.run(script, [this, answer](const QVariant& value) {
        answer->there = true;
        answer->value = value;
        m_stalled = false;
        wakeWaiting();
    });
    waitFor([this, &answer] { return answer->there || !live; }, patience(wait));
    if (answer->there) return answer->value;
    m_stalled = live;
    return noAnswer();
}

// How long an answer may take
int HtmlView::Live::patience(Wait wait) const {
    if (m_stalled && wait == Wait::Brief) return stalledMilliseconds;
    const qsizetype megabytes = (m_source.size() + m_text.size()) >> 20;
    return answerMilliseconds + millisecondsPerMegabyte * static_cast<int>(megabytes);
}

Result<QString> HtmlView::Live::askText(const QString& script) {
    const Result<QVariant> answer = ask(script);
    if (!answer.ok()) return answer.status();
    return answer.value().toString();
}

Status HtmlView::Live::tell(const QString& script) {
    return ask(script).status();
}

Status HtmlView::Live::responds() {
    const Status answered = live ? ask(QStringLiteral("1"), Wait::Long).status() : Status();
    // A process that died meanwhile left its text.
    return live ? answered : Status();
}

// Keys take another way into the browser's process than scripts do, and may come later
void HtmlView::Live::awaitStrokes() {
    if (!live || m_strokes == m_strokesSeen) return;
    QElapsedTimer elapsed;
    elapsed.start();
    do {
        const Result<QVariant> seen = ask(QStringLiteral("editor.strokes"));
        if (!seen.ok()) return;  // they have not arrived yet
        m_strokesSeen = seen.value().toInt();
    } while (live && m_strokesSeen < m_strokes && elapsed.elapsed() < strokesMilliseconds);
    m_strokes = m_strokesSeen;
}

Result<QVariant> HtmlView::Live::change(const QString& function, const QJsonArray& values) {
    awaitStrokes();  // what was typed before comes before
    const Result<QVariant> answer =
        ask(QStringLiteral("(() => { const result = editor.step(() => editor.%1(%2));"
                           " return { result, state: editor.commands.state() }; })()")
                .arg(function, arguments(values)));
    if (!answer.ok()) return answer.status();
    const QVariantMap done = answer.value().toMap();
    if (!done.isEmpty()) takeState(done.value(QStringLiteral("state")).toMap());
    return done.value(QStringLiteral("result"));
}

Result<bool> HtmlView::Live::changeDone(const QString& function, const QJsonArray& values) {
    if (mode != Mode::Design) return false;
    const Result<QVariant> result = change(function, values);
    if (!result.ok()) return result.status();
    return result.value().toBool();
}

Result<bool> HtmlView::Live::paste() {
    const QMimeData* data = QApplication::clipboard()->mimeData();
    if (data == nullptr) return false;
    return paste(clipboardContent(*data));
}

Result<bool> HtmlView::Live::paste(const QJsonObject& content) {
    if (Status fits = contentFits(content); !fits.ok()) return fits;
    Result<bool> inserted = changeDone(QStringLiteral("insert.paste"), {content});
    if (inserted.ok() && inserted.value()) tellFiles(content);
    return inserted;
}

void HtmlView::Live::tellFiles(const QJsonObject& content) {
    const QVariantList images = content.value(QLatin1String("images")).toArray().toVariantList();
    if (!images.isEmpty() && !content.contains(QLatin1String("html")))
        Q_EMIT view.filesInserted(QVariant(images).toStringList());
}

bool HtmlView::Live::dropped(const QPoint& place, const QMimeData& data) {
    const QJsonObject content = clipboardContent(data);
    if (content.isEmpty()) return false;
    if (const Status fits = contentFits(content); !fits.ok()) {
        Q_EMIT view.refused(fits.text());
        return false;
    }
    const Result<bool> inserted =
        changeDone(QStringLiteral("insert.dropAt"), {place.x(), place.y(), content});
    if (!inserted.ok() || !inserted.value()) return false;
    tellFiles(content);
    Q_EMIT view.dropped();
    return true;
}

// On a machine that is busy with other things the browser needs longer: what it waits for a processor does
// not count. Only a longer wait looks at that.
bool HtmlView::Live::waitFor(const std::function<bool()>& done, int milliseconds) {
    if (done()) return true;
    const Hourglass hourglass;
    QElapsedTimer elapsed;
    elapsed.start();
    std::optional<ProcessorWait> others;
    while (!done()) {
        if (!others && elapsed.elapsed() >= quickMilliseconds && browser.widget != nullptr)
            others.emplace(browser.process());
        const qint64 left = milliseconds - elapsed.elapsed() + (others ? others->milliseconds() : 0);
        if (left <= 0) return false;
        const int longest = others ? milliseconds : quickMilliseconds;
        QEventLoop loop;
        QTimer::singleShot(std::clamp(static_cast<int>(left), shortestWaitMilliseconds, longest), &loop,
                           &QEventLoop::quit);
        m_waiting.push_back(&loop);
        // The caller may itself be handling a queued event: those queued after it, the browser's among them,
        // would otherwise wait until something new comes.
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
    const QJsonObject told = QJsonDocument::fromJson(message.toUtf8()).object();
    const QString what = told.value(QLatin1String("what")).toString();
    if (what == QLatin1String("doubleClick")) {
        Q_EMIT view.doubleClicked();
    } else if (what == QLatin1String("paste")) {
        const QJsonObject content = told.value(QLatin1String("detail")).toObject();
        const Result<bool> pasted = content.isEmpty() ? paste() : paste(content);
        if (pasted.status().code() == ErrorCode::Overflow) Q_EMIT view.refused(pasted.status().text());
    } else if (what == QLatin1String("remote")) {
        Q_EMIT view.staysOnTheWeb(told.value(QLatin1String("detail")).toVariant().toStringList());
    } else if (what == QLatin1String("leftOut")) {
        Q_EMIT view.leftOut(told.value(QLatin1String("detail")).toVariant().toStringList());
    } else {
        if (what == QLatin1String("changed") && !m_followTimer.isActive()) m_followTimer.start();
        refreshState();
    }
}

void HtmlView::Live::refreshState() {
    if (std::exchange(m_stateDue, true)) return;
    browser.run(QStringLiteral("editor.commands.state()"), [this](const QVariant& answer) {
        m_stateDue = false;
        m_stalled = false;
        if (!live) return;
        takeState(answer.toMap());
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
