// SPDX-License-Identifier: GPL-3.0-or-later
#include "unattended.h"

#include <cstdio>
#include <QApplication>
#include <QLocale>
#include <QTimer>

#include "modules/core/Prodotto.h"
#include "modules/lang/bLANG.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/Language.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Unattended.h"
#include "windows/entry/bMain.h"

int runUnattended(int argc, char** argv, const char* usage,
                  const std::function<void(const QStringList& arguments)>& play) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.size() != QString(usage).split(' ').size() - 1) {
        std::fprintf(stderr, "usage: %s\n", usage);
        return 2;
    }
    QApplication::setApplicationName(prodotto::nome());
    QLocale::setDefault(QLocale(qEnvironmentVariable("DEMO_LOCALE", "it_IT")));
    sys::setProgramFolder(arguments.first());
    ui::setUnattended(true);
    ui::setUpDesktop(application);
    text::setLanguage(bLANG::CodiceLingua());
    text::setLanguage(bLANG::CodiceLingua());
    SubMain();
    QTimer::singleShot(0, [&] {
        play(arguments);
        QApplication::exit(0);
    });
    return QApplication::exec();
}
