// SPDX-License-Identifier: GPL-3.0-or-later
// Whole runs over recipients and messages whose values try to widen what is sent: another file, another
// recipient, another header, another command.
#include "modules/send/Personalizza.h"
#include "modules/store/Schema.h"
#include "platform/mail/compose_support.h"
#include "platform/mail/wire_reader.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_valori_test {

using namespace testing_support;

namespace {

const QByteArray secret = "contenuto riservato di un file";

/// A stage whose folder contains files that must not be sent.
class Temptation {
  public:
    explicit Temptation(const QList<SampleFolder::Columns>& recipients) : stage(recipients) {
        compose::makeFile(text(), secret);
        compose::makeFile(image(), compose::pngContent(300));
        compose::makeFile(stage.folder.path("logo.png"), compose::pngContent(400));
        compose::makeFile(stage.folder.path("listino.pdf"), "listino");
    }

    QString text() const { return stage.folder.path("riservato.txt"); }
    QString image() const { return stage.folder.path("riservata.png"); }

    /// Each placeholder in the text, in addresses of images and links, in a style and in the subject; one
    /// image and one attachment of its own.
    QString writeMessage() const {
        MessaggioMss message;
        message.Priorita = "NR";
        message.Allegati = {stage.folder.path("listino.pdf")};
        message.CorpoHTML = "<html><body><img src=\"" + stage.folder.path("logo.png") + "\">";
        for (const QString& column : colonneSegnaposto) {
            const QString mark = ":::" + column + ":::";
            message.Oggetto += mark + ' ';
            message.CorpoHTML += "<p style=\"background:url('" + mark + "')\">" + mark + "</p><img src=\"" +
                                 mark + "\"><img src='" + mark + "'><a href=\"" + mark + "\">x</a>";
        }
        message.CorpoHTML +=
            "<a rel=\"unsubscribe\" href=\"https://orto.example/via?chi=:::campo1:::\">via</a>";
        message.CorpoHTML += "</body></html>";
        return stage.folder.writeMessage("prova.mss", message);
    }

    SendStage stage;
};

/// A recipient whose columns, except the address, all contain the value as far as it fits.
SampleFolder::Columns everywhere(const QString& value) {
    SampleFolder::Columns columns;
    for (const schema::Colonna& column : schema::colonneDestinatari) {
        const QString name = QString::fromUtf16(column.nome.data(), qsizetype(column.nome.size()));
        if (column.tipo == schema::Tipo::Testo) columns[name] = value.left(column.massimo);
    }
    columns["email"] = "a@x.it";
    return columns;
}

/// Verifies a message's parts: text, HTML, and only the image and the attachment that it names.
void verifyNothingMore(const SmtpSink::Message& message) {
    const wire::Message read = wire::read(message.data);
    QCOMPARE(read.complaints.join('\n'), QString());
    QCOMPARE(read.tree, QByteArray("mixed(related(alternative(text/plain,text/html),image/png),"
                                   "application/pdf)"));
    QCOMPARE(read.leaves[2].content, compose::pngContent(400));
    QCOMPARE(read.leaves[3].content, QByteArray("listino"));
    QCOMPARE(read.leaves[1].content.count("cid:" + read.leaves[2].contentId), 1);
    QVERIFY(!message.data.contains(secret.toBase64().left(30)));
    QVERIFY(read.header("list-unsubscribe").startsWith("<https://orto.example/via?chi="));
    QCOMPARE(read.to.address, QByteArray("a@x.it"));
    QCOMPARE(read.from.address, QByteArray("info@klukla.example"));
}

const char* const injections[] = {
    "\r\nBcc: spia@example.it\r\n",
    "\nBcc: spia@example.it\n",
    "\rBcc: spia@example.it\r",
    "\r\n\r\nContent-Type: text/html\r\n\r\n<b>",
    "\r\n.\r\nMAIL FROM:<spia@example.it>\r\nRCPT TO:<spia@example.it>\r\nDATA\r\n",
    "\r\n.\r\n",
    "=?utf-8?Q?=0D=0ABcc:_spia@example.it?=",
    "x\u2028Bcc: spia@example.it\u2029\u0085",
    "--=_a.\r\n--=_m.\r\n--=_r.\r\nContent-Type: text/plain\r\n\r\n",
};

}  // namespace

class TestFrmInviaValori : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void valueThatNamesAFileInsertsNone_data() {
        QTest::addColumn<QString>("pattern");  // %1 a text file, %2 an image, each of them there
        QTest::newRow("passwords") << "<img src=\"file:///etc/passwd\">";
        QTest::newRow("image") << "<img src=\"%2\">";
        QTest::newRow("image as a file") << "<img src='file://%2'>";
        QTest::newRow("path of an image") << "%2";
        QTest::newRow("address of an image") << "file://%2";
        QTest::newRow("path of a text") << "%1";
        QTest::newRow("end of an attribute") << "x\"><img src=\"%2\"><img src='%2'>";
        QTest::newRow("style") << "<style>p{background:url('%2')}</style>";
        QTest::newRow("content identifier") << "cid:logo";
        QTest::newRow("image by identifier") << "<img src=\"cid:img.1@vestrola\">";
        QTest::newRow("attachments of a message") << "[<INI-ALLG>]%1[<END-ALLG>]";
        QTest::newRow("frame") << "<iframe src=\"file://%1\"></iframe><object data=\"%1\"></object>";
        QTest::newRow("link to sign off") << "<a rel=\"unsubscribe\" href=\"https://spia.example/\">x</a>";
        QTest::newRow("base") << "<base href=\"file:///etc/\"><meta charset=\"utf-7\">";
    }
    void valueThatNamesAFileInsertsNone() {
        QFETCH(QString, pattern);
        Temptation temptation({});
        SendStage& stage = temptation.stage;
        pattern.replace("%1", temptation.text()).replace("%2", temptation.image());
        stage.folder.addRecipient(everywhere(pattern));
        stage.open();
        stage.pick(temptation.writeMessage());
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.sink.messages().size(), 1);
        verifyNothingMore(stage.sink.messages()[0]);
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void lineBreaksInAnyColumnAddNoHeaderAndNoCommand_data() {
        QTest::addColumn<QString>("value");
        for (const char* text : injections)
            QTest::addRow("%s", QByteArray(text).toPercentEncoding().constData()) << QString::fromUtf8(text);
        QTest::newRow("nul") << QString("a") + QChar(0) + "\r\nBcc: spia@example.it" + QChar(0);
    }
    void lineBreaksInAnyColumnAddNoHeaderAndNoCommand() {
        QFETCH(QString, value);
        Temptation temptation({everywhere(value)});
        SendStage& stage = temptation.stage;
        stage.pick(temptation.writeMessage());
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.sink.messages().size(), 1);
        QCOMPARE(stage.sink.messages()[0].sender, QByteArray("info@klukla.example"));
        verifyNothingMore(stage.sink.messages()[0]);
    }

    void addressColumnIsOneAddressOrNone_data() {
        QTest::addColumn<QString>("address");
        for (const char* text :
             {"a@x.it, b@y.it", "a@x.it; b@y.it", "a@x.it b@y.it", "a@x.it\r\nRCPT TO:<b@y.it>",
              "a@x.it>\r\nRCPT TO:<b@y.it", "a@x.it\nBcc: b@y.it", "a@x.it\rb@y.it", "Mario <a@x.it>",
              "<a@x.it>", "a@x.it> SIZE=1", "a@x.it(b@y.it)", "gruppo: a@x.it, b@y.it;",
              ":::email:::", ":::campo1:::", "a@x.it,:::campo1:::", "@x.it:a@y.it", "a@x.it/etc/passwd",
              "a@x.it\u2028b@y.it"})
            QTest::addRow("%s", QByteArray(text).toPercentEncoding().constData()) << QString::fromUtf8(text);
        QTest::newRow("nul") << QString("a@x.it") + QChar(0) + "b@y.it";
    }
    void addressColumnIsOneAddressOrNone() {
        QFETCH(QString, address);
        SampleFolder::Columns hostile = everywhere("c@z.it");
        hostile["email"] = address;
        hostile["rgs"] = "A";
        Temptation temptation({hostile, {{"rgs", "B"}, {"email", "buono@x.it"}}});
        SendStage& stage = temptation.stage;
        stage.pick();
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"buono@x.it"});
        QCOMPARE(stage.sink.messages().size(), 1);
        QCOMPARE(SampleFolder::selected(), QStringList{address});
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
    }

    void placeholdersInValuesNameNoOtherRecipient() {
        auto nested = everywhere(":::email:::");
        nested["campo9"] = "b@y.it, c@z.it";
        nested["nom"] = ":::em";
        Temptation temptation({nested});
        SendStage& stage = temptation.stage;
        stage.pick(temptation.writeMessage());
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        verifyNothingMore(stage.sink.messages()[0]);
        const wire::Message read = wire::read(stage.sink.messages()[0].data);
        // it is expanded before the address, after which nothing is expanded again
        QVERIFY(read.subject.startsWith("a@x.it :::em a@x.it :::email::: "));
        QCOMPARE(read.to.name, QString(":::email:::"));
    }

    void messageAddsNoHeaderAndNoFileThatItDoesNotCarry() {
        Temptation temptation({{{"rgs", "A"}, {"email", "a@x.it"}}});
        SendStage& stage = temptation.stage;
        MessaggioMss message;
        message.Oggetto = QString("Oggetto\nBcc: spia@example.it\n\n<b>") + QChar(0) + "fine";
        message.Priorita = "HI\nBcc: spia@example.it";
        message.CorpoHTML = "<img src=\"file:///etc/passwd\"><img src=\"" + temptation.text() +
                            "\"><img src=\"riservata.png\"><img src=\"cid:img.1\"><object data=\"" +
                            temptation.image() + "\"></object>\n.\nBcc: spia@example.it\n\n--=_a.x--";
        stage.pick(stage.folder.writeMessage("ostile.mss", message));
        ui::MessageDialog::queue(ui::MessageDialog::Yes);  // to the file outside the home
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.sink.messages().size(), 1);
        const wire::Message read = wire::read(stage.sink.messages()[0].data);
        QCOMPARE(read.complaints.join('\n'), QString());
        QCOMPARE(read.subject, QString("Oggetto Bcc: spia@example.it  <b> fine"));
        QCOMPARE(read.tree, QByteArray("alternative(text/plain,text/html)"));
        QVERIFY(!read.leaves[1].content.contains("cid:img.1@"));
    }
};

TEST_CLASS(TestFrmInviaValori);

}  // namespace frminvia_valori_test

#include "frminvia_valori_test.moc"
