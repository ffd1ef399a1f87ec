// SPDX-License-Identifier: GPL-3.0-or-later
// How the account window is opened: by its command, modal over the main window, the same one every time.
#include <QTimer>

#include "support/AsInTheProgram.h"
#include "support/TestClass.h"
#include "windows/accounts/frmaccount_stage.h"
#include "windows/entry/Finestre.h"
#include "windows/store/griglia_stage.h"

namespace frmaccount_apertura_test {

using namespace testing_support;

class TestFrmAccountApertura : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void commandShowsItModalOverTheMainWindow() {
        StoreStage stage;
        stage.window();
        frmAccount* first = nullptr;
        for (int opening = 0; opening < 2; ++opening) {
            frmAccount* window = nullptr;
            QWidget* owner = nullptr;
            QTimer::singleShot(0, qApp, [&] {
                window = qobject_cast<frmAccount*>(QApplication::activeModalWidget());
                if (!window) return;
                owner = window->parentWidget();
                QTest::mouseClick(window->findChild<QPushButton*>("cmdChiudi"), Qt::LeftButton);
            });
            stage.command("cmdFileAccount");
            QVERIFY(window);
            QCOMPARE(owner, static_cast<QWidget*>(&stage.window()));
            QVERIFY(!window->isVisible());
            if (first) QCOMPARE(window, first);
            first = window;
        }
        QVERIFY(stage.ends.isEmpty());
    }

    void fileThatIsMissingEndsTheProgramAtTheFirstOpening() {
        StoreStage stage;
        stage.window();
        QVERIFY(QFile::remove(stage.folder.path("data/Account.imp")));
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.command("cmdFileAccount");
        QVERIFY2(stage.failure().startsWith("Errore 53:"), qPrintable(stage.failure()));
        QCOMPARE(stage.ends, QList<int>{1});
    }
};

TEST_CLASS_WITH(TestFrmAccountApertura, asInTheProgram);

}  // namespace frmaccount_apertura_test

#include "frmaccount_apertura_test.moc"
