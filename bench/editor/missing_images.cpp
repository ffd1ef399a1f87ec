// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include "platform/html/HtmlView.h"

// A newsletter of 2.5 MB with 16,000 images. Prints {"ms"}: from setting the document to the answer of the
// first search in it. With --missing the images name files that do not exist; without, they name none.

namespace {

constexpr int images = 16'000;
constexpr qsizetype rowLength = 156;

QString newsletter(bool missing) {
    QString html = QStringLiteral("<html><body>\n");
    for (int i = 0; i < images; ++i) {
        QString row = QStringLiteral("<p><img src=\"%1\" width=80 height=60> Articolo %2 ")
                          .arg(missing ? QStringLiteral("articoli/%1.jpg").arg(i) : QString())
                          .arg(i);
        row += QString(rowLength - row.size() - 5, u'x');
        html += row + QStringLiteral("</p>\n");
    }
    return html + QStringLiteral("</body></html>");
}

/// The result of a view's call; a browser that does not answer ends the measurement.
void sure(const Status& done) {
    if (!done.ok()) qFatal("%s", qUtf8Printable(done.text()));
}

}  // namespace

int main(int argc, char** argv) {
    QApplication program(argc, argv);
    HtmlView view(HtmlView::Mode::Design);
    view.resize(960, 480);
    view.show();
    view.wake();
    const QString html = newsletter(QCoreApplication::arguments().contains(QStringLiteral("--missing")));
    QElapsedTimer elapsed;
    elapsed.start();
    sure(view.setDocumentHTML(html));
    const Result<bool> found = view.find(QStringLiteral("Articolo 15999"));
    sure(found.status());
    if (!found.value()) qFatal("the last row is not found");
    QTextStream(stdout) << "{\"ms\": " << static_cast<double>(elapsed.nsecsElapsed()) / 1e6 << "}\n";
    return 0;
}
