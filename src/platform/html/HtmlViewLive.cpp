// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/HtmlViewLive.h"

#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <QJsonObject>
#include <QLabel>
#include <QUuid>
#include <QVBoxLayout>
#include <utility>

#include "platform/html/Bounds.h"
#include "platform/html/ClipboardContent.h"
#include "platform/html/HtmlDocument.h"
#include "platform/html/HtmlViewPlugin.h"
#include "platform/html/MissingImages.h"
#include "platform/html/SourceText.h"
#include "platform/text/Words.h"

namespace {

constexpr int startMilliseconds = 30000;

// A copy of the text is taken after each change, but for at most a tenth of the time
constexpr int restPerWork = 9;

// A document that repeatedly crashes the browser's process is not retried for ever
constexpr int deathsInARow = 3;
constexpr int deathsAreInARowWithin = 30000;

// No document can contain it
QString newMissingMark() {
    return QStringLiteral("data:image/x-%1,").arg(QUuid::createUuid().toString(QUuid::WithoutBraces));
}

}  // namespace

HtmlView::Live::Live(HtmlView& owner, Mode viewMode)
    : view(owner), mode(viewMode), m_missingMark(newMissingMark()) {
    m_followTimer.setSingleShot(true);
    QObject::connect(&m_followTimer, &QTimer::timeout, &view, [this] { follow(); });
    // Windows may outlive the application object, a browser may not.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &view, [this] { end(); });
}

HtmlView::Live::~Live() {
    // outstanding answers come back now, while their receiver exists
    live = false;
    delete browser.widget;
}

void HtmlView::Live::begin() {
    if (browser.widget != nullptr || m_failed) return;
    BrowserEvents events;
    events.started = [this] { write(); };
    events.died = [this] { died(); };
    events.said = [this](const QString& message) { heard(message); };
    events.menu = [this](const QPoint& place) { Q_EMIT view.contextMenuRequested(place); };
    events.dragged = [this](const QMimeData& data) {
        return mode == Mode::Design && !clipboardContent(data).isEmpty();
    };
    events.dropped = [this](const QPoint& place, const QMimeData& data) { return dropped(place, data); };
    const Status loaded = createBrowserOf(&view, events, browser);
    if (!loaded.ok()) return fail(loaded.text());
    view.layout()->addWidget(browser.widget);
    if (!m_defaultFont.isEmpty()) {
        QFont font(m_defaultFont);
        font.setStyleHint(QFont::SansSerif);
        m_standardFont = QFontInfo(font).family().toUpper();
        browser.setStandardFont(m_standardFont);
    }
    browser.start();
}

bool HtmlView::Live::ensure() {
    begin();
    waitFor([this] { return live || m_failed; }, startMilliseconds);
    return live;
}

// A notice in place of the document says what happened; the text itself is safe
void HtmlView::Live::fail(const QString& reason) {
    m_failed = true;
    m_failure = reason;
    wakeWaiting();
    delete std::exchange(browser.widget, nullptr);
    m_notice = new QLabel(reason, &view);
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->setWordWrap(true);
    view.layout()->addWidget(m_notice);
}

Status HtmlView::Live::setSource(const QString& html) {
    Status fits;
    QString source;
    longWork([&] {
        fits = html::readable(html);
        if (fits.ok()) source = html::sourceText(html);
    });
    if (!fits.ok()) return fits;
    awaitStrokes();  // what was typed before goes with the old document
    m_source = source;
    m_text = QString();
    m_followTimer.setInterval(0);  // the cost of the last document says nothing about this one
    if (std::exchange(m_deaths, 0) >= deathsInARow) tryAgain();
    if (!live && !m_writing) return {};
    write();
    if (!live) return {};
    waitFor([this] { return !m_writing || !live; }, m_stalled ? patience(Wait::Brief) : startMilliseconds);
    if (!m_writing || !live) return {};
    m_stalled = true;
    return noAnswer();
}

// The document that was given up may have been the reason
void HtmlView::Live::tryAgain() {
    m_failed = false;
    delete m_notice;
    if (view.isVisible()) begin();
}

// However the document changes while one is being loaded, the last one is written last
void HtmlView::Live::write() {
    QJsonObject shown;
    for (auto mark = marks.cbegin(); mark != marks.cend(); ++mark)
        shown[mark.key()] = mark.value();
    m_writing = true;
    forgetRead();
    QString script;
    longWork([&] {
        const QString marked = html::markMissingImages(m_source, m_missingMark);
        const QString mark = marked == m_source ? QString() : m_missingMark;
        script = QStringLiteral("editor.load(%1); [editor.commands.state(), editor.history.version]")
                     .arg(arguments({marked, mode == Mode::Design, shown, mark}));
    });
    browser.run(script, [this, number = ++m_lastWrite](const QVariant& answer) {
        if (number != m_lastWrite) return;
        m_writing = false;
        m_stalled = false;
        takeState(answer.toList().value(0).toMap());
        m_toldVersion = answer.toList().value(1).toInt();
        written();
    });
}

void HtmlView::Live::written() {
    live = true;
    takeInput();
    wakeWaiting();
    Q_EMIT view.documentComplete();
    refreshState();
}

// The widget that receives the document's keys exists as long as the browser's process. It takes the view's
// place in the tab order.
void HtmlView::Live::takeInput() {
    QWidget* input = view.inputWidget();
    if (input == nullptr || input == m_input) return;
    m_input = input;
    input->installEventFilter(&view);
    input->setAccessibleName(view.accessibleName());
    view.setFocusPolicy(Qt::StrongFocus);  // without one it has no place
    QWidget::setTabOrder(&view, input);
    view.setFocusPolicy(Qt::NoFocus);
    if (view.hasFocus() || browser.widget->hasFocus()) input->setFocus();
}

Result<QString> HtmlView::Live::text() {
    awaitStrokes();
    // A question that is on its way may be older than the last change.
    bool answered = haveRead();
    if (answered && live) {
        read();
        answered = haveRead();
    }
    // If the process died meanwhile, the copy is the newest text there is.
    if (!answered && live) {
        m_stalled = true;
        return noAnswer();
    }
    return knownText();
}

QString HtmlView::Live::knownText() {
    if (m_text.isNull()) {
        HtmlDocument document;
        // It was parsed when it was set; the time limit of a parse may fail this one
        longWork(
            [&] { m_text = document.setDocumentHTML(m_source).ok() ? document.documentHTML() : m_source; });
    }
    return m_text;
}

void HtmlView::Live::takeText(const QVariant& answer) {
    const QVariantMap newer = answer.toMap();
    if (newer.isEmpty()) return;
    m_version = newer.value(QStringLiteral("version")).toInt();
    const QString text = newer.value(QStringLiteral("text")).toString();
    if (newer.value(QStringLiteral("whole")).toBool())
        m_serialised = text;
    else
        m_serialised.replace(newer.value(QStringLiteral("from")).toLongLong(),
                             newer.value(QStringLiteral("removed")).toLongLong(), text);
    m_text = html::ansiForm(m_serialised);
}

void HtmlView::Live::tellFollowed() {
    if (m_version >= 0 && std::exchange(m_toldVersion, m_version) != m_version) Q_EMIT view.followed();
}

// Asks for what changed in the text. One such question at a time, as each answer builds on the last.
void HtmlView::Live::read() {
    QElapsedTimer work;
    work.start();
    m_reading = true;
    browser.run(QStringLiteral("editor.text.readNewer(%1)").arg(m_version),
                [this, work, document = m_lastWrite](const QVariant& answer) {
                    if (document != m_lastWrite) return;
                    m_reading = false;
                    m_stalled = false;
                    takeText(answer);
                    wakeWaiting();
                    tellFollowed();
                    m_followTimer.setInterval(static_cast<int>(work.elapsed()) * restPerWork);
                    if (std::exchange(m_followDue, false)) m_followTimer.start();
                });
}

void HtmlView::Live::forgetRead() {
    m_reading = m_followDue = false;
    m_version = -1;
    m_serialised.clear();
}

bool HtmlView::Live::haveRead() {
    return waitFor([this] { return !m_reading || !live; }, patience(Wait::Long));
}

// Keeps the copy that outlives the browser's process
void HtmlView::Live::follow() {
    if (!live) return;
    if (m_reading)
        m_followDue = true;
    else
        read();
}

void HtmlView::Live::keepText() {
    live = false;
    m_source = knownText();
    m_stalled = false;
    m_stateDue = false;
    forgetRead();
    m_writing = false;
    ++m_lastWrite;  // the process may be gone, its answers still come
    m_strokes = m_strokesSeen = 0;
    state.clear();
    wakeWaiting();
}

void HtmlView::Live::end() {
    static_cast<void>(text());
    keepText();
    m_failed = true;
    delete std::exchange(browser.widget, nullptr);
}

void HtmlView::Live::died() {
    keepText();
    const bool inARow = m_lastDeath.isValid() && m_lastDeath.elapsed() < deathsAreInARowWithin;
    m_deaths = inARow ? m_deaths + 1 : 1;
    m_lastDeath.start();
    QTimer::singleShot(0, &view, [this] {
        if (m_deaths < deathsInARow) {
            browser.start();
        } else {
            fail(Words::tr("Impossibile mostrare il messaggio. Il testo è conservato."));
        }
    });
}
