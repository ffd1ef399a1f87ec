#include <QTextStream>

#include "platform/html/HtmlView.h"
#include "Typing.h"

// edit_view --open: milliseconds from nothing to a design view that takes commands, the browser's code not
// yet
//   loaded. Prints {"ms"}.
// edit_view --keys: typing in a newsletter of 100 KB. Prints {"mark": milliseconds from a key's release to
// the
//   signal that marks the message as changed, the slowest of a hundred but five, "work": milliseconds of the
//   program's thread for a key until the tools show the new state and the copy of the text is taken, the
//   middle one}.

namespace {

void printOpening(HtmlView& view) {
    QElapsedTimer elapsed;
    elapsed.start();
    view.setDocumentHTML(QStringLiteral("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>"));
    bool usable = false;
    QObject::connect(&view, &HtmlView::documentComplete, [&usable] { usable = true; });
    view.show();
    while (!usable)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QTextStream(stdout) << "{\"ms\": " << static_cast<double>(elapsed.nsecsElapsed()) / 1e6 << "}\n";
}

void printTyping(HtmlView& view) {
    view.setDocumentHTML(typing::newsletter());
    view.show();
    view.wake();
    view.activateWindow();
    view.setFocus();
    view.find(QStringLiteral("Articolo 200"));
    typing::turnFor(500);

    QElapsedTimer sinceRelease;
    std::vector<double> marks;
    QObject::connect(&view, &HtmlView::keyReleased,
                     [&] { marks.push_back(static_cast<double>(sinceRelease.nsecsElapsed()) / 1e6); });
    const qsizetype before = view.documentHTML().size();
    const std::vector<double> works =
        typing::type(*view.inputWidget(), [&sinceRelease] { sinceRelease.start(); });
    if (marks.size() != typing::keys || view.documentHTML().size() - before < typing::keys / 2) {
        qFatal("the keys did not arrive");
    }
    QTextStream(stdout) << "{\"mark\": " << typing::slowest(marks) << ", \"work\": " << typing::middle(works)
                        << "}\n";
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
