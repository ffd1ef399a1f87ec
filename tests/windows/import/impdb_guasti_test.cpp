// SPDX-License-Identifier: GPL-3.0-or-later
// Faulty sources of the Access import, and databases that another process locks.
#include <sys/stat.h>

#include <QTimer>

#include "modules/store/NuovoDatabase.h"
#include "modules/store/Schema.h"
#include "platform/jet/Database.h"
#include "support/Impatience.h"
#include "support/LockedFile.h"
#include "support/TestClass.h"
#include "windows/import/impdb_stage.h"

namespace impdb_guasti_test {

using namespace testing_support;

namespace {

// more than two of the groups of 5000 rows that go to disk together
constexpr int manyRecords = 12000;

/// Opens a recipient database with many rows as the source: "n1@x.it", "n2@x.it", …
void openLongSource(DbStage& stage) {
    const QString path = stage.source();
    esigi(schema::CreaDatabase(path.toStdString()));
    auto file = esigi(jet::Database::open(path.toStdString()));
    jet::Table* table = esigi(file->table("tb_destinatari"));
    esigi(file->begin());
    for (int i = 1; i <= manyRecords; ++i) {
        std::vector<jet::Value> row;
        for (const schema::Colonna& column : schema::colonneDestinatari) {
            if (column.nome == u"email")
                row.emplace_back("n" + std::to_string(i) + "@x.it");
            else if (column.tipo == schema::Tipo::Testo)
                row.emplace_back(std::string("MI"));
            else if (column.tipo == schema::Tipo::SiNo)
                row.emplace_back(true);
            else
                row.emplace_back(int64_t{i});
        }
        esigi(table->insert(row));
    }
    esigi(file->commit());
    file.reset();
    stage.chooseNode();
    stage.open();
    stage.feed(2, "email");
}

}  // namespace

class TestImportDbGuasti : public QObject {
    Q_OBJECT

    /// The import ended without a message, and the database is consistent.
    static void expectAQuietEnd(const DbStage& stage) {
        QVERIFY(!finestre::ImpDB().isVisible());
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        QCOMPARE(stage.faults(), QStringList());
    }

  private Q_SLOTS:
    void whatIsNoDatabaseSaysWhyAndLeavesTheBoxesEmpty_data() {
        QTest::addColumn<QString>("kind");
        for (const char* kind : {"empty path", "directory", "device", "pipe", "text", "empty file", "binary",
                                 "unreadable", "zeros of 2 GB", "semicolon in the path", "quote in the path"})
            QTest::newRow(kind) << kind;
    }
    void whatIsNoDatabaseSaysWhyAndLeavesTheBoxesEmpty() {
        QFETCH(QString, kind);
        DbStage stage;
        QString path = stage.folder.path("sorgente.mdb");
        if (kind == "empty path") path.clear();
        if (kind == "directory") path = stage.folder.path("data");
        if (kind == "device") path = "/dev/zero";
        if (kind == "pipe") QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
        if (kind == "text") stage.write("sorgente.mdb", "Ragione Sociale;Nome;Email\r\n");
        if (kind == "empty file") stage.write("sorgente.mdb", "");
        if (kind == "binary") stage.write("sorgente.mdb", QByteArray("\x89\x01\xfe\0Z", 5).repeated(20000));
        if (kind == "unreadable") path = "/proc/self/mem";
        if (kind == "zeros of 2 GB")
            QVERIFY(QFile::resize(stage.write("sorgente.mdb", "x"), qint64(2) << 30));
        if (kind == "semicolon in the path") path = "a;b.mdb";
        if (kind == "quote in the path") path = "\"a.mdb";
        stage.answerBox();
        stage.open(path);
        QCOMPARE(ui::MessageDialog::shown().size(), 1);
        QVERIFY(!ui::MessageDialog::shown()[0].text.isEmpty());
        QCOMPARE(ui::MessageDialog::shown()[0].style, 64);
        QCOMPARE(ui::MessageDialog::shown()[0].title, "Attenzione");
        QCOMPARE(stage.tables(), QStringList());
        QCOMPARE(stage.box(2)->count(), 0);
        QVERIFY(!stage.enabled("cmdImportaDB"));
        QVERIFY(stage.ends.isEmpty());
    }

    void aDatabaseThatIsCutOffNeverEndsTheProgram() {
        DbStage stage;
        stage.addPeople({{std::string("a@x.it"), std::string("Anna")}});
        ado::closeAll();
        const qint64 whole = QFile(stage.source()).size();
        for (qint64 size = whole - 4096; size > 0; size -= 8192) {
            QVERIFY(QFile::resize(stage.source(), size));
            ui::MessageDialog::reset();
            stage.answerBox();
            stage.open();
            if (stage.enabled("cmdImportaDB") && stage.box(2)->count() > 1) {
                stage.click("opt(1)");
                stage.box(2)->setCurrentIndex(1);
                stage.click("cmdImportaDB");
            }
            QVERIFY(stage.ends.isEmpty());
        }
        QCOMPARE(stage.faults(), QStringList());
    }

    void aSourceThatIsCutMeanwhileIsReadToItsNewEnd() {
        DbStage stage;
        openLongSource(stage);
        bool cut = false;
        QTimer::singleShot(0, [&] { cut = QFile::resize(stage.source(), 4096 * 40); });
        stage.click("cmdImportaDB");
        QVERIFY(cut);
        const QStringList addresses = DbStage::inserted("email");
        QVERIFY(!addresses.isEmpty());
        QVERIFY(addresses.size() <= manyRecords);  // all, where they were read before that
        QVERIFY(isBeginningOfTheList(addresses));
        expectAQuietEnd(stage);
    }

    void aSourceThatIsRemovedMeanwhileDoesNotEndTheProgram() {
        DbStage stage;
        openLongSource(stage);
        QTimer::singleShot(0, [&] { QFile::remove(stage.source()); });
        stage.click("cmdImportaDB");
        QVERIFY(!QFile::exists(stage.source()));
        QVERIFY(isBeginningOfTheList(DbStage::inserted("email")));
        expectAQuietEnd(stage);
    }

    void aSourceThatIsOverwrittenMeanwhileDoesNotEndTheProgram() {
        DbStage stage;
        openLongSource(stage);
        bool overwritten = false;
        QTimer::singleShot(0, [&] {
            QFile file(stage.source());
            overwritten = file.open(QIODevice::ReadWrite) && file.seek(4096 * 40) &&
                          file.write(QByteArray(4096 * 400, '\xA5')) > 0;
        });
        stage.click("cmdImportaDB");
        QVERIFY(overwritten);
        const QStringList addresses = DbStage::inserted("email");
        QVERIFY(!addresses.isEmpty());
        QVERIFY(addresses.size() <= manyRecords);  // all, where they were read before that
        expectAQuietEnd(stage);
    }

    void clicksAndKeysDuringTheImportAreThrownAway() {
        DbStage stage;
        openLongSource(stage);
        auto* start = stage.control<QPushButton>("cmdImportaDB");
        bool alive = false;
        QTimer::singleShot(0, [&] {
            alive = true;
            QTest::mouseClick(start, Qt::LeftButton);
            QTest::keyClick(&stage.dialog(), Qt::Key_Return);
        });
        stage.click("cmdImportaDB");
        QVERIFY(alive);
        QCoreApplication::processEvents();
        QCOMPARE(DbStage::recipients(), manyRecords);
    }

    void aSourceThatSomebodyElseWritesToSaysSo() {
        DbStage stage;
        stage.addPeople({{std::string("a@x.it"), std::string("Anna")}});
        {
            const testing_support::Impatience impatience;
            const testing_support::LockedFile lock(stage.source());
            stage.answerBox();
            stage.open();
            QCOMPARE(ui::MessageDialog::shown().size(), 1);
            QVERIFY(!stage.enabled("cmdImportaDB"));
        }
        stage.open();
        QVERIFY(stage.enabled("cmdImportaDB"));
    }

    void recipientsThatSomebodyElseWritesToTakeNoRowsOnceTheUserCancels() {
        DbStage stage;
        stage.addPeople({{std::string("a@x.it"), std::string("Anna")}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        {
            const testing_support::Impatience impatience;
            auto other = esigi(jet::Database::open(stage.folder.database().toStdString()));
            esigi(other->begin());
            stage.click("cmdImportaDB");
        }
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(DbStage::recipients(), 0);
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::recipients(), 1);
        QCOMPARE(stage.faults(), QStringList());
    }
};

TEST_CLASS(TestImportDbGuasti);

}  // namespace impdb_guasti_test

#include "impdb_guasti_test.moc"
