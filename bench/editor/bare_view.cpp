// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <optional>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTextStream>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>
#include <vector>

#include "Newsletter.h"

// The peer of the design view: a browser view with the same document, nothing else.
// bare_view: prints {"ms"}, from nothing to the loaded document; its library is loaded at the start.
// bare_view --keys SIZE: prints {"ms"}, from a key in a newsletter of so many characters to the states
//   that the editor's tools show and the changed text, each by one query: the median of seven.

namespace {

constexpr int keys = 7;

// The states that the editor's tools show, as the browser's own queries
const QString statesScript = QStringLiteral(
    "[['fontName', 'fontSize', 'foreColor'].map((name) => document.queryCommandValue(name)),"
    " ['bold', 'italic', 'underline', 'justifyLeft', 'justifyCenter', 'justifyRight', 'insertOrderedList',"
    " 'insertUnorderedList'].map((name) => document.queryCommandState(name))]");

double since(const QElapsedTimer& start) {
    return static_cast<double>(start.nsecsElapsed()) / 1e6;
}

void load(QWebEngineView& view, const QString& html) {
    bool loaded = false;
    const auto connection =
        QObject::connect(&view, &QWebEngineView::loadFinished, [&loaded] { loaded = true; });
    view.setHtml(html, QUrl(QStringLiteral("file:///")));
    view.show();
    while (!loaded)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QObject::disconnect(connection);
}

QVariant answer(QWebEngineView& view, const QString& script) {
    std::optional<QVariant> value;
    view.page()->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                               [&value](const QVariant& answered) { value = answered; });
    while (!value)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return *value;
}

void turnFor(int milliseconds) {
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
}

QString quoted(QString text) {
    return u'`' + text.replace(u'\\', QLatin1String("\\\\")).replace(u'`', QLatin1String("\\`")) + u'`';
}

void printTyping(QWebEngineView& view, qsizetype size) {
    load(view, QStringLiteral("<html></html>"));
    answer(view,
           QStringLiteral("document.open(); document.write(%1); document.close(); document.designMode = 'on';"
                          " globalThis.keys = 0; addEventListener('keyup', () => { keys += 1 }, true);"
                          " document.body.focus(); find('%2')")
               .arg(quoted(newsletter(size)), typedArticle()));
    view.activateWindow();
    view.setFocus();
    QWidget* input = view.focusProxy();
    qsizetype known = 0;
    std::vector<double> times;
    QElapsedTimer start;
    for (int key = 0; key <= keys; ++key) {
        turnFor(1000);
        start.start();
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
            QApplication::sendEvent(input, &event);
        }
        while (answer(view, QStringLiteral("keys")).toInt() <= key) {
        }
        if (answer(view, statesScript).toList().size() != 2) qFatal("no states");
        const qsizetype now =
            answer(view, QStringLiteral("document.documentElement.outerHTML")).toString().size();
        times.push_back(since(start));
        if (key > 0 && now != known + 1) qFatal("a key did not arrive");
        known = now;
    }
    std::sort(times.begin(), times.end());
    QTextStream(stdout) << "{\"ms\": " << times[times.size() / 2] << "}\n";
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication program(argc, argv);
    QElapsedTimer elapsed;
    elapsed.start();
    QWebEngineView view;
    view.resize(960, 480);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--keys")) {
        printTyping(view, arguments.value(2).toLongLong());
        return 0;
    }
    load(view, QStringLiteral("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>"));
    QTextStream(stdout) << "{\"ms\": " << since(elapsed) << "}\n";
    return 0;
}
