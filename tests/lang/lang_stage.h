#pragma once

#include <QDir>
#include <QFile>
#include <QTest>

#include "core/Evento.h"
#include "core/Finestre.h"
#include "lang/bVAR.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/Unattended.h"
#include "support/SampleFolder.h"

/// What the tests of the language share: the texts of the program, the keys, and a program folder around each
/// test.
namespace testing_support {

/// Every text that the language file fills, by its name.
inline const QList<QPair<QString, QString*>> variables{
    {"Attenzione", &bVAR::Attenzione},
    {"Lingua", &bVAR::Lingua},
    {"ChangeLang01", &bVAR::ChangeLang01},
    {"ImpossibileContinuare", &bVAR::ImpossibileContinuare},
    {"accNomeVisual", &bVAR::accNomeVisual},
    {"accEmailCorretta", &bVAR::accEmailCorretta},
    {"accServerSMTP", &bVAR::accServerSMTP},
    {"accPort", &bVAR::accPort},
    {"accAutenticazione", &bVAR::accAutenticazione},
    {"goSecondi", &bVAR::goSecondi},
    {"AddDestinatario", &bVAR::AddDestinatario},
    {"goApriEmail", &bVAR::goApriEmail},
    {"goEmailDiOutlook", &bVAR::goEmailDiOutlook},
    {"AzzeraMailing", &bVAR::AzzeraMailing},
    {"FileAssistenza", &bVAR::FileAssistenza},
    {"DestInserisciEmail", &bVAR::DestInserisciEmail},
    {"xxxCAP", &bVAR::xxxCAP},
    {"DestAggiungiDestinatario", &bVAR::DestAggiungiDestinatario},
    {"DestInserireEmailCorretta", &bVAR::DestInserireEmailCorretta},
    {"MailingSalvata", &bVAR::MailingSalvata},
    {"MailingSalva", &bVAR::MailingSalva},
    {"MailingImporta", &bVAR::MailingImporta},
    {"MailingOpen", &bVAR::MailingOpen},
    {"xxxRagioneSociale", &bVAR::xxxRagioneSociale},
    {"xxxNome", &bVAR::xxxNome},
    {"xxxPIva", &bVAR::xxxPIva},
    {"xxxIndirizzo", &bVAR::xxxIndirizzo},
    {"xxxLocalita", &bVAR::xxxLocalita},
    {"xxxProvincia", &bVAR::xxxProvincia},
    {"xxxTelefono", &bVAR::xxxTelefono},
    {"xxxFax", &bVAR::xxxFax},
    {"xxxCampo1", &bVAR::xxxCampo1},
    {"xxxCampo2", &bVAR::xxxCampo2},
    {"xxxCampo3", &bVAR::xxxCampo3},
    {"xxxCampo4", &bVAR::xxxCampo4},
    {"xxxCampo5", &bVAR::xxxCampo5},
    {"xxxCampo6", &bVAR::xxxCampo6},
    {"xxxCampo7", &bVAR::xxxCampo7},
    {"xxxCampo8", &bVAR::xxxCampo8},
    {"xxxCampo9", &bVAR::xxxCampo9},
    {"varModDestinatario", &bVAR::varModDestinatario},
    {"varTitlePropBody", &bVAR::varTitlePropBody},
    {"varAddDestinatario", &bVAR::varAddDestinatario}};

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

/// The keys of the sections whose window is in the program, and of the program's own texts.
inline QStringList keysWithTarget() {
    const QString sources = dataFolder + "../../src";
    QStringList keys;
    for (const QByteArray& line : contentOf(dataFolder + "lang/keys.txt").split('\n')) {
        const QString key = QString::fromUtf8(line);
        bool there = key.startsWith("bVAR.");
        for (const QString& folder : QDir(sources).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            there = there || (!key.isEmpty() &&
                              QFile::exists(QString("%1/%2/%3.h").arg(sources, folder, sectionOf(key))));
        if (there) keys += key;
    }
    return keys;
}

/// A program folder with the windows still to be created; everything is gone behind the test.
class LangStage {
  public:
    LangStage() {
        ui::setUnattended(true);
        ui::MessageDialog::reset();
        sostituisciTermine([this](int status) { ends.append(status); });
        for (const auto& [name, text] : variables)
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
