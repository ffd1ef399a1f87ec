// SPDX-License-Identifier: GPL-3.0-or-later
// Every key of the language file and what it names in the real windows, and the file that is installed.
#include <QAbstractButton>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

#include "platform/ui/CommandBars.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/DockPanes.h"
#include "platform/ui/PropertyList.h"
#include "platform/ui/TabStrip.h"
#include "support/CommandCaption.h"
#include "support/TestClass.h"
#include "windows/accounts/frmAccount.h"
#include "windows/entry/Vicini.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/frmImpTXT.h"
#include "windows/import/frmScelta.h"
#include "windows/lang/bLANG_chiavi.h"
#include "windows/lang/lang_stage.h"
#include "windows/message/frmEditor.h"
#include "windows/message/frmPropBody.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmMain.h"
#include "windows/store/frmDestinatario.h"
#include "windows/store/frmGruppi.h"

namespace lang_keys_test {

using namespace testing_support;

namespace {

QWidget* windowOf(const QString& section) {
    if (section == "frmMain") return &finestre::Main();
    if (section == "frmAccount") return &finestre::Account();
    if (section == "frmInvia") return &finestre::Invia();
    if (section == "frmDestinatario") return &finestre::Destinatario();
    if (section == "frmEditor") return &finestre::Editor();
    if (section == "frmPropBody") return &finestre::PropBody();
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

/// The text at the place that the key names, found by the key's own words; null where there is no such place.
QString valueOf(const QString& key) {
    if (key.startsWith("bVAR.")) {
        for (const auto& [name, text] : bVAR::elenco)
            if (key == QString("bVAR.") + name) return *text;
        return QString();
    }
    const QWidget* window = windowOf(sectionOf(key));
    if (!window) return QString();
    const QString rest = key.section('.', 1);
    if (rest == "Caption") return window->windowTitle();
    if (rest == "txtCartella.Text") return window->findChild<QLineEdit*>("txtCartella")->text();
    static const QRegularExpression tab("^tb\\.Tab(Caption|ToolTip)\\((\\d)\\)$");
    if (const auto parts = tab.match(rest); parts.hasMatch()) {
        const int index = parts.captured(2).toInt();
        const ui::TabStrip& tabs = *finestre::Editor().tb;
        return parts.captured(1) == "Caption" ? tabs.TabCaption(index) : tabs.tabToolTip(index);
    }
    static const QRegularExpression named("^(.*)\\(\"(.+)\"\\)\\.(Caption|Description|Text|Label)$");
    const auto parts = named.match(rest);
    if (!parts.hasMatch())
        return rest.endsWith(".Caption") ? captionOfControl(*window, rest.chopped(8)) : QString();
    const QString kind = parts.captured(1).section('.', -1);
    const QString name = parts.captured(2);
    const bool caption = parts.captured(3) == "Caption";
    const bool main = sectionOf(key) == "frmMain";
    const ui::CommandBars& bars = main ? finestre::Main().Commands() : finestre::Editor().Commands();
    if (kind == "Item") return window->findChild<ui::PropertyList*>("prp")->Item(name)->Caption();
    ui::DockPanes& panes = main ? finestre::Main().DockWindows() : finestre::Editor().DockWindows();
    if (kind == "DockWindows") return panes.DockWindows(name)->Caption();
    if (kind == "GetStatic") return bars.GetStatic(name)->Text();
    if (kind == "GetComboBox") return bars.GetComboBox(name)->Description();
    if (kind == "GetEdit")
        return parts.captured(3) == "Label" ? bars.GetEdit(name)->Label() : bars.GetEdit(name)->Description();
    const ui::Command* command = kind == "GetToolButton"    ? bars.GetToolButton(name)
                                 : kind == "GetCustomPopup" ? bars.GetCustomPopup(name)
                                                            : bars.GetPopupMenu(name);
    if (!command) return QString();
    return caption ? captionOf(command) : command->Description();
}

/// Every text that a user can see, by its owner: more than the keys name. A button of a bar and the entry
/// of a pane in a menu only repeat a text.
QMap<QString, QString> everyText() {
    QMap<QString, QString> texts;
    const auto note = [&](const void* holder, const char* what, const QString& text) {
        texts[QString("%1 %2").arg(reinterpret_cast<quintptr>(holder), 0, 16).arg(what)] = text;
    };
    for (const auto& [name, text] : bVAR::elenco)
        note(text, "text", *text);
    for (const char* section : {"frmMain", "frmAccount", "frmInvia", "frmDestinatario", "frmScelta",
                                "frmImpTXT", "frmImpDB", "frmEditor", "frmPropBody"}) {
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
        for (const auto* combo : window->findChildren<ui::ComboTool*>())
            note(combo, "description", combo->Description());
        for (const auto* edit : window->findChildren<ui::EditTool*>())
            note(edit, "description", edit->Description());
        for (const auto* tabs : window->findChildren<ui::TabStrip*>())
            for (int i = 0; i < tabs->count(); ++i) {
                note(tabs, qPrintable(QString("caption %1").arg(i)), tabs->TabCaption(i));
                note(tabs, qPrintable(QString("tool tip %1").arg(i)), tabs->tabToolTip(i));
            }
        for (auto* list : window->findChildren<ui::PropertyList*>())
            for (const char* item : {"Datidestinatario",
                                     "Altro",
                                     "Spedire",
                                     "Email",
                                     "Nome",
                                     "Campo1",
                                     "Campo9",
                                     "Margini pagina",
                                     "Sinistra",
                                     "Superiore",
                                     "Larghezza",
                                     "Altezza",
                                     "Colori",
                                     "Sfondo",
                                     "Testo",
                                     "Link",
                                     "LinkAttivi",
                                     "LinkVisitati",
                                     "Immagini",
                                     "Immaginedisfondo"})
                if (const ui::PropertyItem* there = list->Item(item)) note(list, item, there->Caption());
    }
    return texts;
}

}  // namespace

class TestLangKeys : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyKeyOfAWindowThatExistsIsKnownAndNoOther() {
        LangStage stage;
        QStringList known = bLANG::TutteLeChiavi(finestre::Tradotte()).keys();
        QStringList wanted = allKeys();
        known.sort();
        wanted.sort();
        QCOMPARE(wanted.size(), 373);
        QCOMPARE(known, wanted);
    }

    void everyKeySetsExactlyThePropertyThatItNames() {
        LangStage stage;
        finestre::Main();
        const bLANG::Chiavi keys = bLANG::TutteLeChiavi(finestre::Tradotte());
        for (const QString& key : allKeys()) {
            QVERIFY2(!valueOf(key).isNull() || key.startsWith("bVAR."), qPrintable(key));
            const QMap<QString, QString> before = everyText();
            const bLANG::Destinazione assign = keys.value(key);
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
        const bLANG::Chiavi keys = bLANG::TutteLeChiavi(finestre::Tradotte());
        for (const char* key :
             {"bVAR.attenzione", "bVAR.Attenzione ", "frmInvia.cmdinvia.Caption", "frmInvia",
              "frmMain.Dks.DockWindows( \"dckGruppi\").Caption", "frmScelta.Caption.", ""})
            QVERIFY2(!keys.contains(key), key);
    }

    // The texts of the Italian file are the windows' own. The help
    // command is designed with a placeholder.
    void theInstalledItalianIsWhatTheWindowsSayByThemselves() {
        LangStage stage;
        finestre::Main();
        QMap<QString, QString> designed;
        for (const QString& key : allKeys())
            if (!key.startsWith("bVAR.")) designed[key] = valueOf(key);
        finestre::dimentica();
        stage.install();
        finestre::Main();
        for (auto text = designed.begin(); text != designed.end(); ++text) {
            const bool placeholder = text.value() == "xxx Guida in linea";
            QCOMPARE(valueOf(text.key()), placeholder ? QString("&Guida in linea") : text.value());
        }
        for (const auto& [name, text] : bVAR::elenco)
            QVERIFY2(!text->isEmpty(), name);
    }

    void theInstalledFileHasEveryTextInEveryLanguage_data() {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<int>("number");
        QTest::newRow("italian") << QByteArray("Italiano") << 1;
        QTest::newRow("english") << QByteArray("English") << 2;
        QTest::newRow("spanish") << QByteArray("Espa\361ol") << 3;
        QTest::newRow("french") << QByteArray("Fran\347ais") << 4;
        QTest::newRow("german") << QByteArray("Deutsch") << 5;
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
        QStringList wanted = allKeys();
        wanted.sort();
        QCOMPARE(QStringList(texts.keys()), wanted);
        for (const QString& text : texts)
            QVERIFY(!text.trimmed().isEmpty());
    }

    void theEnglishFileMakesTheWindowsEnglish() {
        LangStage stage;
        stage.install("English");
        QCOMPARE(captionOf(finestre::Main().Commands().GetPopupMenu("mnuLingua")), "&Language");
        QCOMPARE(captionOf(finestre::Main().Commands().GetToolButton("cmdInvia")), "&Send messages");
        QCOMPARE(finestre::Destinatario().prp->Item("CAP")->Caption(), "ZIP");
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
    }

    void whatHasNoCaptionIsNamedInTheLanguageOfTheWordsAroundIt() {
        LangStage stage;
        stage.install("English");
        finestre::Invia().CaricaDati();
        const QHash<QString, QString> names{{"cmdFile", "Open message"},
                                            {"txtBloccoNum", "Send no more than … emails every"},
                                            {"txtBloccoMin", "emails every … minutes."}};
        for (auto name = names.begin(); name != names.end(); ++name)
            QCOMPARE(finestre::Invia().findChild<QWidget*>(name.key())->accessibleName(), name.value());
        QCOMPARE(finestre::Main().Gruppi().TREE->accessibleName(), "Mailing groups");
        finestre::Destinatario().show();
        QCOMPARE(finestre::Destinatario().prp->focusProxy()->accessibleName(), "Recipient data");
        QCOMPARE(finestre::Main().grd().accessibleName(), "Mailing List");
    }
};

TEST_CLASS(TestLangKeys);

}  // namespace lang_keys_test

#include "lang_keys_test.moc"
