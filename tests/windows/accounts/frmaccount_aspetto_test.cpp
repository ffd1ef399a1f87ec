// SPDX-License-Identifier: GPL-3.0-or-later
// What the account window shows before any input: texts, limits, states, colours, order and space.
#include <QAccessible>

#include "modules/core/bGlobal.h"
#include "support/AsInTheProgram.h"
#include "support/LookCheck.h"
#include "support/TestClass.h"
#include "windows/accounts/frmaccount_stage.h"
#include "windows/core/bTheme.h"

namespace frmaccount_aspetto_test {

using namespace testing_support;

namespace {

const QStringList accounts{
    "0|Klukla|info@klukla.example.it|mail.klukla.example.it|25|1|klukla|segreto|EHLO|0|1",
    "1|Ufficio commerciale|commerciale@klukla.example.it||25|0|||HELO|2500|0",
    "2|Newsletter|news@klukla.example.it|smtp.klukla.example.it|587|1|news|parola|EHLO|0|1"};

}  // namespace

class TestFrmAccountAspetto : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void textsOfTheDesign() {
        const AccountStage stage;
        QCOMPARE(stage.window->windowTitle(), " Impostazioni Account");
        const char* const labels[] = {
            "Quando si invia un messaggio di posta elettronica, il nome del mittente viene visualizzato nel "
            "campo Da del messaggio in uscita. Digitare il nome come si desidera venga visualizzato in tale "
            "campo e l'email da utilizzare per spedire i messaggi",
            "Account presenti:",
            "Nome visualizzato:",
            "Ad esempio: Klukla",
            "Email:",
            "Ad esempio: nome@dominio.it",
            "Saluto:",
            "Server SMTP:",
            "Ad esempio: mail.serversmtp.com",
            "PORTA",
            "Username:",
            "Password:",
            "Porta di uscita:"};
        for (size_t i = 0; i < std::size(labels); ++i)
            QCOMPARE(stage.control<QLabel>(QString("lbl(%1)").arg(i))->text(), labels[i]);
        const auto text = [&](const char* name) { return stage.control<QAbstractButton>(name)->text(); };
        QCOMPARE(text("chkUsaSMTP"), "Utilizza un server SMTP per l'invio dei messaggi.");
        QCOMPARE(text("chkAutentick"), "Autenticazione del Server necessaria.");
        QCOMPARE(text("chkAvanzate"), "Avanzate");
        QCOMPARE(text("cmdNuovo"), "&Nuovo Account");
        QCOMPARE(text("cmdModifica"), "&Modifica Account");
        QCOMPARE(text("cmdChiudi"), "&Chiudi");
        QCOMPARE(stage.control<QMenu>("mnuElenco")->title(), "Elenco");
        QCOMPARE(stage.control<QAction>("mnuElimina")->text(), "&Elimina Account");
        QCOMPARE(stage.control<QMenu>("mnuElenco")->actions().size(), 1);
    }

    void valuesOfTheDesign() {
        const AccountStage stage;
        for (const char* name : {"txtNomeVisual", "txtEmail", "txtServerSMTP", "txtUsername", "txtPassword"})
            QCOMPARE(stage.text(name), "");
        QCOMPARE(stage.text("txtServerPORT"), "25");
        QCOMPARE(stage.text("txtOutPort"), "0");
        QVERIFY(stage.checked("chkUsaSMTP"));
        QVERIFY(!stage.checked("chkAutentick"));
        QVERIFY(!stage.checked("chkAvanzate"));
        const auto* greeting = stage.control<QComboBox>("cmbSaluto");
        QCOMPARE(greeting->count(), 2);
        QCOMPARE(greeting->itemText(0), "EHLO");
        QCOMPARE(greeting->itemText(1), "HELO");
        QCOMPARE(greeting->currentIndex(), 0);
        QVERIFY(!greeting->isEditable());
        QCOMPARE(stage.list().ListIndex(), -1);
    }

    void limitsOfTheBoxes() {
        const AccountStage stage;
        const QHash<const char*, int> limits{
            {"txtNomeVisual", 50}, {"txtEmail", 255},    {"txtServerSMTP", 255}, {"txtServerPORT", 5},
            {"txtUsername", 255},  {"txtPassword", 255}, {"txtOutPort", 5}};
        for (auto it = limits.begin(); it != limits.end(); ++it)
            QCOMPARE(stage.control<QLineEdit>(it.key())->maxLength(), it.value());
        for (const char* name : {"txtServerPORT", "txtOutPort"})
            QCOMPARE(stage.control<QLineEdit>(name)->alignment() & Qt::AlignHorizontal_Mask,
                     Qt::AlignHCenter);
    }

    void stateOfAFreshWindow() {
        const AccountStage stage(accounts);
        for (const char* name : {"cmdModifica", "cmbSaluto", "txtOutPort", "lbl(6)", "lbl(12)", "lbl(10)",
                                 "lbl(11)", "txtUsername", "txtPassword"})
            QVERIFY2(!stage.enabled(name), name);
        for (const char* name :
             {"lstAccount", "txtNomeVisual", "txtEmail", "chkUsaSMTP", "txtServerSMTP", "txtServerPORT",
              "lbl(7)", "chkAutentick", "chkAvanzate", "cmdNuovo", "cmdChiudi"})
            QVERIFY2(stage.enabled(name), name);
        QCOMPARE(stage.list().ListIndex(), -1);
    }

    void passwordIsShownAsStars() {
        AccountStage stage;
        stage.check("chkAutentick", true);
        auto* box = stage.control<QLineEdit>("txtPassword");
        box->setFocus();
        QTest::keyClicks(box, "segreto");
        QCOMPARE(box->text(), "segreto");
        QCOMPARE(box->displayText(), "*******");
    }

    void coloursComeFromThePalette() {
        const AccountStage stage;
        const auto back = [](const QWidget* widget) { return widget->palette().color(QPalette::Window); };
        QCOMPARE(back(stage.window.get()), coloreTema(0));
        for (const char* name : {"chkUsaSMTP", "chkAutentick"})
            QCOMPARE(back(stage.control<QWidget>(name)), coloreTema(0));
        for (const char* name : {"chkAvanzate", "pic"}) {
            QCOMPARE(back(stage.control<QWidget>(name)), coloreTema(24));
            QVERIFY(stage.control<QWidget>(name)->autoFillBackground());
        }
    }

    void loadComputesThePaletteAgain() {
        coloriTema.fill(0x123456);
        const AccountStage stage;
        QVERIFY(coloriTema[0] != 0x123456);
    }

    void emptyListSaysWhatToDo() {
        AccountStage stage;
        const QImage empty = stage.list().grab().toImage();
        stage.fillSmall("a");
        stage.click("cmdNuovo");
        stage.list().setListIndex(-1);
        stage.list().item(0)->setText(QString());
        QVERIFY(stage.list().grab().toImage() != empty);
    }

    void listWithTheKeyboardShowsItBeforeAnyChoice() {
        AccountStage stage(accounts);
        stage.list().setFocus();
        const QImage withKeyboard = stage.list().viewport()->grab().toImage();
        stage.control<QWidget>("txtNomeVisual")->setFocus();
        QVERIFY(stage.list().viewport()->grab().toImage() != withKeyboard);
    }

    void opensAtItsSizeWithNothingCut() {
        AccountStage stage(accounts);
        QCOMPARE(stage.window->size(), QSize(730, 475).expandedTo(stage.window->sizeHint()));
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        stage.press(0);
        keepPicture(*stage.window, "account");
        stage.press(1);
        stage.check("chkAvanzate", true);
        keepPicture(*stage.window, "account_avanzate");
    }

    void emptyWindowPicture() {
        AccountStage stage;
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        keepPicture(*stage.window, "account_vuoto");
    }

    void textsAThirdLongerCutNothing() {
        AccountStage stage(accounts);
        stage.window->hide();
        makeTextsLonger(*stage.window);
        stage.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(stage.window.get()));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        QVERIFY2(stage.window->width() <= 900, qPrintable(QString::number(stage.window->width())));
        keepPicture(*stage.window, "account_lunghi");
    }

    void largeFontCutsNothing() {
        const QFont before = QApplication::font();
        QFont large = before;
        large.setPointSizeF(14);
        QApplication::setFont(large);
        AccountStage stage(accounts);
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        keepPicture(*stage.window, "account_14pt");
        QApplication::setFont(before);
    }

    void fieldsAndButtonsHaveTheirSizes() {
        const AccountStage stage;
        for (const auto* box : stage.window->findChildren<QLineEdit*>())
            QVERIFY2(box->height() >= 26, qPrintable(box->objectName()));
        for (const auto* box : stage.window->findChildren<QCheckBox*>())
            QVERIFY2(box->height() >= 24, qPrintable(box->objectName()));
        for (const auto* button : stage.window->findChildren<QPushButton*>()) {
            QVERIFY2(button->width() >= 100 && button->height() >= 28, qPrintable(button->objectName()));
            QVERIFY2(!button->autoDefault(), qPrintable(button->objectName()));
        }
        const QRect close = stage.control<QWidget>("cmdChiudi")->geometry();
        QCOMPARE(close.right(), stage.window->width() - 13);
        QCOMPARE(close.bottom(), stage.window->height() - 13);
    }

    void everyControlHasANameForAssistivePrograms() {
        const AccountStage stage;
        const QHash<QString, QString> names{
            {"lstAccount", "Account presenti"},
            {"txtNomeVisual", "Nome visualizzato"},
            {"txtEmail", "Email"},
            {"chkUsaSMTP", "Utilizza un server SMTP per l'invio dei messaggi."},
            {"txtServerSMTP", "Server SMTP"},
            {"txtServerPORT", "PORTA"},
            {"chkAutentick", "Autenticazione del Server necessaria."},
            {"txtUsername", "Username"},
            {"txtPassword", "Password"},
            {"chkAvanzate", "Avanzate"},
            {"cmbSaluto", "Saluto"},
            {"txtOutPort", "Porta di uscita"},
            {"cmdNuovo", "Nuovo Account"},
            {"cmdModifica", "Modifica Account"},
            {"cmdChiudi", "Chiudi"}};
        QCOMPARE(otherNames(*stage.window, names), QStringList());
        QCOMPARE(stage.control<QWidget>("txtEmail")->accessibleDescription(), "Ad esempio: nome@dominio.it");
        for (int index : {1, 2, 4, 6, 7, 9, 10, 11, 12})
            QVERIFY(stage.control<QLabel>(QString("lbl(%1)").arg(index))->buddy());
    }

    void assistiveProgramsChooseAnEntryAndAskForItsMenu() {
        AccountStage stage(accounts);
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&stage.list());
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->childCount(), stage.list().count());
        QAccessibleInterface* entry = list->child(1);
        QCOMPARE(entry->role(), QAccessible::ListItem);
        QCOMPARE(entry->text(QAccessible::Name), stage.entries()[1]);
        QCOMPARE(list->indexOfChild(entry), 1);
        using Actions = QAccessibleActionInterface;
        QCOMPARE(entry->actionInterface()->actionNames(),
                 QStringList({Actions::pressAction(), Actions::showMenuAction()}));
        entry->actionInterface()->doAction(Actions::pressAction());
        QTRY_COMPARE(stage.list().ListIndex(), 1);
        QVERIFY(stage.enabled("cmdModifica"));
        auto* menu = stage.control<QMenu>("mnuElenco");
        list->child(0)->actionInterface()->doAction(Actions::showMenuAction());
        QTRY_VERIFY(menu->isVisible());
        menu->hide();
        QCOMPARE(stage.list().ListIndex(), 0);
    }

    void namesFollowChangedCaptions() {
        AccountStage stage;
        stage.click("cmdChiudi");
        stage.control<QLabel>("lbl(2)")->setText("Display name:");
        stage.window->show();
        QCOMPARE(stage.control<QWidget>("txtNomeVisual")->accessibleName(), "Display name");
    }

    void tabGoesDownTheFormAndThenToTheButtons() {
        AccountStage stage(accounts);
        stage.press(0);
        stage.check("chkAvanzate", true);
        stage.list().setFocus();
        QStringList order;
        for (int i = 0; i < 15; ++i) {
            order << stage.window->focusWidget()->objectName();
            QTest::keyClick(stage.window->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
                 (QStringList{"lstAccount", "txtNomeVisual", "txtEmail", "chkUsaSMTP", "txtServerSMTP",
                              "txtServerPORT", "chkAutentick", "txtUsername", "txtPassword", "chkAvanzate",
                              "cmbSaluto", "txtOutPort", "cmdNuovo", "cmdModifica", "cmdChiudi"}));
        QCOMPARE(stage.window->focusWidget()->objectName(), "lstAccount");
    }

    void focusStartsInTheListIfItHasEntriesElseInTheName() {
        QCOMPARE(AccountStage(accounts).window->focusWidget()->objectName(), "lstAccount");
        QCOMPARE(AccountStage().window->focusWidget()->objectName(), "txtNomeVisual");
    }

    void mnemonicsAreDistinct() {
        const AccountStage stage;
        QSet<QString> letters;
        for (const auto* button : stage.window->findChildren<QPushButton*>())
            letters << button->text().mid(button->text().indexOf('&') + 1, 1).toLower();
        QCOMPARE(letters, (QSet<QString>{"n", "m", "c"}));
    }
};

TEST_CLASS_WITH(TestFrmAccountAspetto, asInTheProgram);

}  // namespace frmaccount_aspetto_test

#include "frmaccount_aspetto_test.moc"
