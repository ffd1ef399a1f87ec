#include <QTextStream>
#include <QWebEngineView>

#include "Typing.h"

// The peer of the design view: a browser view with the same document, and nothing around it. Its library is
// there from the program's start on.
// bare_view --open: milliseconds from nothing to the loaded document. Prints {"ms"}.
// bare_view --keys: typing in a newsletter of 100 KB. Prints {"work": milliseconds of the program's thread
// for a
//   key, the middle one of a hundred}.

namespace {

void load(QWebEngineView& view, const QString& html) {
    bool loaded = false;
    const auto connection =
        QObject::connect(&view, &QWebEngineView::loadFinished, [&loaded] { loaded = true; });
    view.setHtml(html);
    view.show();
    while (!loaded)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QObject::disconnect(connection);
}

void printTyping(QWebEngineView& view) {
    load(view, typing::newsletter());
    view.activateWindow();
    view.setFocus();
    view.page()->runJavaScript(QStringLiteral("document.designMode = 'on'; find('Articolo 200')"));
    typing::turnFor(500);
    const std::vector<double> works = typing::type(*view.focusProxy(), [] {});
    QTextStream(stdout) << "{\"work\": " << typing::middle(works) << "}\n";
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication program(argc, argv);
    QElapsedTimer elapsed;
    elapsed.start();
    QWebEngineView view;
    view.resize(960, 480);
    if (QCoreApplication::arguments().contains(QStringLiteral("--keys"))) {
        printTyping(view);
    } else {
        load(view, QStringLiteral("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>"));
        QTextStream(stdout) << "{\"ms\": " << static_cast<double>(elapsed.nsecsElapsed()) / 1e6 << "}\n";
    }
    return 0;
}
