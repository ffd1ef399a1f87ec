// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTextStream>
#include <vector>

#include "Newsletter.h"
#include "platform/html/HtmlView.h"

// edit_view --open: opens the first design view of a process, the browser's code not yet loaded.
//   Prints {"ms"}: until it takes commands.
//
// edit_view --keys SIZE: types in a newsletter of so many characters.
//   Prints {"ms"}: from a key to the new states of the tools and the changed text,
//   the median of seven.

namespace {

constexpr int keys = 7;

void turnFor(int milliseconds) {
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
}

double since(const QElapsedTimer& start) {
    return static_cast<double>(start.nsecsElapsed()) / 1e6;
}

double middle(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The result of a view's call; a browser that does not answer ends the measurement.
template <class T>
T sure(const Result<T>& answer) {
    if (!answer.ok()) qFatal("%s", qUtf8Printable(answer.status().text()));
    return answer.value();
}
void sure(const Status& done) {
    if (!done.ok()) qFatal("%s", qUtf8Printable(done.text()));
}

void printOpening(HtmlView& view) {
    QElapsedTimer elapsed;
    elapsed.start();
    sure(view.setDocumentHTML(QStringLiteral("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>")));
    bool usable = false;
    QObject::connect(&view, &HtmlView::documentComplete, [&usable] { usable = true; });
    view.show();
    while (!usable)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QTextStream(stdout) << "{\"ms\": " << since(elapsed) << "}\n";
}

void sendKey(QWidget* input) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QApplication::sendEvent(input, &event);
    }
}

/// The tools follow the states as the editor's do.
void printTyping(HtmlView& view, qsizetype size) {
    sure(view.setDocumentHTML(newsletter(size)));
    view.show();
    view.wake();
    view.activateWindow();
    view.setFocus();
    sure(view.find(typedArticle()));
    qsizetype known = sure(view.documentHTML()).size();
    bool shown = false;
    QObject::connect(&view, &HtmlView::displayChanged, [&] {
        shown = !view.queryFontName().isNull() && view.queryStatus(HtmlView::Bold) != HtmlView::Unsupported;
    });

    QElapsedTimer start;
    std::vector<double> times;
    for (int key = 0; key <= keys; ++key) {
        turnFor(1000);
        shown = false;
        start.start();
        sendKey(view.inputWidget());
        while (!shown)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        const qsizetype now = sure(view.documentHTML()).size();
        times.push_back(since(start));
        if (key > 0 && now != known + 1) qFatal("a key did not arrive");
        known = now;
    }
    QTextStream(stdout) << "{\"ms\": " << middle(times) << "}\n";
}

}  // namespace

int main(int argc, char** argv) {
    QApplication program(argc, argv);
    HtmlView view(HtmlView::Mode::Design);
    view.resize(960, 480);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--keys")) {
        printTyping(view, arguments.value(2).toLongLong());
    } else {
        printOpening(view);
    }
    return 0;
}
