// The imports from the address book and from Outlook, from the question for the group to the rows on disk.
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include "import/frmScelta.h"
#include "import/import_stage.h"
#include "platform/contacts/ContactFolder.h"
#include "platform/ui/ProgressCounter.h"

using namespace testing_support;
using ui::MessageDialog;

namespace {

QDialog& scelta() {
    return finestre::Scelta();
}

QList<double> counted;             // the values that the counter of the status bar went through
std::function<void(double)> step;  // what else happens at each

/// The main window with an address book and an Outlook of its own; the question for the group is answered by
/// the root as the selected group, unless said otherwise.
class Stage : public ImportStage {
  public:
    Stage() : ImportStage(scelta), m_home(qgetenv("HOME")), m_config(qgetenv("XDG_CONFIG_HOME")) {
        qputenv("HOME", folder.path("casa").toUtf8());
        qputenv("XDG_CONFIG_HOME", folder.path("casa/.config").toUtf8());
        if (!QDir().mkpath(folder.path("casa/Documents")) || !QDir().mkpath(folder.path("data/rubrica")))
            qFatal("no folders");
        counted.clear();
        QObject::connect(progress(), &ui::ProgressCounter::valueChanged, [](double value) {
            counted.append(value);
            if (step) step(value);
        });
    }
    ~Stage() {
        step = nullptr;
        contacts::setOutlookHelper({});
        qputenv("HOME", m_home);
        m_config.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", m_config);
    }

    /// Runs a command and presses a button of the question that it asks.
    void import(const QString& command, const QString& button = "cmdOK") {
        window();
        QTimer::singleShot(0, [button] { finestre::Scelta().findChild<QPushButton*>(button)->click(); });
        this->command(command);
    }
    void chooseRoot() { clickNode("K0"); }
    void chooseNewGroup(const QString& name) {
        window();
        finestre::Scelta().findChild<QRadioButton*>("opt(1)")->click();
        finestre::Scelta().findChild<QLineEdit*>("txtCartella")->setText(name);
    }

    void writeCards(const QByteArray& cards) { write("data/rubrica/rubrica.vcf", cards); }

    /// Outlook as a helper that prints these lines, and then does what the shell is told.
    void writeHelper(const QByteArray& lines, const QByteArray& ending = {}) {
        write("data/posta.pst", "x");
        write("righe", lines);
        const QString helper = write("aiutante", "#!/bin/sh\ncat \"${0%/*}/righe\"\n" + ending);
        if (!QFile::setPermissions(helper, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            qFatal("no helper");
        contacts::setOutlookHelper(helper);
    }

    QJsonArray rows() const {
        static const char* const names[] = {
            "email",  "rgs",    "nom",    "piva",   "ind",    "cap",    "loc",    "prov",   "tel",   "fax",
            "campo1", "campo2", "campo3", "campo4", "campo5", "campo6", "campo7", "campo8", "campo9"};
        QJsonArray found;
        for (int i = 0; i < recipients(); ++i) {
            QJsonObject row;
            for (const char* name : names)
                row[QLatin1String(name)] = inserted(name).at(i);
            found.append(row);
        }
        return found;
    }

    double progressNow() { return progress()->value(); }
    double progressMaximum() { return progress()->maximum(); }

  private:
    ui::ProgressCounter* progress() { return window().Commands().GetProgress("stcProgress"); }

    QByteArray m_home;
    QByteArray m_config;
};

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

/// Cards that give the address book the properties of a vector.
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

QByteArray contactLine(const QString& email, const QString& company) {
    const QJsonObject item{{"Email1Address", email}, {"CompanyName", company}};
    return QJsonDocument(item).toJson(QJsonDocument::Compact) + '\n';
}

constexpr const char* twoCards =
    "BEGIN:VCARD\nFN:Ada\nEMAIL:ada@example.it\nEND:VCARD\nBEGIN:VCARD\nFN:Eva\nEMAIL:eva@example.it\nEND:"
    "VCARD\n";

}  // namespace

class TestImportContatti : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void addressBookRows_data() { vectorRows("wab.json"); }
    void addressBookRows() {
        QFETCH(QJsonObject, vector);
        Stage stage;
        stage.writeCards(cardsOf(vector["entries"].toArray()));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.rows(), vector["rows"].toArray());
        QCOMPARE(stage.progressMaximum(), vector["progress_max"].toDouble());
        QCOMPARE(counted, countedTo(vector["progress_last"].toInt()));
        QCOMPARE(stage.failure(), "");
    }

    void outlookRows_data() { vectorRows("outlook.json"); }
    void outlookRows() {
        QFETCH(QJsonObject, vector);
        Stage stage;
        stage.writeHelper(linesOf(vector["items"].toArray()));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.rows(), vector["rows"].toArray());
        QCOMPARE(stage.progressMaximum(), vector["progress_max"].toDouble());
        QCOMPARE(counted, countedTo(vector["progress_last"].toInt()));
        QCOMPARE(stage.failure(), "");
        QVERIFY(stage.faults().isEmpty());
    }

    void rowsAreSelectedAndBelongToTheGroup() {
        Stage stage;
        stage.writeCards(twoCards);
        stage.window();
        stage.clickNode("K1");
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.count("tb_destinatari", "sel = True AND id_grp = 1"), 2);
        QCOMPARE(stage.columnOfGrid(0), QStringList());  // the grid is not filled anew
        stage.chooseRoot();
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.count("tb_destinatari", "id_grp = 0"), 2);
    }

    void newGroupGetsTheRowsAndANodeOnTheTree() {
        Stage stage;
        stage.writeCards(twoCards);
        stage.chooseNewGroup("Fiera d'agosto");
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.look("SELECT nome FROM [tb_gruppi] WHERE id = 2;"), "Fiera d'agosto");
        QCOMPARE(stage.count("tb_destinatari", "id_grp = 2"), 2);
        QVERIFY(stage.shape().contains("Fiera d'agosto"));
        stage.import("cmdMailingImpOE");
        QCOMPARE(stage.count("tb_gruppi", "nome = 'Fiera d''agosto'"), 2);
    }

    void cancelDoesNothing_data() {
        QTest::addColumn<QString>("command");
        QTest::newRow("rubrica") << "cmdMailingImpOE";
        QTest::newRow("Outlook") << "cmdMailingImpMSO";
    }
    void cancelDoesNothing() {
        QFETCH(QString, command);
        Stage stage;
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
        Stage stage;
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

    void sourceThatIsMissingLeavesAnEmptyGroupAndNoMessage_data() { cancelDoesNothing_data(); }
    void sourceThatIsMissingLeavesAnEmptyGroupAndNoMessage() {
        QFETCH(QString, command);
        Stage stage;
        stage.chooseNewGroup("Fiera");
        stage.import(command);
        QCOMPARE(stage.groupsInTable(), 2);
        QCOMPARE(stage.recipients(), 0);
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(stage.failure(), "");
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void pointerIsBackToNormalAfterwards() {
        Stage stage;
        stage.writeCards(twoCards);
        stage.window();
        stage.chooseRoot();
        bool waiting = false;
        step = [&](double) {
            waiting = waiting || (QGuiApplication::overrideCursor() &&
                                  QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor);
        };
        stage.import("cmdMailingImpOE");
        QVERIFY(waiting);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void addressBookLosesSingleQuotesAndOuterBlanksOnly() {
        Stage stage;
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
        Stage stage;
        const QByteArray n(300, 'n');
        stage.writeCards("BEGIN:VCARD\nVERSION:3.0\nFN:" + n + "\nORG:" + n + "\nEMAIL:a@example.it\n" +
                         "ADR;TYPE=home:;;" + n + ";" + n + ";;" + n + ";\nTEL;TYPE=work:" + n +
                         "\nTEL;TYPE=fax:" + n + "\nEND:VCARD\n");
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpOE");
        const auto length = [&](const char* column) { return stage.inserted(column).value(0).size(); };
        QCOMPARE(length("nom"), 70);
        QCOMPARE(length("rgs"), 70);
        QCOMPARE(length("ind"), 255);
        QCOMPARE(length("cap"), 10);
        QCOMPARE(length("loc"), 70);
        QCOMPARE(length("tel"), 15);
        QCOMPARE(length("fax"), 15);
    }

    void outlookContactWithAnApostropheIsLeftOutAndTheOthersComeIn() {
        Stage stage;
        stage.writeHelper("{\"count\":3}\n" + contactLine("uno@example.it", "Uno") +
                          contactLine("due@example.it", "Bar dell'Angolo") +
                          contactLine("tre@example.it", "Tre"));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.inserted("email"), (QStringList{"uno@example.it", "tre@example.it"}));
        QCOMPARE(counted, countedTo(3));
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void outlookValueCannotAddRowsOfItsOwn() {
        Stage stage;
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
        Stage stage;
        stage.writeHelper("{\"count\":1}\n" + contactLine("uno@example.it", "Uno"));
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.inserted("email"), (QStringList{"uno@example.it", "uno@example.it"}));
    }

    void contactWithoutCompanySortsFirst() {
        Stage stage;
        stage.writeHelper("{\"count\":2}\n" + contactLine("uno@example.it", "Uno") +
                          contactLine("due@example.it", ""));
        stage.window();
        stage.clickNode("K1");
        stage.import("cmdMailingImpMSO");
        stage.clickNode("K1");
        QCOMPARE(stage.columnOfGrid(5), (QStringList{"", "Uno"}));
    }

    void helperThatCrashesLeavesTheRowsBeforeIt() {
        Stage stage;
        stage.writeHelper(
            "{\"count\":5}\n" + contactLine("uno@example.it", "Uno") + "{\"Email1Address\":\"due@exa",
            "kill -SEGV $$\n");
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.inserted("email"), QStringList{"uno@example.it"});
        QCOMPARE(stage.progressMaximum(), 5.0);
        QCOMPARE(stage.progressNow(), 0.0);
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.faults().isEmpty());
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
        Stage stage;
        stage.writeCards(twoCards);
        stage.writeHelper("{\"count\":2}\n" + contactLine("uno@example.it", "Uno") +
                          contactLine("due@example.it", "Due"));
        stage.window();
        stage.chooseRoot();
        bool ran = false, ranBetween = false;
        step = [&](double value) {
            if (value == 1)
                QMetaObject::invokeMethod(
                    &stage.window(), [&] { ran = true; }, Qt::QueuedConnection);
            if (value == 2) ranBetween = ran;
        };
        stage.import(command);
        QCOMPARE(counted, countedTo(2));
        QCOMPARE(ranBetween, runs);
        QCoreApplication::processEvents();
    }

    void databaseThatDisappearsGivesNoRowsAndNoMessage() {
        Stage stage;
        stage.writeHelper("{\"count\":1}\n" + contactLine("uno@example.it", "Uno"));
        stage.window();
        stage.chooseRoot();
        QTimer::singleShot(0, [&] {
            stage.folder.hideDatabase();
            finestre::Scelta().findChild<QPushButton*>("cmdOK")->click();
        });
        stage.command("cmdMailingImpMSO");
        stage.folder.showDatabase();
        QCOMPARE(stage.recipients(), 0);
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(stage.failure(), "");
    }

    void realOutlookFileAndRealAddressBook() {
        if (!QFile::exists(SHARED_DIR "/pst/accents.pst"))
            QSKIP("the sample Outlook files and the sample address book are not here");
        Stage stage;
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

QTEST_MAIN(TestImportContatti)
#include "contatti_test.moc"
