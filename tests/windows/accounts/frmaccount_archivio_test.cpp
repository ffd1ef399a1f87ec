// SPDX-License-Identifier: GPL-3.0-or-later
// Checking, saving and reading of accounts through the account window's buttons.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "platform/text/AnsiCodec.h"
#include "support/AsInTheProgram.h"
#include "support/TestClass.h"
#include "windows/accounts/frmaccount_stage.h"
#include "windows/core/Evento.h"
#include "windows/entry/Finestre.h"

namespace frmaccount_archivio_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

const QString one = "0|Rossi|info@rossi.it|mail.rossi.it|25|1|rossi|segreta|EHLO|0|1";

/// Name, address, server, port, whether a login is needed, user, password, whether a server is used.
struct Entry {
    const char* name = "a";
    const char* address = "a@b.it";
    const char* server = "mail.b.it";
    const char* port = "25";
    bool login = false;
    const char* user = "";
    const char* password = "";
    bool useServer = true;
};

QStringList fields(const Entry& e) {
    return {e.name, e.address,  e.server, e.port, e.login ? "1" : "0",
            e.user, e.password, "EHLO",   "0",    e.useServer ? "1" : "0"};
}

QJsonArray vectors() {
    QFile file(QStringLiteral(TEST_DATA_DIR "/account/write.json"));
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read write.json");
    // The window refuses an address whose last label has more than four letters.
    const QByteArray text = file.readAll().replace("@peru.example", "@peru.exa.ple");
    return QJsonDocument::fromJson(text).object()["vectors"].toArray();
}

}  // namespace

class TestFrmAccountArchivio : public QObject {
    Q_OBJECT

    void failsToLoad(AccountStage& stage, const char* message) {
        MessageDialog::queue(MessageDialog::Ok);
        evento([&] { stage.window = std::make_unique<frmAccount>(); });
        QVERIFY2(stage.box().startsWith(message), qPrintable(stage.box()));
        QCOMPARE(stage.ends, QList<int>{1});
    }

  private Q_SLOTS:
    void checksInTheirOrderInOneBox_data() {
        QTest::addColumn<QStringList>("entered");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char* name, const Entry& entry, const char* lines) {
            QTest::newRow(name) << fields(entry) << lines;
        };
        row("good", {}, "");
        row("no name", {.name = ""}, "nome");
        row("a blank is a name", {.name = " "}, "");
        row("no address", {.address = ""}, "email");
        row("bad address", {.address = "a@b"}, "email");
        row("bar in the address", {.address = "a|b@c.it"}, "email");
        row("no server", {.server = ""}, "server");
        row("no port", {.port = ""}, "porta");
        row("port is no number", {.port = "venti"}, "porta");
        row("port that is too large", {.port = "99999"}, "");
        row("port with a sign and blanks", {.port = " -5 "}, "");
        row("port with decimals", {.port = "2,5"}, "");
        row("login without user", {.login = true, .password = "p"}, "autenticazione");
        row("login without password", {.login = true, .user = "u"}, "autenticazione");
        row("login without both", {.login = true}, "autenticazione");
        row("login", {.login = true, .user = "u", .password = "p"}, "");
        row("nothing", {"", "", "", "", true, "", "", true}, "nome email server porta autenticazione");
        row("without server", {"a", "a@b.it", "", "", true, "", "", false}, "");
        row("any port without server", {"a", "a@b.it", "", "xyz", false, "", "", false}, "");
        row("nothing without server", {"", "", "", "x", false, "", "", false}, "nome email");
    }
    void checksInTheirOrderInOneBox() {
        QFETCH(QStringList, entered);
        QFETCH(QString, lines);
        for (const char* button : {"cmdNuovo", "cmdModifica"}) {
            AccountStage stage({one});
            const QByteArray before = stage.file();
            stage.press(0);
            stage.fill(entered);
            if (!lines.isEmpty()) MessageDialog::queue(MessageDialog::Ok);
            stage.click(button);
            if (lines.isEmpty()) {
                QVERIFY(MessageDialog::shown().isEmpty());
                QVERIFY(stage.file() != before);
                continue;
            }
            QCOMPARE(stage.box(), "Non si continua:\r\n\r\n" + QString(lines).replace(" ", "\r\n") + "\r\n");
            const auto box = MessageDialog::shown().constFirst();
            QCOMPARE(box.style, int(MessageDialog::Notice));
            QCOMPARE(box.icon, QMessageBox::Information);
            QCOMPARE(int(box.buttons), int(QMessageBox::Ok));
            QCOMPARE(box.title, "Attenti");
            QCOMPARE(stage.file(), before);
            QCOMPARE(stage.entries(), QStringList{"Rossi [info@rossi.it]"});
            QCOMPARE(stage.text("txtNomeVisual"), entered[0]);
        }
    }

    void withoutALanguageTheBoxContainsLineEndsOnly() {
        AccountStage stage;
        for (QString* text : {&bVAR::ImpossibileContinuare, &bVAR::accNomeVisual, &bVAR::accEmailCorretta,
                              &bVAR::accServerSMTP})
            text->clear();
        MessageDialog::queue(MessageDialog::Ok);
        stage.click("cmdNuovo");
        QCOMPARE(stage.box(), QString("\r\n").repeated(5));
    }

    void greetingAndOutgoingPortAreNotChecked() {
        AccountStage stage;
        stage.fillSmall("a");
        stage.type("txtOutPort", "x|y");
        stage.click("cmdNuovo");
        QCOMPARE(stage.records(), QStringList{"0|a|a@b.it||25|0|||EHLO|x|y|0"});
    }

    void barsAreTakenOutOfTheSixBoxes() {
        AccountStage stage;
        stage.fill({"a|b", "a@b.it", "ma|il.b.it", "25", "1", "u|", "|p|q", "HELO", "0", "1"});
        stage.click("cmdNuovo");
        QCOMPARE(stage.records(), QStringList{"0|ab|a@b.it|mail.b.it|25|1|u|pq|HELO|0|1"});
        QCOMPARE(stage.text("txtNomeVisual"), "ab");
        QCOMPARE(stage.text("txtPassword"), "pq");
        QCOMPARE(stage.entries(), QStringList{"ab [a@b.it]"});
    }

    void barsLeaveTheBoxesOnAChangeToo() {
        AccountStage stage({one});
        stage.press(0);
        stage.check("chkUsaSMTP", false);
        stage.type("txtServerPORT", "2|5");
        stage.type("txtServerSMTP", "|");
        stage.click("cmdModifica");
        QCOMPARE(stage.text("txtServerPORT"), "25");
        QCOMPARE(stage.text("txtServerSMTP"), "");
        QCOMPARE(stage.records(), QStringList{"0|Rossi|info@rossi.it||25|1|rossi|segreta|EHLO|0|0"});
    }

    void newAccountIsAppendedAndChosen() {
        AccountStage stage({one});
        stage.fillSmall("b");
        stage.click("cmdNuovo");
        QCOMPARE(stage.records(), (QStringList{one, "1|b|b@b.it||25|0|||EHLO|0|0"}));
        QCOMPARE(stage.list().ListIndex(), 1);
        QVERIFY(stage.enabled("cmdModifica"));
        QVERIFY(stage.control<QPushButton>("cmdModifica")->isDefault());
    }

    void newAccountChoosesThePositionOfItsNumberAlsoWhereTheListIsLonger() {
        AccountStage stage({one, "0|Bianchi|b@bianchi.it||25|0|||EHLO|0|0"});
        stage.fillSmall("c");
        stage.click("cmdNuovo");
        QCOMPARE(stage.entries(),
                 (QStringList{"Rossi [info@rossi.it]", "Bianchi [b@bianchi.it]", "c [c@b.it]"}));
        QCOMPARE(stage.records().constLast(), "1|c|c@b.it||25|0|||EHLO|0|0");
        QCOMPARE(stage.list().ListIndex(), 1);
        QCOMPARE(stage.text("txtNomeVisual"), "c");
    }

    void newAccountFromAChosenOneIsItsCopy() {
        AccountStage stage({one});
        stage.press(0);
        stage.type("txtEmail", "copia@rossi.it");
        stage.click("cmdNuovo");
        QCOMPARE(stage.entries(), (QStringList{"Rossi [info@rossi.it]", "Rossi [copia@rossi.it]"}));
        QCOMPARE(stage.records().at(1), "1|Rossi|copia@rossi.it|mail.rossi.it|25|1|rossi|segreta|EHLO|0|1");
    }

    void accountWithoutServerKeepsWhateverThePortContains() {
        AccountStage stage;
        stage.fill({"a", "a@b.it", "", "xyz", "0", "", "", "EHLO", "0", "0"});
        stage.click("cmdNuovo");
        QCOMPARE(stage.records(), QStringList{"0|a|a@b.it||xyz|0|||EHLO|0|0"});
    }

    void passwordWithAccentsSurvivesTheNextStart() {
        AccountStage stage;
        stage.fill({"a", "a@b.it", "m.b.it", "25", "1", "ù", "pàss€ù|", "EHLO", "0", "1"});
        stage.click("cmdNuovo");
        stage.reopen();
        stage.press(0);
        QCOMPARE(stage.text("txtPassword"), "pàss€ù");
    }

    void nextAfterTheOnlyOneWasDeletedIsNumberOneAndNotChosen() {
        AccountStage stage({one});
        stage.press(0);
        stage.key(Qt::Key_Delete);
        stage.fillSmall("b");
        stage.click("cmdNuovo");
        QCOMPARE(stage.records(), QStringList{"1|b|b@b.it||25|0|||EHLO|0|0"});
        QCOMPARE(stage.entries(), QStringList{"b [b@b.it]"});
        QCOMPARE(stage.list().ListIndex(), -1);
        QVERIFY(!stage.enabled("cmdModifica"));
        stage.press(0);
        QCOMPARE(stage.text("txtNomeVisual"), "Rossi");
    }

    void fileThatCannotBeWrittenChangesTheScreenOnly() {
        AccountStage stage({one});
        const QByteArray before = stage.file();
        // A folder in its place refuses every write, for any user.
        QVERIFY(QFile::rename(stage.path(), stage.path() + ".via"));
        QVERIFY(QDir().mkdir(stage.path()));
        stage.fillSmall("b");
        stage.click("cmdNuovo");
        stage.type("txtNomeVisual", "c");
        stage.click("cmdModifica");
        QCOMPARE(stage.entries(), (QStringList{"Rossi [info@rossi.it]", "c [b@b.it]"}));
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.entries(), QStringList{"Rossi [info@rossi.it]"});
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(QDir().rmdir(stage.path()));
        QVERIFY(QFile::rename(stage.path() + ".via", stage.path()));
        QCOMPARE(stage.file(), before);
    }

    void vectorsThroughTheButtons_data() {
        QTest::addColumn<QJsonObject>("vector");
        for (const QJsonValue vector : vectors())
            QTest::newRow(qPrintable(vector["name"].toString())) << vector.toObject();
    }
    void vectorsThroughTheButtons() {
        QFETCH(QJsonObject, vector);
        AccountStage stage(vector["file_before_decoded"].toVariant().toStringList());
        for (const QJsonValue step : vector["steps"].toArray()) {
            const QString operation = step["op"].toString();
            const int position = step["position"].toInt(-1);
            if (position >= 0) stage.press(position);
            if (operation == "elimina") {
                stage.key(Qt::Key_Delete);
            } else {
                const QStringList fields = step["fields_1_to_10"].toVariant().toStringList();
                const QStringList lost = text::outsideAnsi(fields.join(QString()));
                if (!lost.isEmpty()) MessageDialog::queue(MessageDialog::Ok);
                stage.fill(fields);
                stage.click(operation == "nuovo" ? "cmdNuovo" : "cmdModifica");
                // What the file has lost is reported once it is written.
                QCOMPARE(MessageDialog::shown().size(), lost.isEmpty() ? 0 : 1);
                constexpr int password = 6;  // no part of it is shown
                for (const QString& character :
                     text::outsideAnsi((fields.mid(0, password) + fields.mid(password + 1)).join(QString())))
                    QVERIFY2(stage.box().contains(character), qPrintable(stage.box()));
                MessageDialog::reset();
            }
            QVERIFY2(MessageDialog::shown().isEmpty(), qPrintable(stage.box()));
            QCOMPARE(stage.records(), step["file_after_decoded"].toVariant().toStringList());
            QCOMPARE(stage.file().size(), step["file_after_size"].toInt());
            QCOMPARE(stage.entries(), step["list_after"].toVariant().toStringList());
        }
    }

    void missingFileEndsTheProgram() {
        AccountStage stage;
        QVERIFY(QFile::remove(stage.path()));
        failsToLoad(stage, "Errore 53:");
    }

    void lineWithTooFewFieldsEndsTheProgram() {
        AccountStage stage;
        stage.writeRecords({one, "1|corto"});
        failsToLoad(stage, "Errore 9:");
    }

    void firstFieldThatIsNoNumberEndsTheProgram() {
        AccountStage stage;
        stage.writeRecords({"x|a|a@b.it||25|0|||EHLO|0|0"});
        failsToLoad(stage, "Errore 13:");
    }

    void fieldsAfterTheEleventhAreDropped() {
        AccountStage stage({one + "|altro|ancora"});
        stage.press(0);
        stage.click("cmdModifica");
        QCOMPARE(stage.records(), QStringList{one});
    }

    void windowIsOneForTheWholeRun() {
        AccountStage stage;
        frmAccount& window = finestre::Account();
        QCOMPARE(&finestre::Account(), &window);
        QCOMPARE(window.objectName(), "frmAccount");
        finestre::dimentica();
    }
};

TEST_CLASS_WITH(TestFrmAccountArchivio, asInTheProgram);

}  // namespace frmaccount_archivio_test

#include "frmaccount_archivio_test.moc"
