// SPDX-License-Identifier: GPL-3.0-or-later
// The imports from the address book and from Outlook, from the question for the group to the rows on disk.
#include "support/TestClass.h"
#include "windows/import/contatti_stage.h"

namespace contatti_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

/// The values 1, 2 … `last`, and 0 at the end; none where the counter never left 0.
QList<double> countedTo(int last) {
    QList<double> values;
    for (int i = 1; i <= last; ++i)
        values.append(i);
    if (last > 0) values.append(0);
    return values;
}

void vectorRows(const QString& file) {
    QTest::addColumn<QJsonObject>("vector");
    QFile json(QString(TEST_DATA_DIR "/contacts/") + file);
    QVERIFY(json.open(QIODevice::ReadOnly));
    const auto vectors = QJsonDocument::fromJson(json.readAll()).object()["vectors"].toArray();
    QVERIFY(!vectors.isEmpty());
    for (const auto& vector : vectors)
        QTest::newRow(qPrintable(vector.toObject()["name"].toString())) << vector.toObject();
}

QByteArray escaped(QString text) {
    return text.replace("\\", "\\\\").replace(";", "\\;").replace(",", "\\,").replace("\n", "\\n").toUtf8();
}

/// Cards with the properties of a vector.
QByteArray cardsOf(const QJsonArray& entries) {
    QByteArray cards;
    for (const auto& value : entries) {
        const QJsonObject entry = value.toObject();
        const auto text = [&](const char* tag) { return escaped(entry[QLatin1String(tag)].toString()); };
        cards += "BEGIN:VCARD\nVERSION:3.0\nFN:" + text("3001001E") + "\nEMAIL:" + text("3003001E") +
                 "\nORG:" + text("3A16001E") + "\nADR;TYPE=home:;;" + text("3A5D001E") + ';' +
                 text("3A59001E") + ";;" + text("3A5B001E") + ";\nTEL;TYPE=work:" + text("3A08001E") +
                 "\nTEL;TYPE=work,fax:" + text("3A24001E") + "\nEND:VCARD\n";
    }
    return cards;
}

/// What the helper prints for the items of a vector.
QByteArray linesOf(const QJsonArray& items) {
    QByteArray lines = "{\"count\":" + QByteArray::number(items.size()) + "}\n";
    for (const auto& value : items) {
        const QJsonObject item = value.toObject();
        const bool contact = item.contains(QLatin1String("Email1Address"));
        lines += QJsonDocument(contact ? item : QJsonObject()).toJson(QJsonDocument::Compact) + '\n';
    }
    return lines;
}

}  // namespace

class TestImportContatti : public QObject {
    Q_OBJECT

    /// Imports into the root; rows and progress are those of the vector.
    static void expectRows(ContactStage& stage, const QString& command, const QJsonObject& vector) {
        stage.window();
        stage.chooseRoot();
        stage.import(command);
        QCOMPARE(stage.rows(), vector["rows"].toArray());
        QCOMPARE(stage.progressMaximum(), vector["progress_max"].toDouble());
        QCOMPARE(stage.counted, countedTo(vector["progress_last"].toInt()));
        QCOMPARE(stage.failure(), "");
        QCOMPARE(stage.faults(), QStringList());
    }

    /// Of longer values the one row contains as many characters as each column takes.
    static void expectLimits(const ContactStage& stage) {
        const auto length = [&](const char* column) { return stage.inserted(column).value(0).size(); };
        QCOMPARE(length("rgs"), 70);
        QCOMPARE(length("nom"), 70);
        QCOMPARE(length("ind"), 255);
        QCOMPARE(length("cap"), 10);
        QCOMPARE(length("loc"), 70);
        QCOMPARE(length("tel"), 15);
        QCOMPARE(length("fax"), 15);
    }

  private Q_SLOTS:
    void addressBookRows_data() { vectorRows("wab.json"); }
    void addressBookRows() {
        QFETCH(QJsonObject, vector);
        ContactStage stage;
        stage.writeCards(cardsOf(vector["entries"].toArray()));
        expectRows(stage, "cmdMailingImpOE", vector);
    }

    void outlookRows_data() { vectorRows("outlook.json"); }
    void outlookRows() {
        QFETCH(QJsonObject, vector);
        ContactStage stage;
        stage.writeHelper(linesOf(vector["items"].toArray()));
        expectRows(stage, "cmdMailingImpMSO", vector);
    }

    void rowsAreSelectedAndBelongToTheGroup() {
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.window();
        stage.clickNode("K1");
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.count("tb_destinatari", "sel = True AND id_grp = 1"), 2);
        QCOMPARE(stage.columnOfGrid(0), QStringList());  // the grid is not filled again
        stage.chooseRoot();
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.count("tb_destinatari", "id_grp = 0"), 2);
    }

    void newGroupGetsTheRowsAndANodeOnTheTree() {
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.chooseNewGroup("Fiera d'agosto");
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.look("SELECT nome FROM [tb_gruppi] WHERE id = 2;"), "Fiera d'agosto");
        QCOMPARE(stage.count("tb_destinatari", "id_grp = 2"), 2);
        QVERIFY(stage.shape().contains("Fiera d'agosto"));
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.count("tb_gruppi", "nome = 'Fiera d''agosto'"), 2);
    }

    void questionForTheGroupIsModalOverTheMainWindow_data() { cancelDoesNothing_data(); }
    void questionForTheGroupIsModalOverTheMainWindow() {
        QFETCH(QString, command);
        ContactStage stage;
        stage.window();
        QWidget* modal = nullptr;
        QTimer::singleShot(0, [&] {
            modal = QApplication::activeModalWidget();
            finestre::Scelta().findChild<QPushButton*>("cmdAnnulla")->click();
        });
        stage.command(command);
        QCOMPARE(modal, &finestre::Scelta());
        QCOMPARE(modal->parentWidget(), &stage.window());
    }

    void outlookValuesAreCutToTheirLimits() {
        ContactStage stage;
        const QString n(300, 'n');
        QJsonObject item{{"Email1Address", QString(248, 'a') + "@xx.comm"}};
        for (const char* value :
             {"CompanyName", "LastNameAndFirstName", "BusinessAddress", "BusinessAddressPostalCode",
              "BusinessAddressCity", "BusinessTelephoneNumber", "BusinessFaxNumber"})
            item[QLatin1String(value)] = n;
        stage.writeHelper("{\"count\":1}\n" + QJsonDocument(item).toJson(QJsonDocument::Compact) + '\n');
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.inserted("email"), QStringList(QString(248, 'a') + "@xx.com"));
        expectLimits(stage);
    }

    void cancelDoesNothing_data() {
        QTest::addColumn<QString>("command");
        QTest::newRow("rubrica") << "cmdMailingImpOE";
        QTest::newRow("Outlook") << "cmdMailingImpMSO";
    }
    void cancelDoesNothing() {
        QFETCH(QString, command);
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.writeHelper("{\"count\":1}\n" + contactLine("ada@example.it", ""));
        stage.chooseNewGroup("Fiera");
        stage.import(command, "cmdAnnulla");
        QCOMPARE(stage.recipients(), 0);
        QCOMPARE(stage.groupsInTable(), 1);
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void noCurrentGroupShowsTheMessageAndMakesNothing_data() { cancelDoesNothing_data(); }
    void noCurrentGroupShowsTheMessageAndMakesNothing() {
        QFETCH(QString, command);
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.writeHelper("{\"count\":1}\n" + contactLine("ada@example.it", ""));
        stage.window();
        nodoCorrente.reset();
        MessageDialog::queue(1);
        stage.import(command);
        QVERIFY(
            stage.oneBox("Selezionare una cartella dove aggiungere i destinatari.", MessageDialog::Notice));
        QCOMPARE(stage.recipients(), 0);
        QCOMPARE(stage.groupsInTable(), 1);
    }

    void pointerIsBackToNormalAfterwards() {
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.window();
        stage.chooseRoot();
        bool waiting = false;
        stage.step = [&](double) {
            waiting = waiting || (QGuiApplication::overrideCursor() &&
                                  QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor);
        };
        stage.import("cmdMailingImpOE");
        QVERIFY(waiting);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void addressBookLosesSingleQuotesAndOuterBlanksOnly() {
        ContactStage stage;
        stage.writeCards(
            "BEGIN:VCARD\nVERSION:3.0\nFN:  Niccolò D'Àvola \nORG:\"Da 'Gigi'\" \nEMAIL:n@example.it\n"
            "ADR;TYPE=home:;;Via dell'Unità\\, 1;;;;\nEND:VCARD\n");
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.inserted("nom"), QStringList{"Niccolò DÀvola"});
        QCOMPARE(stage.inserted("rgs"), QStringList{"\"Da Gigi\""});
        QCOMPARE(stage.inserted("ind"), QStringList{"Via dellUnità, 1"});
    }

    void addressBookValuesAreCutToTheirLimits() {
        ContactStage stage;
        const QByteArray n(300, 'n');
        stage.writeCards("BEGIN:VCARD\nVERSION:3.0\nFN:" + n + "\nORG:" + n + "\nEMAIL:a@example.it\n" +
                         "ADR;TYPE=home:;;" + n + ";" + n + ";;" + n + ";\nTEL;TYPE=work:" + n +
                         "\nTEL;TYPE=fax:" + n + "\nEND:VCARD\n");
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpOE");
        expectLimits(stage);
    }

    void outlookContactWithAnApostropheIsLeftOutAndTheOthersAreImported() {
        ContactStage stage;
        stage.writeHelper("{\"count\":3}\n" + contactLine("uno@example.it", "Uno") +
                          contactLine("due@example.it", "Bar dell'Angolo") +
                          contactLine("tre@example.it", "Tre"));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.inserted("email"), (QStringList{"uno@example.it", "tre@example.it"}));
        QCOMPARE(stage.counted, countedTo(3));
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void outlookContactWithoutAnAddressIsLeftOutAndIsNotCounted() {
        ContactStage stage;
        stage.writeHelper("{\"count\":3}\n" + contactLine("", "Senza indirizzo") +
                          R"({"CompanyName":"Senza la proprietà"})"
                          "\n" +
                          contactLine("uno@example.it", "Uno"));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.inserted("email"), QStringList("uno@example.it"));
        QCOMPARE(stage.progressMaximum(), 3.0);
        QCOMPARE(stage.counted, countedTo(1));
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void outlookValueCannotAddRowsOfItsOwn() {
        ContactStage stage;
        const QString rest = QString(", ''").repeated(17);
        stage.writeHelper("{\"count\":2}\n" +
                          contactLine("uno@example.it", "A'" + rest + "), (1, True, 'altro@example.it', 'B") +
                          contactLine("due@example.it", "A'" + rest + "); DELETE FROM tb_gruppi; --"));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.recipients(), 0);
        QCOMPARE(stage.groupsInTable(), 1);
    }

    void secondRunOfOutlookDoublesTheRows() {
        ContactStage stage;
        stage.writeHelper("{\"count\":1}\n" + contactLine("uno@example.it", "Uno"));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.inserted("email"), (QStringList{"uno@example.it", "uno@example.it"}));
    }

    void contactWithoutCompanySortsFirst() {
        ContactStage stage;
        stage.writeHelper("{\"count\":2}\n" + contactLine("uno@example.it", "Uno") +
                          contactLine("due@example.it", ""));
        stage.window();
        stage.clickNode("K1");
        stage.import("cmdMailingImpMSO");
        stage.clickNode("K1");
        QCOMPARE(stage.columnOfGrid(5), (QStringList{"", "Uno"}));
    }

    void eventsRunBetweenOutlookContactsAndNotBetweenEntries_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("runs");
        QTest::newRow("rubrica") << "cmdMailingImpOE" << false;
        QTest::newRow("Outlook") << "cmdMailingImpMSO" << true;
    }
    void eventsRunBetweenOutlookContactsAndNotBetweenEntries() {
        QFETCH(QString, command);
        QFETCH(bool, runs);
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.writeHelper("{\"count\":2}\n" + contactLine("uno@example.it", "Uno") +
                          contactLine("due@example.it", "Due"));
        stage.window();
        stage.chooseRoot();
        bool ran = false, ranBetween = false;
        stage.step = [&](double value) {
            if (value == 1)
                QMetaObject::invokeMethod(
                    &stage.window(), [&] { ran = true; }, Qt::QueuedConnection);
            if (value == 2) ranBetween = ran;
        };
        stage.import(command);
        QCOMPARE(stage.counted, countedTo(2));
        QCOMPARE(ranBetween, runs);
        QCoreApplication::processEvents();
    }

    void realOutlookFileAndRealAddressBook() {
        if (!QFile::exists(SHARED_DIR "/pst/accents.pst"))
            QSKIP("the sample Outlook files and the sample address book are not here");
        ContactStage stage;
        contacts::setOutlookHelper(TEST_BIN_DIR "/vestrola-pst");
        QVERIFY(QFile::copy(SHARED_DIR "/pst/accents.pst", stage.folder.path("casa/Documents/posta.pst")));
        QVERIFY(QDir().mkpath(stage.folder.path("casa/.thunderbird/x.default")));
        QVERIFY(QFile::copy(SHARED_DIR "/addressbook/abook.sqlite",
                            stage.folder.path("casa/.thunderbird/x.default/abook.sqlite")));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        // One has no address; the address and the company with letters beyond ASCII or a quote are refused.
        QCOMPARE(stage.inserted("email"),
                 (QStringList{"SebastianWright@dayrep.com", "WichertKroos@teleworm.us",
                              "ChristoffervandeMeeberg@teleworm.us", "BerthaABuell@armyspy.com"}));
        QCOMPARE(stage.inserted("rgs").last(), "Perché Srl");
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.inserted("email").mid(4), (QStringList{"n.davola@example.it", "jose@example.it"}));
        QCOMPARE(stage.inserted("nom").mid(4), (QStringList{"Niccolò DÀvola", "José Perù"}));
        QVERIFY(stage.faults().isEmpty());
    }
};

TEST_CLASS(TestImportContatti);

}  // namespace contatti_test

#include "contatti_test.moc"
