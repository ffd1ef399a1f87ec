// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/Language.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>

// Outside any namespace, as the resource compiler asks; without it the linker drops the resource of a static
// library.
static void registerTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace text {

void setLanguage(const QString& language) {
    registerTranslations();
    const QString known =
        QStringList{"en", "es", "fr", "de"}.contains(language) ? language : QStringLiteral("it");
    QCoreApplication* application = QCoreApplication::instance();
    const QString mark = QStringLiteral("language");
    qDeleteAll(application->findChildren<QTranslator*>(mark, Qt::FindDirectChildrenOnly));
    // The one installed last is asked first.
    for (const char* part : {"qtbase", "toolkit", "vestrola"}) {
        auto* texts = new QTranslator(application);
        texts->setObjectName(mark);
        if (texts->load(QStringLiteral(":/translations/%1_%2.qm").arg(QLatin1String(part), known)))
            QCoreApplication::installTranslator(texts);
        else
            delete texts;  // not every language needs each part
    }
}

}  // namespace text
