// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include "platform/html/HtmlView.h"
#include "platform/ui/SourceEdit.h"
#include "platform/ui/TabStrip.h"

// A newsletter of 5 MB in the source view and in the preview, each from the text to the painted tab. Prints
// {"source", "preview"}, milliseconds. With --line the whole text is one line.

namespace {

constexpr qsizetype size = 5'000'000;

QString newsletter(bool oneLine) {
    QString html = QStringLiteral("<html><body>");
    for (int i = 0; html.size() < size; ++i) {
        html += QStringLiteral(
                    "<p>Gentile :::nom:::, il prezzo dell'articolo %1 resta quello dell'anno passato: in "
                    "settimana le scriviamo.</p>\n")
                    .arg(i);
    }
    html += QStringLiteral("</body></html>");
    return oneLine ? html.remove(u'\n') : html;
}

double since(const QElapsedTimer& start) {
    return static_cast<double>(start.nsecsElapsed()) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication program(argc, argv);
    ui::TabStrip tabs;
    auto* preview = new HtmlView(HtmlView::Mode::Browse);
    auto* source = new ui::SourceEdit;
    tabs.addView(preview, QStringLiteral("Anteprima"), QStringLiteral("view-visible"));
    tabs.addView(source, QStringLiteral("Origine"), QStringLiteral("text-html"));
    source->setFontName(QStringLiteral("Courier New"));
    tabs.resize(960, 480);
    tabs.show();
    preview->wake();
    const QString html = newsletter(QCoreApplication::arguments().contains(QStringLiteral("--line")));

    QElapsedTimer start;
    start.start();
    static_cast<void>(preview->setDocumentHTML(html));
    preview->grab();
    const double previewed = since(start);

    tabs.setCurrentIndex(1);
    QCoreApplication::processEvents();
    start.start();
    source->setText(html);
    source->grab();
    QCoreApplication::processEvents();
    const double shown = since(start);
    QTextStream(stdout) << "{\"source\": " << shown << ", \"preview\": " << previewed << "}\n";
    return 0;
}
