// The language in the real windows: every key against what it names, the installed language file, the list of
// languages and what becomes of a start whose language files are wrong.
#include <QAbstractButton>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>

#include "accounts/frmAccount.h"
#include "core/bMain.h"
#include "core/Evento.h"
#include "core/Fallimento.h"
#include "core/Finestre.h"
#include "lang/bLANG_applica.h"
#include "lang/bLANG_chiavi.h"
#include "lang/bVAR.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/DockPanes.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/PropertyList.h"
#include "platform/ui/Unattended.h"
#include "send/frmInvia.h"
#include "shell/frmMain.h"
#include "store/frmDestinatario.h"
#include "support/SampleFolder.h"

using namespace testing_support;
using ui::MessageDialog;

namespace {

const QString dataFolder = QStringLiteral(TEST_DATA_DIR "/");
const QString sources = dataFolder + "../../src";
const QString templates = dataFolder + "../../assets/templates/";
const QByteArray twoLanguages = "[<LNG1>]Italiano\r\n[<LNG2>]English\r\n";

QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qUtf8Printable(path));
    return file.readAll();
}

void writeTo(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

QString sectionOf(const QString& key) {
    return key.section('.', 0, 0);
}

/// The keys of the sections whose window is in the program, and of the program's own texts.
QStringList keysWithTarget() {
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

QWidget* windowOf(const QString& section) {
    if (section == "frmMain") return &finestre::Main();
    if (section == "frmAccount") return &finestre::Account();
    if (section == "frmInvia") return &finestre::Invia();
    if (section == "frmDestinatario") return &finestre::Destinatario();
    return nullptr;
}

const QList<QPair<QString, const QString*>> variables{
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

QString captionOfControl(const QWidget& window, const QString& name) {
    if (auto* button = window.findChild<QAbstractButton*>(name)) return button->text();
    if (auto* label = window.findChild<QLabel*>(name)) return label->text();
    if (auto* action = window.findChild<QAction*>(name)) return action->text();
    return QString();
}

/// What stands in the place that the key names, read off its own words; null where there is no such place.
QString valueOf(const QString& key) {
    if (key.startsWith("bVAR.")) {
        for (const auto& [name, text] : variables)
            if (key == "bVAR." + name) return *text;
        return QString();
    }
    const QWidget* window = windowOf(sectionOf(key));
    if (!window) return QString();
    const QString rest = key.section('.', 1);
    if (rest == "Caption") return window->windowTitle();
    static const QRegularExpression named("^(.*)\\(\"(.+)\"\\)\\.(Caption|Description|Text)$");
    const auto parts = named.match(rest);
    if (!parts.hasMatch())
        return rest.endsWith(".Caption") ? captionOfControl(*window, rest.chopped(8)) : QString();
    const QString kind = parts.captured(1).section('.', -1);
    const QString name = parts.captured(2);
    const bool caption = parts.captured(3) == "Caption";
    const ui::CommandBars& bars = finestre::Main().Commands();
    if (kind == "prp.Item" || kind == "Item") return finestre::Destinatario().prp->Item(name)->Caption();
    if (kind == "DockWindows") return finestre::Main().DockWindows().DockWindows(name)->Caption();
    if (kind == "GetStatic") return bars.GetStatic(name)->Text();
    const ui::Command* command = kind == "GetToolButton" ? bars.GetToolButton(name) : bars.GetPopupMenu(name);
    if (!command) return QString();
    return caption ? command->Caption() : command->Description();
}

/// Every text that a user can see, by what holds it: more than the keys name. A button of a bar and the entry
/// of a pane in a menu only repeat a text.
QMap<QString, QString> everyText() {
    QMap<QString, QString> texts;
    const auto note = [&](const void* holder, const char* what, const QString& text) {
        texts[QString("%1 %2").arg(reinterpret_cast<quintptr>(holder), 0, 16).arg(what)] = text;
    };
    for (const auto& [name, text] : variables)
        note(text, "text", *text);
    for (const char* section : {"frmMain", "frmAccount", "frmInvia", "frmDestinatario"}) {
        const QWidget* window = windowOf(section);
        note(window, "title", window->windowTitle());
        for (const auto* dock : window->findChildren<QDockWidget*>())
            note(dock, "title", dock->windowTitle());
        for (const auto* label : window->findChildren<QLabel*>())
            note(label, "text", label->text());
        for (const auto* line : window->findChildren<QLineEdit*>())
            note(line, "text", line->text());
        for (const auto* button : window->findChildren<QAbstractButton*>())
            if (!button->inherits("QToolButton")) note(button, "text", button->text());
        for (const auto* fixed : window->findChildren<ui::StaticItem*>())
            note(fixed, "text", fixed->Text());
        for (const auto* action : window->findChildren<QAction*>())
            if (action->parent() && !action->parent()->inherits("QDockWidget"))
                note(action, "text", action->text());
        for (const auto* command : window->findChildren<ui::Command*>())
            note(command, "description", command->Description());
        for (auto* list : window->findChildren<ui::PropertyList*>())
            for (const char* item :
                 {"Datidestinatario", "Altro", "Spedire", "Email", "Nome", "Campo1", "Campo9"})
                note(list, item, list->Item(item)->Caption());
    }
    return texts;
}

QStringList entriesOfTheList() {
    const ui::CommandList& list = *finestre::Main().Commands().GetList("cmdLang");
    QStringList entries;
    for (int i = 1; i <= list.Count(); ++i)
        entries += list.Caption(i);
    return entries;
}

void pick(const QString& entry) {
    for (QAction* action : finestre::Main().findChild<QMenu*>("mnuLingua")->actions())
        if (action->text() == entry) return action->trigger();
    qFatal("no language %s", qUtf8Printable(entry));
}

}  // namespace

class TestLangWindows : public QObject {
    Q_OBJECT

    std::unique_ptr<SampleFolder> folder;
    QList<int> ends;

    void install() const {
        writeTo(folder->path("LANG.lng"), contentOf(templates + "LANG.lng"));
        writeTo(folder->path("LANGz.lng"), contentOf(templates + "LANGz.lng"));
    }
    /// A program folder with these texts in the section bVAR and this choice.
    void setFile(const QByteArray& lines, const QByteArray& choice = "English\r\n") const {
        writeTo(folder->path("LANG.lng"), twoLanguages + lines);
        writeTo(folder->path("LANGz.lng"), choice);
    }

  private Q_SLOTS:
    void init() {
        ui::setUnattended(true);
        MessageDialog::reset();
        ends.clear();
        sostituisciTermine([this](int status) { ends.append(status); });
        for (const auto& [name, text] : variables)
            const_cast<QString*>(text)->clear();
        folder = std::make_unique<SampleFolder>();
    }
    void cleanup() {
        finestre::dimentica();
        folder.reset();
        sostituisciTermine({});
        while (QApplication::overrideCursor())
            QApplication::restoreOverrideCursor();
    }

    void everyKeyOfAWindowThatExistsIsKnownAndNoOther() {
        QStringList known = bLANG::ChiaviNote();
        QStringList wanted = keysWithTarget();
        known.sort();
        wanted.sort();
        QVERIFY(wanted.size() >= 143);
        QCOMPARE(known, wanted);
    }

    void everyKeySetsExactlyThePropertyThatItNames() {
        finestre::Main();
        for (const QString& key : keysWithTarget()) {
            QVERIFY2(!valueOf(key).isNull() || key.startsWith("bVAR."), qPrintable(key));
            const QMap<QString, QString> before = everyText();
            const bLANG::Destinazione assign = bLANG::DestinazioneDi(key);
            QVERIFY2(assign, qPrintable(key));
            const QString marker = "segno " + key;
            assign(marker);
            QCOMPARE(valueOf(key), marker);
            const QMap<QString, QString> after = everyText();
            QCOMPARE(after.keys(), before.keys());
            QStringList changed;
            for (auto text = after.begin(); text != after.end(); ++text)
                if (text.value() != before.value(text.key())) changed += text.value();
            QCOMPARE(changed, QStringList(marker));
        }
    }

    void keysAreComparedWithCaseAndBlanks() {
        for (const char* key :
             {"bVAR.attenzione", "bVAR.Attenzione ", "frmInvia.cmdinvia.Caption", "frmInvia",
              "frmMain.Dks.DockWindows( \"dckGruppi\").Caption", "frmScelta.Caption.", ""})
            QVERIFY2(!bLANG::DestinazioneDi(key), key);
    }

    // The texts that a user of the Italian file sees are those that the windows have by themselves. The help
    // command is designed with a placeholder.
    void theInstalledItalianIsWhatTheWindowsSayByThemselves() {
        finestre::Main();
        QMap<QString, QString> designed;
        for (const QString& key : keysWithTarget())
            if (!key.startsWith("bVAR.")) designed[key] = valueOf(key);
        finestre::dimentica();
        install();
        finestre::Main();
        for (auto text = designed.begin(); text != designed.end(); ++text) {
            const bool placeholder = text.value() == "xxx Guida in linea";
            QCOMPARE(valueOf(text.key()), placeholder ? QString("&Guida in linea") : text.value());
        }
        for (const auto& [name, text] : variables)
            QVERIFY2(!text->isEmpty(), qPrintable(name));
        QCOMPARE(entriesOfTheList(), QStringList({">> Italiano <<", "English"}));
    }

    void theInstalledFileHasEveryTextInEveryLanguage_data() {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<int>("number");
        QTest::newRow("italian") << QByteArray("Italiano") << 1;
        QTest::newRow("english") << QByteArray("English") << 2;
    }
    void theInstalledFileHasEveryTextInEveryLanguage() {
        QFETCH(QByteArray, language);
        QFETCH(int, number);
        install();
        writeTo(folder->path("LANGz.lng"), language + "\r\n");
        QStringList entries;
        bLANG::ElencaLingue(entries);
        QCOMPARE(int(bLANG::linguaScelta), number);
        QMap<QString, QString> texts;
        bLANG::LeggiTesti([&](const QString& key) {
            return bLANG::Destinazione([&texts, key](const QString& text) { texts[key] = text; });
        });
        QStringList wanted = keysWithTarget();
        wanted.sort();
        QCOMPARE(QStringList(texts.keys()), wanted);
        for (const QString& text : texts)
            QVERIFY(!text.trimmed().isEmpty());
    }

    void theEnglishFileMakesTheWindowsEnglish() {
        install();
        writeTo(folder->path("LANGz.lng"), "English\r\n");
        QCOMPARE(finestre::Main().Commands().GetPopupMenu("mnuLingua")->Caption(), "&Language");
        QCOMPARE(finestre::Main().Commands().GetToolButton("cmdInvia")->Caption(), "&Send messages");
        QCOMPARE(finestre::Destinatario().prp->Item("CAP")->Caption(), "Postcode");
        QCOMPARE(finestre::Invia().windowTitle(), " Send messages");
        QCOMPARE(finestre::Account().findChild<QLabel*>("lbl(9)")->text(), "PORT");
        QVERIFY(!finestre::Account().isVisible());
        QVERIFY(!finestre::Invia().isVisible());
        QVERIFY(!finestre::Destinatario().isVisible());
    }

    void theNameForAssistiveProgramsFollowsTheCaptionThatItRepeats() {
        install();
        writeTo(folder->path("LANGz.lng"), "English\r\n");
        finestre::Main();
        QCOMPARE(finestre::Invia().findChild<QWidget*>("cmdFerma")->accessibleName(), "Stop sending");
        QCOMPARE(finestre::Invia().findChild<QWidget*>("txtFile")->accessibleName(), "Message file to send");
        QCOMPARE(finestre::Invia().findChild<QWidget*>("txtBloccoNum")->accessibleName(),
                 "Numero massimo di email");
    }

    void aFormAheadOfTheTextsItTakesKeepsThemEmpty() {
        setFile(
            "[<FORM>]: frmDestinatario\r\n[<NOME>]cdmSalva.Caption[<LNG1>]a[<LNG2>]b[<LNG3>]\r\n"
            "[<MDLO>]: bVAR\r\n[<NOME>]xxxNome[<LNG1>]Nome[<LNG2>]Name[<LNG3>]\r\n");
        finestre::Main();
        QCOMPARE(finestre::Destinatario().prp->Item("Nome")->Caption(), "");
        QCOMPARE(bVAR::xxxNome, "Name");
    }

    void anEmptyTextGivesAnEmptyCaption() {
        setFile("[<FORM>]: frmInvia\r\n[<NOME>]cmdInvia.Caption[<LNG1>]a[<LNG2>][<LNG3>]\r\n");
        finestre::Main();
        QCOMPARE(finestre::Invia().findChild<QAbstractButton*>("cmdInvia")->text(), "");
    }

    void withoutItsTextTheMenuOfTheLanguagesHasNoCaption() {
        setFile("");
        QCOMPARE(finestre::Main().Commands().GetPopupMenu("mnuLingua")->Caption(), "");
    }

    void pickingTheMarkedLanguageDoesNothing() {
        install();
        finestre::Main();
        QVERIFY(QFile::remove(folder->path("LANGz.lng")));
        pick(">> Italiano <<");
        QVERIFY(!QFile::exists(folder->path("LANGz.lng")));
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void pickingAnotherLanguageWritesItAndSaysSoAndKeepsTheOldMark() {
        install();
        finestre::Main();
        MessageDialog::queue(MessageDialog::Ok);
        pick("English");
        QCOMPARE(contentOf(folder->path("LANGz.lng")), "English\r\n");
        QCOMPARE(MessageDialog::shown().size(), 1);
        const MessageDialog::Shown& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "La nuova lingua sarà usata dal prossimo avvio del programma.");
        QCOMPARE(box.title, "Attenzione");
        QCOMPARE(box.style, int(MessageDialog::Notice));
        QCOMPARE(entriesOfTheList(), QStringList({">> Italiano <<", "English"}));
        QCOMPARE(finestre::Main().Commands().GetPopupMenu("mnuLingua")->Caption(), "&Lingua");

        finestre::dimentica();
        finestre::Main();
        QCOMPARE(entriesOfTheList(), QStringList({"Italiano", ">> English <<"}));
        QCOMPARE(finestre::Main().Commands().GetPopupMenu("mnuLingua")->Caption(), "&Language");
    }

    void aChoiceThatCannotBeWrittenEndsTheProgramWithItsFailure() {
        install();
        finestre::Main();
        QVERIFY(QFile::remove(folder->path("LANGz.lng")));
        QVERIFY(QDir().mkdir(folder->path("LANGz.lng")));
        MessageDialog::queue(MessageDialog::Ok);
        pick("English");
        QCOMPARE(ends, QList<int>{1});
        QVERIFY(MessageDialog::shown().constFirst().text.startsWith("Errore 75:"));
    }

    void aFailureOfTheLanguageEndsTheLoadButNotTheStart_data() {
        QTest::addColumn<QByteArray>("texts");
        QTest::addColumn<QByteArray>("choice");
        QTest::addColumn<QStringList>("entries");
        const QByteArray text = "[<MDLO>]: bVAR\r\n[<NOME>]Attenzione[<LNG1>]a[<LNG2>]b[<LNG3>]\r\n";
        const QStringList marked{"Italiano", ">> English <<"};
        const QStringList plain{"Italiano", "English"};
        QTest::newRow("no texts") << QByteArray() << QByteArray("English\r\n") << QStringList();
        QTest::newRow("no choice") << twoLanguages + text << QByteArray() << plain;
        QTest::newRow("unknown choice") << twoLanguages + text << QByteArray("english\r\n") << plain;
        QTest::newRow("no last marker") << twoLanguages + text + "[<NOME>]Lingua[<LNG1>]a[<LNG2>]b\r\n"
                                        << QByteArray("English\r\n") << marked;
        QTest::newRow("key alone") << twoLanguages + text + "[<NOME>]Lingua\r\n"
                                   << QByteArray("English\r\n") << marked;
    }
    void aFailureOfTheLanguageEndsTheLoadButNotTheStart() {
        QFETCH(QByteArray, texts);
        QFETCH(QByteArray, choice);
        QFETCH(QStringList, entries);
        const auto put = [this](const char* name, const QByteArray& content) {
            QVERIFY(QFile::remove(folder->path(name)));
            if (!content.isEmpty()) writeTo(folder->path(name), content);
        };
        put("LANG.lng", texts);
        put("LANGz.lng", choice);
        evento([] { SubMain(); });
        QVERIFY(ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(finestre::Main().isVisible());
        QCOMPARE(entriesOfTheList(), entries);
        QCOMPARE(bVAR::Attenzione, entries.contains(">> English <<") ? "b" : "");
        QCOMPARE(finestre::Main().Commands().GetPopupMenu("mnuLingua")->Caption(), "&Lingua");
        Prosegui prosegui;
        QVERIFY2(!prosegui([] { finestre::Main().Gruppi(); }), "the tree is built behind the language");
    }
};

QTEST_MAIN(TestLangWindows)
#include "lang_windows_test.moc"
