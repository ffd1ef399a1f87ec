#include "platform/ui/Desktop.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include "platform/ui/Style.h"

// Outside any namespace, as the resource compiler asks; without it the linker drops the icons of a static
// library.
static void registerIcons() {
    Q_INIT_RESOURCE(vestrola_icons);
}

namespace ui {

void setUpDesktop(QApplication& application) {
    registerIcons();
    // The desktop's own theme is not asked: the windows are always light, a dark desktop would hand out white
    // icons.
    QIcon::setThemeName(QStringLiteral("vestrola"));
    QApplication::setStyle(new Style);

    auto* texts = new QTranslator(&application);
    if (texts->load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(texts);
}

}  // namespace ui
