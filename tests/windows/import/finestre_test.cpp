// SPDX-License-Identifier: GPL-3.0-or-later
// What the windows of the text import and of the Access import have in common.
#include <QTimer>

#include "platform/ui/ProgressCounter.h"
#include "support/TestClass.h"
#include "windows/core/bTheme.h"
#include "windows/import/impdb_stage.h"
#include "windows/import/imptxt_stage.h"

namespace finestre_test {

using namespace testing_support;

namespace {

/// One of the two windows over a source with the addresses "a@x.it" and "b@x.it".
class Stage : public DbStage {
  public:
    explicit Stage(bool text) : DbStage(text ? textImportWindow : accessImportWindow), m_text(text) {}

    QString commandName() const { return m_text ? "cmdMailingImpTXT" : "cmdMailingImpDB"; }
    QString pathField() const { return m_text ? "txtPath" : "txtDatabase"; }
    QString importButton() const { return m_text ? "cmdImportaTXT" : "cmdImportaDB"; }

    /// Names the source and lets it feed the address.
    void prepare() {
        if (m_text) {
            type("txtPath", write("a.txt", "a@x.it\r\nb@x.it\r\n"));
        } else {
            addPeople({{std::string("a@x.it"), jet::Value()}, {std::string("b@x.it"), jet::Value()}});
            open();
        }
        box(2)->setCurrentIndex(1);
    }

  private:
    bool m_text;
};

}  // namespace

class TestImportFinestre : public QObject {
    Q_OBJECT

    static void bothWindows() {
        QTest::addColumn<bool>("text");
        QTest::newRow("text") << true;
        QTest::newRow("Access") << false;
    }

  private Q_SLOTS:
    void opensOverTheMainWindowByItsCommand_data() { bothWindows(); }
    void opensOverTheMainWindowByItsCommand() {
        QFETCH(bool, text);
        Stage stage(text);
        stage.window();
        QWidget* modal = nullptr;
        QTimer::singleShot(0, &stage.window(), [&] {
            modal = QApplication::activeModalWidget();
            modal->findChild<QPushButton*>("cmdChiudi")->click();
        });
        stage.command(stage.commandName());
        QVERIFY(modal);
        QCOMPARE(modal->objectName(), text ? "frmImpTXT" : "frmImpDB");
        QCOMPARE(modal->parentWidget(), &stage.window());
        QVERIFY(!modal->isVisible());
        QVERIFY(stage.ends.isEmpty());
    }

    void eachBoxIsUnderTheLabelOfItsColumn_data() { bothWindows(); }
    void eachBoxIsUnderTheLabelOfItsColumn() {
        QFETCH(bool, text);
        Stage stage(text);
        const QStringList labels{"Ragione Sociale:", "Nome:",      "Email:",     "P.Iva o Cod.Fis.:", "CAP:",
                                 "Località:",        "Provincia:", "Indirizzo:", "Telefono:",         "Fax:"};
        const QHash<int, int> otherNumbers{{4, 5}, {5, 6}, {6, 7}, {7, 4}};
        for (int i = 0; i < 19; ++i) {
            const QString caption = i < 10 ? labels[i] : QString("Campo %1:").arg(i - 9);
            QLabel* above = stage.labelAbove(i);
            QVERIFY(above);
            QCOMPARE(above->text(), caption);
            QCOMPARE(above->objectName(), QString("lblcmp(%1)").arg(otherNumbers.value(i, i)));
            QCOMPARE(above->buddy(), stage.box(i));
            QCOMPARE(stage.box(i)->accessibleName(), QString(caption).remove(':'));
        }
    }

    void boxesAreInFourRowsOfFiveTheLastOfFour_data() { bothWindows(); }
    void boxesAreInFourRowsOfFiveTheLastOfFour() {
        QFETCH(bool, text);
        Stage stage(text);
        const auto place = [&](int box) { return stage.box(box)->mapTo(&stage.dialog(), QPoint()); };
        for (int i = 0; i < 19; ++i) {
            QCOMPARE(place(i).y(), place(i / 5 * 5).y());
            QCOMPARE(place(i).x(), place(i % 5).x());
        }
        for (int i = 5; i < 19; ++i)
            QVERIFY(place(i).y() > place(i - 5).y());
        for (int i = 1; i < 5; ++i)
            QVERIFY(place(i).x() > place(i - 1).x());
    }

    void columnsAreOfEqualWidthWhateverTheLanguage_data() { bothWindows(); }
    void columnsAreOfEqualWidthWhateverTheLanguage() {
        QFETCH(bool, text);
        Stage stage(text);
        auto* label = stage.control<QLabel>("lblcmp(0)");
        stage.dialog().hide();
        label->setText("A caption that is longer than a column is wide:");
        stage.dialog();
        QCoreApplication::processEvents();
        QVERIFY(stage.box(0)->width() >= label->minimumSizeHint().width());
        for (int i = 1; i < 5; ++i)
            QVERIFY(qAbs(stage.box(i)->width() - stage.box(0)->width()) <= 1);
    }

    void boxOfTheAddressIsPaleYellow_data() { bothWindows(); }
    void boxOfTheAddressIsPaleYellow() {
        QFETCH(bool, text);
        Stage stage(text);
        for (int i = 0; i < 19; ++i)
            QCOMPARE(stage.box(i)->palette().color(QPalette::Base) == QColor(255, 255, 204), i == 2);
        QCOMPARE(stage.box(2)->accessibleDescription(), "obbligatorio");
    }

    void asksForTheGroup_data() { bothWindows(); }
    void asksForTheGroup() {
        QFETCH(bool, text);
        Stage stage(text);
        QCOMPARE(stage.control<QLabel>("lbl(2)")->text(), "Come vuoi inserire i nuovi destinatari?");
        QCOMPARE(stage.control<QRadioButton>("opt(0)")->text(),
                 "Aggiungi i destinatari nella cartella selezionata.");
        QCOMPARE(stage.control<QRadioButton>("opt(1)")->text(),
                 "Aggiungi i destinatari in una nuova cartella.");
        QCOMPARE(stage.control<QLineEdit>("txtCartella")->text(), "Nuova cartella");
        QVERIFY(stage.control<QRadioButton>("opt(0)")->isChecked());
        QVERIFY(!stage.enabled("txtCartella"));
        stage.click("opt(1)");
        QVERIFY(stage.enabled("txtCartella"));
        stage.click("opt(0)");
        QVERIFY(!stage.enabled("txtCartella"));
        for (const char* name : {"opt(0)", "opt(1)"})
            QCOMPARE(stage.control<QRadioButton>(name)->palette().color(QPalette::Window), coloreTema(0));
    }

    void browseTakesTheChosenFileAndLeavesEverythingAfterACancel_data() { bothWindows(); }
    void browseTakesTheChosenFileAndLeavesEverythingAfterACancel() {
        QFETCH(bool, text);
        Stage stage(text);
        ui::FileDialog::queue("/tmp/elenco");
        stage.click("cmdSfoglia");
        ui::FileDialog::queueCancel();
        stage.click("cmdSfoglia");
        QCOMPARE(stage.control<QLineEdit>(stage.pathField())->text(), "/tmp/elenco");
        QCOMPARE(ui::FileDialog::shown().size(), 2);
        for (const auto& dialog : ui::FileDialog::shown()) {
            QCOMPARE(dialog.title, "Apri Database Access");
            QCOMPARE(dialog.filter, text ? "File di Testo (*.TXT)|*.TXT" : "Database Access (*.MDB)|*.MDB");
        }
        QVERIFY(stage.ends.isEmpty());
    }

    void tabGoesPairByPairAlongTheRows_data() { bothWindows(); }
    void tabGoesPairByPairAlongTheRows() {
        QFETCH(bool, text);
        Stage stage(text);
        stage.prepare();
        QApplication::setActiveWindow(&stage.dialog());
        stage.control<QLineEdit>(stage.pathField())->setFocus();
        QStringList wanted =
            text ? QStringList{"txtPath", "cmdSfoglia", "txtSep"}
                 : QStringList{"txtDatabase", "cmdSfoglia", "txtPassword", "cmdApri", "cmbTab"};
        for (int i = 0; i < 19; ++i)
            wanted << QString("cmbCmp(%1)").arg(i);
        wanted << "opt(0)" << stage.importButton() << "cmdChiudi";
        QStringList order{stage.pathField()};
        while (order.size() < wanted.size()) {
            QTest::keyClick(stage.dialog().focusWidget(), Qt::Key_Tab);
            order << stage.dialog().focusWidget()->objectName();
        }
        QCOMPARE(order, wanted);
    }

    void gridIsNotRefreshedBeforeTheNextClick_data() { bothWindows(); }
    void gridIsNotRefreshedBeforeTheNextClick() {
        QFETCH(bool, text);
        Stage stage(text);
        stage.chooseNode();
        stage.prepare();
        stage.click(stage.importButton());
        QCOMPARE(stage.recipients(), 2);
        QCOMPARE(stage.grd().Rows(), 1);
        stage.clickNode("K1");
        QCOMPARE(stage.grd().Rows(), 3);
    }

    void hourglassIsTheOnlySignOfTheImport_data() { bothWindows(); }
    void hourglassIsTheOnlySignOfTheImport() {
        QFETCH(bool, text);
        Stage stage(text);
        stage.chooseNode();
        stage.prepare();
        ui::ProgressCounter& progress = *stage.window().Commands().GetProgress("stcProgress");
        const double maximum = progress.maximum();
        bool waiting = false;
        QTimer::singleShot(0, [&] {
            waiting =
                QApplication::overrideCursor() && QApplication::overrideCursor()->shape() == Qt::WaitCursor;
        });
        stage.click(stage.importButton());
        QVERIFY(waiting);
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(progress.value(), 0.0);
        QCOMPARE(progress.maximum(), maximum);
        QVERIFY(ui::MessageDialog::shown().isEmpty());
    }

    void rootGetsTheRowsUnderTheNumberZero_data() { bothWindows(); }
    void rootGetsTheRowsUnderTheNumberZero() {
        QFETCH(bool, text);
        Stage stage(text);
        stage.window();
        stage.clickNode("K0");
        stage.prepare();
        stage.click(stage.importButton());
        QCOMPARE(stage.inserted("id_grp"), QStringList({"0", "0"}));
    }

    void sameSourceTwiceInsertsEveryRowTwice_data() { bothWindows(); }
    void sameSourceTwiceInsertsEveryRowTwice() {
        QFETCH(bool, text);
        Stage stage(text);
        stage.chooseNode();
        stage.prepare();
        stage.click(stage.importButton());
        stage.click(stage.importButton());
        QCOMPARE(stage.inserted("email"), QStringList({"a@x.it", "b@x.it", "a@x.it", "b@x.it"}));
    }
};

TEST_CLASS(TestImportFinestre);

}  // namespace finestre_test

#include "finestre_test.moc"
