// Every key of the language file against what it names in the real windows, and the file that is installed.
#include <QAbstractButton>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

#include "accounts/frmAccount.h"
#include "import/frmImpDB.h"
#include "import/frmImpTXT.h"
#include "import/frmScelta.h"
#include "lang/bLANG_chiavi.h"
#include "lang/lang_stage.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DockPanes.h"
#include "platform/ui/PropertyList.h"
#include "send/frmInvia.h"
#include "shell/frmMain.h"
#include "store/frmDestinatario.h"

using namespace testing_support;

namespace {

QWidget* windowOf(const QString& section) {
    if (section == "frmMain") return &finestre::Main();
    if (section == "frmAccount") return &finestre::Account();
    if (section == "frmInvia") return &finestre::Invia();
    if (section == "frmDestinatario") return &finestre::Destinatario();
    if (section == "frmScelta") return &finestre::Scelta();
    if (section == "frmImpDB") return &finestre::ImpDB();
    if (section == "frmImpTXT") return &finestre::ImpTXT();
    return nullptr;
}

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
    if (rest == "txtCartella.Text") return window->findChild<QLineEdit*>("txtCartella")->text();
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
    for (const char* section :
         {"frmMain", "frmAccount", "frmInvia", "frmDestinatario", "frmScelta", "frmImpTXT", "frmImpDB"}) {
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

}  // namespace

class TestLangKeys : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyKeyOfAWindowThatExistsIsKnownAndNoOther() {
        LangStage stage;
        QStringList known = bLANG::ChiaviNote();
        QStringList wanted = keysWithTarget();
        known.sort();
        wanted.sort();
        QVERIFY(wanted.size() >= 143);
        QCOMPARE(known, wanted);
    }

    void everyKeySetsExactlyThePropertyThatItNames() {
        LangStage stage;
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
        LangStage stage;
        for (const char* key :
             {"bVAR.attenzione", "bVAR.Attenzione ", "frmInvia.cmdinvia.Caption", "frmInvia",
              "frmMain.Dks.DockWindows( \"dckGruppi\").Caption", "frmScelta.Caption.", ""})
            QVERIFY2(!bLANG::DestinazioneDi(key), key);
    }

    // The texts that a user of the Italian file sees are those that the windows have by themselves. The help
    // command is designed with a placeholder.
    void theInstalledItalianIsWhatTheWindowsSayByThemselves() {
        LangStage stage;
        finestre::Main();
        QMap<QString, QString> designed;
        for (const QString& key : keysWithTarget())
            if (!key.startsWith("bVAR.")) designed[key] = valueOf(key);
        finestre::dimentica();
        stage.install();
        finestre::Main();
        for (auto text = designed.begin(); text != designed.end(); ++text) {
            const bool placeholder = text.value() == "xxx Guida in linea";
            QCOMPARE(valueOf(text.key()), placeholder ? QString("&Guida in linea") : text.value());
        }
        for (const auto& [name, text] : variables)
            QVERIFY2(!text->isEmpty(), qPrintable(name));
    }

    void theInstalledFileHasEveryTextInEveryLanguage_data() {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<int>("number");
        QTest::newRow("italian") << QByteArray("Italiano") << 1;
        QTest::newRow("english") << QByteArray("English") << 2;
    }
    void theInstalledFileHasEveryTextInEveryLanguage() {
        LangStage stage;
        QFETCH(QByteArray, language);
        QFETCH(int, number);
        stage.install(language);
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
        LangStage stage;
        stage.install("English");
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
        LangStage stage;
        stage.install("English");
        finestre::Main();
        QCOMPARE(finestre::Invia().findChild<QWidget*>("cmdFerma")->accessibleName(), "Stop sending");
        QCOMPARE(finestre::Invia().findChild<QWidget*>("txtFile")->accessibleName(), "Message file to send");
        QCOMPARE(finestre::Invia().findChild<QWidget*>("txtBloccoNum")->accessibleName(),
                 "Numero massimo di email");
    }
};

QTEST_MAIN(TestLangKeys)
#include "lang_keys_test.moc"
