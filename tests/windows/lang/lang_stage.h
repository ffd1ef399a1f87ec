// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QTest>

#include "modules/lang/bVAR_elenco.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/Unattended.h"
#include "support/SampleFolder.h"
#include "windows/core/Evento.h"
#include "windows/entry/Finestre.h"

/// The common parts of the language tests: the keys, and a program folder around each test.
namespace testing_support {

inline const QString dataFolder = QStringLiteral(TEST_DATA_DIR "/");

inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qUtf8Printable(path));
    return file.readAll();
}

inline void writeTo(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

inline QString sectionOf(const QString& key) {
    return key.section('.', 0, 0);
}

/// Every key that the program knows.
inline QStringList allKeys() {
    QStringList keys;
    for (const QByteArray& line : contentOf(dataFolder + "lang/keys.txt").split('\n'))
        if (!line.isEmpty()) keys += QString::fromUtf8(line);
    return keys;
}

/// A program folder with the windows still to be created; everything is removed after the test.
class LangStage {
  public:
    LangStage() {
        ui::setUnattended(true);
        ui::MessageDialog::reset();
        sostituisciTermine([this](int status) { ends.append(status); });
        for (const auto& [name, text] : bVAR::elenco)
            text->clear();
    }
    ~LangStage() {
        finestre::dimentica();
        sostituisciTermine({});
        while (QApplication::overrideCursor())
            QApplication::restoreOverrideCursor();
    }

    /// The files that are installed with the program, this language in use.
    void install(const QByteArray& language = "Italiano") const {
        const QString templates = dataFolder + "../../assets/templates/";
        writeTo(path("LANG.lng"), contentOf(templates + "LANG.lng"));
        writeTo(path("LANGz.lng"), language + "\r\n");
    }
    QString path(const QString& name) const { return folder.path(name); }

    SampleFolder folder;
    QList<int> ends;  ///< exit statuses of the ends of the program that were asked for
};

}  // namespace testing_support
