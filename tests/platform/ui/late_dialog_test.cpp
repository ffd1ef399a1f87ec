// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/LateDialog.h"

#include <QLabel>
#include <QStringList>
#include <QTest>

#include "support/TestClass.h"

namespace late_dialog_test {

namespace {

class Dialog : public ui::LateDialog {
  public:
    QStringList done;
    QLabel* label = nullptr;

  protected:
    void makeControls() override {
        label = new QLabel("come nasce", this);
        done << "controls";
        // The controls may themselves ask for something.
        whenComplete([this] { done << "asked while they were made"; });
    }
};

}  // namespace

class TestLateDialog : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aDialogThatIsNeverShownHasNoControls() {
        Dialog dialog;
        dialog.whenComplete([&] { dialog.done << "caption"; });
        dialog.setVisible(false);
        QCOMPARE(dialog.done, QStringList());
        QVERIFY(!dialog.label);
    }

    void theFirstShowingMakesThemOnce() {
        Dialog dialog;
        dialog.show();
        QVERIFY(dialog.label && dialog.label->isVisible());
        dialog.hide();
        dialog.show();
        dialog.complete();
        QCOMPARE(dialog.done.count("controls"), 1);
    }

    void whatWaitsForThemRunsInTheOrderOfTheCalls() {
        Dialog dialog;
        QString seen;
        dialog.whenComplete([&] { dialog.label->setText("uno"); });
        dialog.whenComplete([&] { dialog.label->setText(dialog.label->text() + " due"); });
        dialog.whenComplete([&] { seen = dialog.label->text(); });
        dialog.complete();
        QCOMPARE(seen, QString("uno due"));
    }

    void onceTheyAreThereWorkRunsAtOnce() {
        Dialog dialog;
        dialog.complete();
        bool ran = false;
        dialog.whenComplete([&] { ran = true; });
        QVERIFY(ran);
        QCOMPARE(dialog.done, QStringList({"controls", "asked while they were made"}));
    }

    void workThatAsksForMoreWorkHasItDone() {
        Dialog dialog;
        QStringList order;
        dialog.whenComplete([&] {
            order << "first";
            dialog.whenComplete([&] { order << "inner"; });
        });
        dialog.whenComplete([&] { order << "second"; });
        dialog.show();
        QCOMPARE(order, QStringList({"first", "inner", "second"}));
    }
};

TEST_CLASS(TestLateDialog);

}  // namespace late_dialog_test

#include "late_dialog_test.moc"
