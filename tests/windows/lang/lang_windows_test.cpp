// SPDX-License-Identifier: GPL-3.0-or-later
// The list of languages, a change of language, and a start with faulty language files.
#include <QAbstractButton>
#include <QMenu>

#include "modules/core/Fallimento.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DockPanes.h"
#include "platform/ui/PropertyList.h"
#include "support/CommandCaption.h"
#include "support/TestClass.h"
#include "windows/entry/bMain.h"
#include "windows/lang/lang_stage.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmMain.h"
#include "windows/store/frmDestinatario.h"

namespace lang_windows_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

const QByteArray twoLanguages = "[<LNG1>]Italiano\r\n[<LNG2>]English\r\n";

/// English in use, and these lines after the two languages.
void setFile(const LangStage& stage, const QByteArray& lines) {
    writeTo(stage.path("LANG.lng"), twoLanguages + lines);
    writeTo(stage.path("LANGz.lng"), "English\r\n");
}

QStringList entriesOfTheList() {
    const ui::CommandList& list = *finestre::Main().Commands().GetList("cmdLang");
    QStringList entries;
    for (int i = 1; !list.Caption(i).isEmpty(); ++i)
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

  private Q_SLOTS:
    void aFormAheadOfTheTextsItTakesKeepsThemEmpty() {
        LangStage stage;
        setFile(stage,
                "[<FORM>]: frmDestinatario\r\n[<NOME>]cdmSalva.Caption[<LNG1>]a[<LNG2>]b[<LNG3>]\r\n"
                "[<MDLO>]: bVAR\r\n[<NOME>]xxxNome[<LNG1>]Nome[<LNG2>]Name[<LNG3>]\r\n");
        finestre::Main();
        QCOMPARE(finestre::Destinatario().prp->Item("Nome")->Caption(), "");
        QCOMPARE(bVAR::xxxNome, "Name");
    }

    void anEmptyTextIsAnEmptyCaption() {
        LangStage stage;
        setFile(stage, "[<FORM>]: frmInvia\r\n[<NOME>]cmdInvia.Caption[<LNG1>]a[<LNG2>][<LNG3>]\r\n");
        finestre::Main();
        QCOMPARE(finestre::Invia().findChild<QAbstractButton*>("cmdInvia")->text(), "");
    }

    void withoutItsTextTheMenuOfTheLanguagesHasNoCaption() {
        LangStage stage;
        setFile(stage, "");
        QCOMPARE(captionOf(finestre::Main().Commands().GetPopupMenu("mnuLingua")), "");
    }

    void pickingTheMarkedLanguageDoesNothing() {
        LangStage stage;
        stage.install();
        finestre::Main();
        QVERIFY(QFile::remove(stage.path("LANGz.lng")));
        pick(">> Italiano <<");
        QVERIFY(!QFile::exists(stage.path("LANGz.lng")));
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void pickingAnotherLanguageWritesItAndSaysSoAndKeepsTheOldMark() {
        LangStage stage;
        stage.install();
        finestre::Main();
        MessageDialog::queue(MessageDialog::Ok);
        pick("English");
        QCOMPARE(contentOf(stage.path("LANGz.lng")), "English\r\n");
        QCOMPARE(MessageDialog::shown().size(), 1);
        const MessageDialog::Shown& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "La nuova lingua sarà usata dal prossimo avvio del programma.");
        QCOMPARE(box.title, "Attenzione");
        QCOMPARE(box.style, int(MessageDialog::Notice));
        QCOMPARE(entriesOfTheList(),
                 QStringList({">> Italiano <<", "English", "Español", "Français", "Deutsch"}));
        QCOMPARE(captionOf(finestre::Main().Commands().GetPopupMenu("mnuLingua")), "&Lingua");

        finestre::dimentica();
        finestre::Main();
        QCOMPARE(entriesOfTheList(),
                 QStringList({"Italiano", ">> English <<", "Español", "Français", "Deutsch"}));
        QCOMPARE(captionOf(finestre::Main().Commands().GetPopupMenu("mnuLingua")), "&Language");
    }

    void aChoiceThatCannotBeWrittenEndsTheProgramWithItsFailure() {
        LangStage stage;
        stage.install();
        finestre::Main();
        QVERIFY(QFile::remove(stage.path("LANGz.lng")));
        QVERIFY(QDir().mkdir(stage.path("LANGz.lng")));
        MessageDialog::queue(MessageDialog::Ok);
        pick("English");
        QCOMPARE(stage.ends, QList<int>{1});
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
        LangStage stage;
        QFETCH(QByteArray, texts);
        QFETCH(QByteArray, choice);
        QFETCH(QStringList, entries);
        const auto put = [&stage](const char* name, const QByteArray& content) {
            QVERIFY(QFile::remove(stage.path(name)));
            if (!content.isEmpty()) writeTo(stage.path(name), content);
        };
        put("LANG.lng", texts);
        put("LANGz.lng", choice);
        evento([] { SubMain(); });
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(finestre::Main().isVisible());
        QCOMPARE(entriesOfTheList(), entries);
        QCOMPARE(bVAR::Attenzione, entries.contains(">> English <<") ? "b" : "");
        QCOMPARE(captionOf(finestre::Main().Commands().GetPopupMenu("mnuLingua")), "&Lingua");
        Prosegui prosegui;
        QVERIFY2(!prosegui([] { finestre::Main().Gruppi(); }), "the tree is built behind the language");
    }
};

TEST_CLASS(TestLangWindows);

}  // namespace lang_windows_test

#include "lang_windows_test.moc"
