#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>
#include <QWebEngineView>

// The peer of the design view's first opening: a browser view with the same document, and nothing around it.
// Its library is there from the program's start on. Prints {"ms"}, from nothing to the loaded document.

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

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication program(argc, argv);
    QElapsedTimer elapsed;
    elapsed.start();
    QWebEngineView view;
    view.resize(960, 480);
    load(view, QStringLiteral("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>"));
    QTextStream(stdout) << "{\"ms\": " << static_cast<double>(elapsed.nsecsElapsed()) / 1e6 << "}\n";
    return 0;
}
