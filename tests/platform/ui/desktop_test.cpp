// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/ui/CountLabel.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/LinkLabel.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/ProgressCounter.h"
#include "platform/ui/Unattended.h"
#include "support/TestClass.h"

namespace desktop_test {

using ui::FileDialog;
using ui::MessageDialog;

namespace {

/// Calls `look` with the message box that is shown at the next turn of the event loop.
void atNextBox(std::function<void(QMessageBox*)> look) {
    QTimer::singleShot(0, qApp, [look] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        look(box);
    });
}

/// Types a path into the file dialog that is shown at the next turn of the event loop, and accepts it.
void typeIntoNextFileDialog(const QString& path) {
    QTimer::singleShot(0, qApp, [path] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(dialog, "accept");
    });
}

}  // namespace

class TestUi : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        ui::setUnattended(true);
        MessageDialog::reset();
        FileDialog::reset();
    }

    void boxIconAndButtonsFollowTheStyleNumber_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("answer");
        QTest::newRow("plain") << 0 << int(QMessageBox::NoIcon) << int(QMessageBox::Ok) << 1;
        QTest::newRow("notice") << 64 << int(QMessageBox::Information) << int(QMessageBox::Ok) << 1;
        QTest::newRow("stop") << 16 << int(QMessageBox::Critical) << int(QMessageBox::Ok) << 1;
        QTest::newRow("confirm") << 68 << int(QMessageBox::Information)
                                 << int(QMessageBox::Yes | QMessageBox::No) << 6;
        QTest::newRow("delete") << 36 << int(QMessageBox::Question) << int(QMessageBox::Yes | QMessageBox::No)
                                << 7;
    }
    void boxIconAndButtonsFollowTheStyleNumber() {
        QFETCH(int, style);
        QFETCH(int, icon);
        QFETCH(int, buttons);
        QFETCH(int, answer);
        MessageDialog::queue(answer);
        QCOMPARE(MessageDialog::show("Prima riga.\r\nContinuare?", style, "Attenzione"), answer);
        QCOMPARE(MessageDialog::shown().size(), 1);
        const auto& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "Prima riga.\r\nContinuare?");
        QCOMPARE(box.title, "Attenzione");
        QCOMPARE(int(box.icon), icon);
        QCOMPARE(int(box.buttons), buttons);
        QCOMPARE(MessageDialog::queued(), 0);
    }

    void realBoxShowsPlainTextAndItalianButtons() {
        ui::setUnattended(false);
        atNextBox([](QMessageBox* box) {
            QCOMPARE(box->text(), QString("<b>Prima</b>\nContinuare?"));
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->windowTitle(), "Attenzione");
            QCOMPARE(box->icon(), QMessageBox::Information);
            QCOMPARE(box->button(QMessageBox::Yes)->text().remove('&'), "Sì");
            box->button(QMessageBox::Yes)->click();
        });
        QCOMPARE(MessageDialog::show("<b>Prima</b>\r\nContinuare?", 68, "Attenzione"), 6);
    }

    void escapeAnswersNo() {
        ui::setUnattended(false);
        atNextBox([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(MessageDialog::show("Continuare?", 68, "Attenzione"), 7);
    }

    void realQuestionAboutAListAnswersNoUnlessItIsToldYes_data() {
        QTest::addColumn<QString>("remember");
        QTest::addColumn<bool>("check");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<int>("answer");
        QTest::newRow("return") << QString() << false << false << int(MessageDialog::No);
        QTest::newRow("box and return") << "Sempre" << true << false << int(MessageDialog::No);
        QTest::newRow("yes") << QString() << false << true << int(MessageDialog::Yes);
        QTest::newRow("yes, box off") << "Sempre" << false << true << int(MessageDialog::Yes);
        QTest::newRow("yes, box on") << "Sempre" << true << true << int(MessageDialog::YesAlways);
    }
    void realQuestionAboutAListAnswersNoUnlessItIsToldYes() {
        QFETCH(QString, remember);
        QFETCH(bool, check);
        QFETCH(bool, yes);
        QFETCH(int, answer);
        ui::setUnattended(false);
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<ui::ListQuestion*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle(), "Immagini");
            QCOMPARE(dialog->accessibleDescription(), "<b>Due</b>\nfile.");
            auto* list = dialog->findChild<QTreeWidget*>("list");
            QCOMPARE(list->topLevelItemCount(), 2);
            QCOMPARE(list->topLevelItem(1)->text(0), "/b.png");
            QCOMPARE(list->topLevelItem(1)->toolTip(1), "&lt;due&gt;");
            auto* box = dialog->findChild<QCheckBox*>("chkRemember");
            QCOMPARE(box != nullptr, !remember.isEmpty());
            if (check) box->setChecked(true);
            if (yes)
                dialog->accept();
            else
                QTest::keyClick(dialog, Qt::Key_Return);
        });
        const ui::ListQuestion::Content question{"Immagini",
                                                 "<b>Due</b>\r\nfile.",
                                                 {"File", "Perché"},
                                                 {{"/a.png", "uno"}, {"/b.png", "<due>"}},
                                                 remember};
        QCOMPARE(MessageDialog::askAbout(question), answer);
    }

    void filterWithAndWithoutClosingBar() {
        QCOMPARE(FileDialog::nameFilters("Database Mailing List *.mdb|*.mdb|"),
                 QStringList{"Database Mailing List *.mdb (*.mdb)"});
        QCOMPARE(FileDialog::nameFilters("Database Mailing List *.mdb|*.mdb"),
                 QStringList{"Database Mailing List *.mdb (*.mdb)"});
        QCOMPARE(FileDialog::nameFilters("Message File (*.mss)|*.mss"), QStringList{"Message File (*.mss)"});
        QCOMPARE(FileDialog::nameFilters(" (*.xt1)|*.xt1|"), QStringList{"(*.xt1)"});
        QCOMPARE(FileDialog::nameFilters("A|*.a;*.b|B|*.c|"), (QStringList{"A (*.a *.b)", "B (*.c)"}));
        QCOMPARE(FileDialog::nameFilters(""), QStringList());
    }

    void defaultSuffixIsTheFirstPatterns() {
        QCOMPARE(FileDialog::defaultSuffix("Message File (*.mss)|*.mss"), "mss");
        QCOMPARE(FileDialog::defaultSuffix(" (*.xt1)|*.xt1|"), "xt1");
        QCOMPARE(FileDialog::defaultSuffix("Tutti|*.*|"), "");
        QCOMPARE(FileDialog::defaultSuffix(""), "");
    }

    void saveAddsTheSuffixToABareName() {
        FileDialog::queue("/tmp/registro");
        FileDialog::queue("/tmp.d/registro.txt");
        QCOMPARE(FileDialog::save("Crea", "Log (*.xt1)|*.xt1|"), "/tmp/registro.xt1");
        QCOMPARE(FileDialog::save("Crea", "Log (*.xt1)|*.xt1|"), "/tmp.d/registro.txt");
        QVERIFY(FileDialog::shown().constFirst().save);
    }

    void saveAsksBeforeItTakesAnExistingFileAndAsksForAnotherOnNo() {
        ui::setUnattended(false);
        QTemporaryDir folder;
        const QString path = folder.filePath("copia.mdb");
        QFile(path).open(QIODevice::WriteOnly);
        int questions = 0;
        std::function<void()> chooseFile;
        const auto answer = [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            QVERIFY(box->text().contains(path));
            const bool again = ++questions == 1;
            if (again) QTimer::singleShot(0, qApp, chooseFile);
            box->button(again ? QMessageBox::No : QMessageBox::Yes)->click();
        };
        chooseFile = [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle(), "Salva");
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder.filePath("copia"));
            QTimer::singleShot(0, qApp, answer);
            QMetaObject::invokeMethod(dialog, "accept");
        };
        QTimer::singleShot(0, qApp, chooseFile);
        QCOMPARE(FileDialog::save("Salva", "Database Mailing List *.mdb|*.mdb"), path);
        QCOMPARE(questions, 2);
    }

    void existingFileIsTakenWithoutAQuestionWhereTheCallerContinuesIt() {
        ui::setUnattended(false);
        QTemporaryDir folder;
        const QString path = folder.filePath("registro.xt1");
        QFile(path).open(QIODevice::WriteOnly);
        typeIntoNextFileDialog(path);
        QCOMPARE(FileDialog::save("Crea", "Log (*.xt1)|*.xt1|", {}, FileDialog::Existing::Accept), path);
    }

    void saveProposesANameAndStartsInTheDocuments() {
        ui::setUnattended(false);
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        const QString start = QFileInfo(documents).isDir() ? documents : QDir::homePath();
        QString folder;
        QString name;
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            folder = dialog->directory().absolutePath();
            name = dialog->findChild<QLineEdit*>("fileNameEdit")->text();
            dialog->reject();
        });
        QCOMPARE(FileDialog::save("Crea", "Log (*.xt1)|*.xt1|", "assistenza.xt1"), std::nullopt);
        QCOMPARE(folder, start);
        QCOMPARE(name, "assistenza.xt1");
        QCOMPARE(FileDialog::shown().constLast().proposal, "assistenza.xt1");
    }

    void aLaterDialogStartsWhereTheLastOneEnded() {
        ui::setUnattended(false);
        QTemporaryDir place;
        QFile(place.filePath("a.txt")).open(QIODevice::WriteOnly);
        QString folder;
        const auto choose = [&](const QString& path) {
            QTimer::singleShot(0, qApp, [&folder, path] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                QVERIFY(dialog);
                folder = dialog->directory().absolutePath();
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
                QMetaObject::invokeMethod(dialog, path.isEmpty() ? "reject" : "accept");
            });
            return FileDialog::open("Apri", "Testo|*.txt");
        };
        QCOMPARE(choose(place.filePath("a.txt")), place.filePath("a.txt"));
        QCOMPARE(choose({}), std::nullopt);
        QCOMPARE(folder, QDir(place.path()).absolutePath());
    }

    void aNameThatTheFilterDoesNotShowMayBeTyped() {
        ui::setUnattended(false);
        QTemporaryDir place;
        const QString path = place.filePath("lista.csv");
        QFile(path).open(QIODevice::WriteOnly);
        typeIntoNextFileDialog(path);
        QCOMPARE(FileDialog::open("Apri", "File di Testo (*.TXT)|*.TXT"), path);
    }

    void aDialogThatNeedsMoreThanTheScreenScrollsAndKeepsEachControlInReach() {
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        QDialog dialog;
        auto* column = new QVBoxLayout(&dialog);
        for (int i = 0; i < 60; ++i)
            column->addWidget(new QLineEdit);
        auto* last = new QPushButton("Chiudi");
        column->addWidget(last);
        ui::setUpDialog(dialog);
        QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        for (int opening = 0; opening < 2; ++opening) {
            dialog.show();
            QVERIFY(QTest::qWaitFor([&] { return room.contains(dialog.geometry()); }));
            QVERIFY(!dialog.rect().contains(last->mapTo(&dialog, QPoint(5, 5))));
            last->setFocus(Qt::TabFocusReason);
            auto* area = dialog.findChild<QScrollArea*>("dialogContent");
            QVERIFY(area);
            area->ensureWidgetVisible(last);
            QVERIFY(dialog.rect().contains(QRect(last->mapTo(&dialog, QPoint()), last->size())));
            area->verticalScrollBar()->setValue(0);
            dialog.hide();
        }
        QCOMPARE(dialog.findChildren<QScrollArea*>().size(), 1);
    }

    void aDialogThatFitsIsLeftAsItIsButBroughtBackOntoTheScreen() {
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        QDialog dialog;
        (new QVBoxLayout(&dialog))->addWidget(new QLineEdit);
        ui::setUpDialog(dialog);
        dialog.resize(200, 100);
        dialog.move(room.right() - 50, room.bottom() - 50);
        dialog.show();
        QVERIFY(QTest::qWaitFor([&] { return room.contains(dialog.geometry()); }));
        QCOMPARE(dialog.size(), QSize(200, 100));
        QVERIFY(!dialog.findChild<QScrollArea*>());
    }

    void realDialogThatIsCancelledReturnsNothing() {
        ui::setUnattended(false);
        QTimer::singleShot(0, qApp, [] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->reject();
        });
        QVERIFY(!FileDialog::open("Apri", "Message File (*.mss)|*.mss").has_value());
    }

    void cancelReturnsNothing() {
        FileDialog::queueCancel();
        QVERIFY(!FileDialog::open("Apri", "Message File (*.mss)|*.mss").has_value());
        const auto& asked = FileDialog::shown().constFirst();
        QCOMPARE(asked.title, "Apri");
        QCOMPARE(asked.filter, "Message File (*.mss)|*.mss");
        QVERIFY(!asked.save);
        QVERIFY(!asked.answer);
    }

    void counterKeepsValuesUnchanged() {
        ui::ProgressCounter counter;
        counter.setMaximum(3);
        counter.setValue(-1.5);
        QCOMPARE(counter.value(), -1.5);
        counter.setValue(7);
        QCOMPARE(counter.value(), 7.0);
        QCOMPARE(counter.maximum(), 3.0);
        counter.setMaximum(0);
        QCOMPARE(counter.value(), 7.0);
    }

    void counterDrawsItsShareClamped_data() {
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("filled");
        QTest::newRow("empty") << 4.0 << 0.0 << 0;
        QTest::newRow("half") << 4.0 << 2.0 << 100;
        QTest::newRow("full") << 4.0 << 4.0 << 200;
        QTest::newRow("beyond") << 4.0 << 9.0 << 200;
        QTest::newRow("below") << 4.0 << -9.0 << 0;
        QTest::newRow("no range") << 0.0 << 3.0 << 0;
    }
    void counterDrawsItsShareClamped() {
        QFETCH(double, maximum);
        QFETCH(double, value);
        QFETCH(int, filled);
        ui::ProgressCounter counter;
        counter.resize(200, 18);
        counter.setBarColor(Qt::red);
        counter.setMaximum(maximum);
        counter.setValue(value);
        const QImage picture = counter.grab().toImage();
        int red = 0;
        for (int x = 0; x < 200; ++x)
            red += picture.pixelColor(x, 9).red() > 250 && picture.pixelColor(x, 9).green() < 5;
        QVERIFY2(qAbs(red - filled) <= 5, qPrintable(QString::number(red)));
    }

    void counterIsAProgressBarWithValueAndRangeToAssistivePrograms() {
        ui::ProgressCounter counter;
        counter.setAccessibleName("Email inviate");
        counter.setMaximum(20);
        counter.setValue(5);
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&counter);
        QVERIFY(face);
        QCOMPARE(face->role(), QAccessible::ProgressBar);
        QCOMPARE(face->text(QAccessible::Name), "Email inviate");
        QVERIFY(face->valueInterface());
        QCOMPARE(face->valueInterface()->currentValue().toDouble(), 5.0);
        QCOMPARE(face->valueInterface()->maximumValue().toDouble(), 20.0);
        QCOMPARE(face->valueInterface()->minimumValue().toDouble(), 0.0);
        QCOMPARE(face->valueInterface()->minimumStepSize().toDouble(), 1.0);
        face->valueInterface()->setCurrentValue(9);  // the work alone moves it
        QCOMPARE(counter.value(), 5.0);
    }

    void countIsReadAsItsPresentTextWithItsHint() {
        ui::CountLabel label("3 destinatari");
        label.hint.set([] { return QString("In tutte le cartelle"); });
        label.setText("4 destinatari");
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(face->role(), QAccessible::StaticText);
        QCOMPARE(face->text(QAccessible::Name), "4 destinatari");
        QCOMPARE(face->text(QAccessible::Description), "In tutte le cartelle");
        QCOMPARE(face->text(QAccessible::Value), "");
        QVERIFY(face->state().readOnly);
    }

    void linkIsPressedByAssistivePrograms() {
        ui::LinkLabel link("Apri");
        link.show();
        link.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&link));
        link.clearFocus();
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&link);
        QVERIFY(face->state().linked);
        QAccessibleActionInterface* actions = face->actionInterface();
        QCOMPARE(actions->actionNames().constFirst(), QAccessibleActionInterface::pressAction());
        const QSignalSpy activated(&link, &ui::LinkLabel::activated);
        actions->doAction(QAccessibleActionInterface::setFocusAction());
        QVERIFY(link.hasFocus());
        QCOMPARE(activated.size(), 0);
        actions->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(activated.size(), 1);
    }

    void everyIconIsCompiledInAndDraws() {
        for (const char* name : {"application-exit", "document-send", "media-playback-stop"}) {
            const QIcon icon = QIcon::fromTheme(name);
            for (const int size : {16, 22}) {
                const QImage picture =
                    icon.pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
                bool drawn = false;
                for (int y = 0; y < picture.height(); ++y)
                    for (int x = 0; x < picture.width(); ++x)
                        drawn |= qAlpha(picture.pixel(x, y)) > 0;
                QVERIFY2(drawn, name);
            }
        }
        QVERIFY(QFile::exists(":/icons/vestrola/COPYING"));
    }
};

TEST_CLASS_WITH(TestUi, ui::setUpDesktop);

}  // namespace desktop_test

#include "desktop_test.moc"
