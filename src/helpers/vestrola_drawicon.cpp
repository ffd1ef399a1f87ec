// SPDX-License-Identifier: GPL-3.0-or-later
// vestrola_drawicon DRAWING.svg PICTURE.png SIZE [PICTURE.png SIZE]...: draws an icon in the sizes in which
// desktops look for it, for the build.
#include <cstdio>
#include <QCoreApplication>
#include <QImage>
#include <QImageReader>

namespace {

bool draw(const QString& drawing, const QString& picture, int size) {
    QImageReader reader(drawing);
    reader.setScaledSize({size, size});
    const QImage image = reader.read();
    if (image.isNull()) std::fprintf(stderr, "%s\n", qPrintable(reader.errorString()));
    return !image.isNull() && image.save(picture, "PNG");
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    for (qsizetype i = 2; i + 1 < arguments.size(); i += 2) {
        if (draw(arguments[1], arguments[i], arguments[i + 1].toInt())) continue;
        std::fprintf(stderr, "vestrola_drawicon: %s\n", qPrintable(arguments[i]));
        return 1;
    }
    return 0;
}
