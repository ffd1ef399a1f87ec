// SPDX-License-Identifier: GPL-3.0-or-later
// Real databases of many programs: each is opened, listed and imported from. They are not part of the
// repository; where they are missing the tests report it and pass.
#include <QDir>
#include <QProcess>

#include "platform/ado/Catalog.h"
#include "platform/ado/Command.h"
#include "support/TestClass.h"
#include "windows/import/impdb_stage.h"

namespace impdb_campioni_test {

using namespace testing_support;

namespace {

const QString samplesFolder = QStringLiteral(SHARED_DIR "/mdb");

QStringList samples() {
    return QDir(samplesFolder).entryList({"*.mdb"}, QDir::Files, QDir::Name);
}

/// True, with a note, where the files are missing.
bool missing() {
    if (!samples().isEmpty()) return false;
    qInfo("skipped: there are no sample databases");
    return true;
}

/// What the independent reader lists of one kind.
QStringList listed(const QString& path, const QString& kind) {
    QProcess reader;
    reader.start("mdb-tables", {"-1", "-t", kind, path});
    if (!reader.waitForFinished() || reader.exitCode() != 0) qFatal("mdb-tables fails");
    QStringList names = QString::fromUtf8(reader.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    return names;
}

/// Tables with the mark of the system in the catalogue that are not named as such: Access
/// hides them, the catalogue lists them like any other. The independent reader leaves them out.
const QHash<QString, QStringList> hiddenTables{
    {"jk-testUnicodeCompV2003.mdb", {"f_B2444F72C17C49C3B2E92EED7C2E6EF3_Data"}},
    {"tika-testAccess2_2000.mdb", {"f_25107E40424A4A519B280B8F46E54839_Data"}}};

QStringList sorted(QStringList names) {
    names.sort(Qt::CaseInsensitive);
    return names;
}

QString copyOf(const QString& name, const DbStage& stage) {
    const QString path = stage.folder.path(name);
    if (!QFile::copy(samplesFolder + '/' + name, path)) qFatal("cannot copy a sample");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    return path;
}

QString passwordOf(const QString& name) {
    return name == "mr-V2000_with-password.mdb" ? "password" : QString();
}

QString connectionTo(const QString& path, const QString& password) {
    QString text = "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + path + ';';
    if (!password.isEmpty()) text += ";Jet OLEDB:Database Password=" + password;
    return text;
}

/// Writes an address into a column of every row; the number of rows, or -1 where the table cannot be changed.
qint64 fillWithAddresses(const QString& connection, const QString& table, const QString& column) {
    ado::Command command;
    if (!command.setActiveConnection(connection).ok()) return -1;
    command.setCommandText("UPDATE [" + table + "] SET [" + column + "] = 'a@x.it' ;");
    const Result<qint64> rows = command.execute();
    return rows.ok() ? rows.value() : -1;
}

}  // namespace

class TestImportDbCampioni : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyFileIsOpenedListedAndImportedFrom_data() {
        QTest::addColumn<QString>("name");
        if (missing()) QTest::newRow("none") << QString();
        for (const QString& name : samples())
            QTest::newRow(qPrintable(name)) << name;
    }
    void everyFileIsOpenedListedAndImportedFrom() {
        QFETCH(QString, name);
        if (name.isEmpty()) return;
        DbStage stage;
        const QString path = copyOf(name, stage);
        const QString password = passwordOf(name);
        stage.chooseNode();
        stage.open(path, password);
        QVERIFY2(ui::MessageDialog::shown().isEmpty(), "the file does not open");

        const QStringList expected =
            sorted(listed(path, "table") + listed(path, "linkedtable") + hiddenTables.value(name, {}));
        const QStringList found = stage.tables();
        if (name != "uc-weirdObjectNames.mdb") QCOMPARE(found, expected);
        QCOMPARE(found.size(), expected.size());

        qint64 imported = 0;
        auto* tables = stage.control<QComboBox>("cmbTab");
        for (int table = 0; table < tables->count(); ++table) {
            tables->setCurrentIndex(table);
            Q_EMIT tables->activated(table);
            const QStringList columns = DbStage::entries(*stage.box(2));
            if (columns.size() < 2) continue;
            qint64 filled = -1;
            QString address = columns[1];
            for (int column = 1; column < columns.size() && filled < 1; ++column) {
                filled =
                    fillWithAddresses(connectionTo(path, password), tables->itemText(table), columns[column]);
                if (filled > 0) address = columns[column];
            }
            for (int i = 0; i < 19; ++i)
                stage.box(i)->setCurrentIndex(1 + i % static_cast<int>(columns.size() - 1));
            stage.feed(2, address);
            const int before = DbStage::recipients();
            stage.importPicked();
            QVERIFY(!finestre::ImpDB().isVisible());
            const int rows = DbStage::recipients() - before;
            if (filled > 0) QVERIFY2(rows > 0 || filled < 3, qPrintable(tables->itemText(table)));
            QVERIFY(rows <= qMax<qint64>(filled, 0));
            imported += rows;
            stage.dialog();
        }
        qInfo("%s: %lld rows", qPrintable(name), imported);
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        QCOMPARE(stage.faults(), QStringList());
    }

    void valuesOfARealTableAreWrittenInTheLocale() {
        if (missing()) return;
        DbStage stage;
        const QString path = copyOf("nw-Northwind-b.mdb", stage);
        QCOMPARE(fillWithAddresses(connectionTo(path, {}), "Orders", "ShipName"), 830);
        stage.chooseNode();
        stage.open(path);
        stage.pick("Orders");
        stage.feed(2, "ShipName");
        stage.feed(10, "OrderID");
        stage.feed(11, "OrderDate");
        stage.feed(12, "Freight");
        stage.feed(13, "CustomerID");
        stage.importPicked();
        QCOMPARE(DbStage::recipients(), 830);
        const auto row = DbStage::inserted("campo1").indexOf("10248");
        QVERIFY(row >= 0);
        QCOMPARE(DbStage::inserted("campo2")[row], "04/08/1994");
        QCOMPARE(DbStage::inserted("campo3")[row], "32,38");
        QCOMPARE(DbStage::inserted("campo4")[row], "VINET");
    }

    void aFileOfAccess97IsImportedFrom() {
        if (missing()) return;
        DbStage stage;
        const QString path = copyOf("nw-Nwind97.mdb", stage);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        QVERIFY(bytes.contains("Alfreds Futterkiste"));
        bytes.replace("Alfreds Futterkiste", "alfreds@example.com");
        QVERIFY(file.seek(0));
        QCOMPARE(file.write(bytes), bytes.size());
        file.close();
        stage.chooseNode();
        stage.open(path);
        stage.pick("Customers");
        stage.feed(2, "CompanyName");
        stage.feed(1, "ContactName");
        stage.feed(5, "City");
        stage.importPicked();
        QCOMPARE(DbStage::inserted("email"), QStringList("alfreds@example.com"));
        QCOMPARE(DbStage::inserted("nom"), QStringList("Maria Anders"));
        QCOMPARE(DbStage::inserted("loc"), QStringList("Berlin"));
    }

    void aWrongPasswordShowsTheWordsOfTheDatabaseAndLeavesTheBoxesEmpty() {
        if (missing()) return;
        DbStage stage;
        const QString path = copyOf("mr-V2000_with-password.mdb", stage);
        for (const char* password : {"", "Password1"}) {
            ui::MessageDialog::reset();
            stage.answerBox();
            stage.open(path, password);
            ado::Connection connection;
            const Status status = connection.open(connectionTo(path, password));
            QCOMPARE(status.code(), ErrorCode::InvalidPassword);
            QVERIFY(stage.oneBox(status.text(), 64));
            QCOMPARE(stage.box(2)->count(), 0);
            QVERIFY(!stage.enabled("cmdImportaDB"));
        }
        stage.open(path, "password");
        QCOMPARE(stage.tables(), QStringList("Table1"));
    }

    void aLinkedTableIsListedAndHasNoColumns() {
        if (missing()) return;
        DbStage stage;
        stage.open(copyOf("uc-linked.mdb", stage));
        QVERIFY(!stage.tables().isEmpty());
        QCOMPARE(DbStage::entries(*stage.box(2)), QStringList(" ---------- "));
    }

    void aQueryIsNotListed() {
        if (missing()) return;
        DbStage stage;
        stage.open(copyOf("jk-queryTestV2000.mdb", stage));
        QCOMPARE(stage.tables(), QStringList({"Table1", "Table2", "Table3"}));
    }

    void tablesWithTheMarkOfTheSystemAreListedAndImportedFrom_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("tables");
        QTest::newRow("first of the list") << "jk-testUnicodeCompV2003.mdb"
                                           << QStringList{"f_B2444F72C17C49C3B2E92EED7C2E6EF3_Data", "Table"};
        QTest::newRow("before two others")
            << "tika-testAccess2_2000.mdb"
            << QStringList{"f_25107E40424A4A519B280B8F46E54839_Data", "Table1", "Table2"};
    }
    void tablesWithTheMarkOfTheSystemAreListedAndImportedFrom() {
        if (missing()) return;
        QFETCH(QString, name);
        QFETCH(QStringList, tables);
        DbStage stage;
        const QString path = copyOf(name, stage);
        ado::Connection connection;
        esigi(connection.open(connectionTo(path, {})));
        ado::Catalog catalog;
        catalog.setActiveConnection(connection);
        for (const auto& entry : esigi(catalog.tables()))
            if (tables.contains(entry.name))
                QCOMPARE(entry.kind == ado::Catalog::Kind::SystemTable, entry.name == tables[0]);
        stage.open(path);
        QCOMPARE(stage.tables(), tables);
        QCOMPARE(stage.control<QComboBox>("cmbTab")->currentText(), tables[0]);
        QVERIFY(DbStage::entries(*stage.box(2)).size() > 1);
        QVERIFY(stage.enabled("cmdImportaDB"));
    }

    void queriesAreLeftOutAndLinkedTablesHaveNoColumns() {
        if (missing()) return;
        DbStage stage;
        stage.open(copyOf("nw-Northwind-b.mdb", stage));
        QVERIFY(!stage.tables().contains("Invoices"));
        QVERIFY(stage.tables().contains("Orders"));
        stage.open(copyOf("uc-linked.mdb", stage));
        QCOMPARE(stage.tables(), QStringList({"Table1", "table2"}));
        QCOMPARE(DbStage::entries(*stage.box(2)), QStringList(" ---------- "));
        stage.answerBox();
        stage.click("cmdImportaDB");
        QVERIFY(stage.oneBox("Impossibile continuare.\r\nSelezionare almento un campo per l'email.", 64));
    }
};

TEST_CLASS(TestImportDbCampioni);

}  // namespace impdb_campioni_test

#include "impdb_campioni_test.moc"
