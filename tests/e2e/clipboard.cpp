// SPDX-License-Identifier: GPL-3.0-or-later
// Puts HTML from the standard input on the clipboard, as the browser that it was copied from would, and
// keeps it there until it is ended. Prints "ready" when it is there.
#include <cstdio>
#include <memory>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) return 1;
    auto content = std::make_unique<QMimeData>();
    content->setHtml(QString::fromUtf8(input.readAll()));
    QGuiApplication::clipboard()->setMimeData(content.release());
    std::puts("ready");
    std::fflush(stdout);
    return QGuiApplication::exec();
}
