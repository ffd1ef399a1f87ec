#include <algorithm>
#include <ctime>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTextStream>
#include <vector>

#include "platform/html/HtmlView.h"

// edit_view --open: milliseconds from nothing to a design view that takes commands, the browser's code not
// yet
//   loaded. Prints {"ms"}.
// edit_view --keys: typing in a newsletter of 100 KB. Prints {"mark": milliseconds from a key's release to
// the
//   signal that marks the message as changed, the slowest of a hundred but five, "work": milliseconds of the
//   program's thread from there until the tools' new states and the changed text are here, the middle one}.

namespace {

constexpr int keys = 100;
constexpr int ignored = 5;

void turnFor(int milliseconds) {
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
}

double since(const QElapsedTimer& start) {
    return static_cast<double>(start.nsecsElapsed()) / 1e6;
}

double threadMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double middle(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double slowest(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() - 1 - ignored];
}

QString newsletter() {
    QString html = QStringLiteral("<html><body><table width=600>");
    for (int i = 0; html.size() < 100'000; ++i) {
        html +=
            QStringLiteral(
                "<tr><td><img src=articolo%1.jpg width=80 height=60></td><td><font face=Verdana size=2><b>"
                "Articolo %1</b><br>Prezzo :::campo1::: per :::rgs:::</font></td></tr>\n")
                .arg(i);
    }
    return html + QStringLiteral("</table></body></html>");
}

/// What a call of a view gave; a browser that does not answer ends the measurement.
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

void printTyping(HtmlView& view) {
    sure(view.setDocumentHTML(newsletter()));
    view.show();
    view.wake();
    view.activateWindow();
    view.setFocus();
    sure(view.find(QStringLiteral("Articolo 200")));
    turnFor(500);

    QElapsedTimer start;
    std::vector<double> marks;
    std::vector<double> works;
    QObject::connect(&view, &HtmlView::keyReleased, [&] { marks.push_back(since(start)); });
    qsizetype known = sure(view.documentHTML()).size();
    for (int key = 0; key < keys; ++key) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QApplication::sendEvent(view.inputWidget(), &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        start.start();
        QApplication::sendEvent(view.inputWidget(), &release);
        const double before = threadMilliseconds();
        sure(view.execCommand(HtmlView::GetFontName));
        const qsizetype size = sure(view.documentHTML()).size();
        works.push_back(threadMilliseconds() - before);
        if (key > 0 && size != known + 1) qFatal("a key did not arrive");
        known = size;
        turnFor(30);
    }
    QTextStream(stdout) << "{\"mark\": " << slowest(marks) << ", \"work\": " << middle(works) << "}\n";
}

}  // namespace

int main(int argc, char** argv) {
    QApplication program(argc, argv);
    HtmlView view(HtmlView::Mode::Design);
    view.resize(960, 480);
    if (QCoreApplication::arguments().contains(QStringLiteral("--keys"))) {
        printTyping(view);
    } else {
        printOpening(view);
    }
    return 0;
}
