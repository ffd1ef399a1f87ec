// SPDX-License-Identifier: GPL-3.0-or-later
// The recipient form: its items, checks, statements and what it does to the grid. Above 500 lines: all of it
// tests one form over one stage, and is best read together.
#include <sys/resource.h>
#include <csignal>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "modules/lang/bVAR.h"
#include "modules/send/Accettati.h"
#include "platform/ui/PropertyList.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/store/griglia_stage.h"

namespace destinatario_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

struct Item {
    const char* key;
    QString caption;
    int limit;
    const char* column;
    int gridColumn;
};

QList<Item> items() {
    QList<Item> all{{"Email", "Email", 255, "email", 3},
                    {"RagioneSociale", bVAR::xxxRagioneSociale, 70, "rgs", 5},
                    {"Nome", bVAR::xxxNome, 70, "nom", 6},
                    {"PIvaoCodFisc", bVAR::xxxPIva, 15, "piva", 7},
                    {"Indirizzo", bVAR::xxxIndirizzo, 255, "ind", 8},
                    {"CAP", bVAR::xxxCAP, 10, "cap", 9},
                    {"Localit", bVAR::xxxLocalita, 70, "loc", 10},
                    {"Provincia", bVAR::xxxProvincia, 2, "prov", 11},
                    {"Telefono", bVAR::xxxTelefono, 15, "tel", 12},
                    {"Fax", bVAR::xxxFax, 15, "fax", 13}};
    static const char* const fields[] = {"Campo1", "Campo2", "Campo3", "Campo4", "Campo5",
                                         "Campo6", "Campo7", "Campo8", "Campo9"};
    static const char* const columns[] = {"campo1", "campo2", "campo3", "campo4", "campo5",
                                          "campo6", "campo7", "campo8", "campo9"};
    for (int i = 0; i < 9; ++i)
        all.append({fields[i], QString("Campo %1").arg(i + 1), 255, columns[i], 14 + i});
    return all;
}

QString value(frmDestinatario& form, const char* key) {
    return form.prp->Item(key)->Value().toString();
}

void set(frmDestinatario& form, const char* key, const QVariant& text) {
    form.prp->Item(key)->setValue(text);
}

void save(frmDestinatario& form) {
    QTest::mouseClick(form.cdmSalva, Qt::LeftButton);
}

}  // namespace

class TestDestinatario : public QObject {
    Q_OBJECT

    static QTreeWidget& lines(frmDestinatario& form) { return *form.prp->findChild<QTreeWidget*>(); }
    /// No file can grow, so that a statement that writes fails and one that reads does not.
    static void setRoomOnDisk(bool room) {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        if (getrlimit(RLIMIT_FSIZE, &limit) != 0) qFatal("the limit of files cannot be read");
        limit.rlim_cur = room ? limit.rlim_max : 0;
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0) qFatal("the limit of files cannot be set");
    }
    /// Opens the form on a new recipient of "Clienti", fills two items and saves.
    static void saveNew(StoreStage& stage, const QString& rgs, const QString& email = "a@x.it") {
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "RagioneSociale", rgs);
            set(form, "Email", email);
            save(form);
        });
        stage.command("cmdPopMailingUserNew");
    }

  private Q_SLOTS:
    void textsOfAFreshForm() {
        StoreStage stage;
        frmDestinatario& form = stage.form();
        QCOMPARE(form.cdmSalva->text(), "&Salva");
        QCOMPARE(form.cmdAnnulla->text(), "&Annulla");
        QVERIFY(form.cdmSalva->isDefault());
        QVERIFY(form.txtIDuser->isHidden() && form.txtIDgroup->isHidden());
        for (const char* name :
             {"prp", "txtIDuser", "txtIDgroup", "lbl", "img", "pic", "cdmSalva", "cmdAnnulla"})
            QVERIFY2(form.findChild<QWidget*>(name), name);
    }

    void itemsAreInOrderWithTheirCaptionsAndGroups() {
        StoreStage stage;
        QTreeWidget& list = lines(stage.form());
        QStringList wanted{"Dati destinatario", "Send"};
        for (const Item& item : items()) {
            if (qstrcmp(item.key, "Campo1") == 0) wanted << "Altro";
            wanted << item.caption;
        }
        QStringList captions;
        for (int i = 0; i < list.topLevelItemCount(); ++i)
            captions << list.topLevelItem(i)->text(0);
        QCOMPARE(captions, wanted);
        for (const Item& item : items()) {
            QVERIFY2(stage.form().prp->Item(item.key), item.key);
            QCOMPARE(stage.form().prp->Item(item.key)->Caption(), item.caption);
        }
        QCOMPARE(stage.form().prp->Item("Datidestinatario")->Caption(), "Dati destinatario");
        QCOMPARE(stage.form().prp->Item("altro")->Caption(), "Altro");
    }

    void captionsAreEmptyWithoutALanguage() {
        StoreStage stage;
        bVAR::xxxNome.clear();
        QCOMPARE(stage.form().prp->Item("Nome")->Caption(), "");
        QCOMPARE(stage.form().prp->Item("Email")->Caption(), "Email");
        QCOMPARE(stage.form().prp->Item("Spedire")->Caption(), "Send");
    }

    void descriptionOfTheCurrentItemStatesTheLimit() {
        StoreStage stage;
        frmDestinatario& form = stage.form();
        for (const Item& item : items()) {
            form.prp->setCurrentItem(item.key);
            const auto shown = form.prp->findChildren<QLabel*>();
            QCOMPARE(shown.size(), 1);
            QVERIFY2(shown[0]->text().endsWith(QString("(max %1 caratteri)").arg(item.limit)), item.key);
        }
        form.prp->setCurrentItem("Email");
        QCOMPARE(form.prp->findChild<QLabel*>()->text(),
                 "Specifica l'Email del destinatario (max 255 caratteri)");
        form.prp->setCurrentItem("Provincia");
        QCOMPARE(form.prp->findChild<QLabel*>()->text(), "Sigla della provincia (max 2 caratteri)");
        form.prp->setCurrentItem("Campo1");
        QCOMPARE(form.prp->findChild<QLabel*>()->text(), "Campo libero 1 (max 255 caratteri)");
    }

    void clearedFormIsEmptyAndTicked() {
        StoreStage stage;
        frmDestinatario& form = stage.form();
        set(form, "Spedire", false);
        for (const Item& item : items())
            set(form, item.key, "x");
        form.PulisciCampi();
        QCOMPARE(form.prp->Item("Spedire")->Value(), QVariant(true));
        for (const Item& item : items())
            QCOMPARE(value(form, item.key), QString());
    }

    void everyColumnIsLoadedAndSavedAndShownInItsPlace() {
        StoreStage stage;
        SampleFolder::Columns columns{{"sel", "0"}};
        for (const Item& item : items())
            columns.insert(item.column, QString("<%1>").arg(item.column).left(item.limit));
        columns.insert("email", "vecchia@x.it");
        const int id = stage.folder.addRecipient(columns);
        stage.clickNode("K1");
        stage.whenFormOpens([&](frmDestinatario& form) {
            QCOMPARE(form.prp->Item("Spedire")->Value(), QVariant(false));
            for (const Item& item : items())
                QCOMPARE(value(form, item.key), columns[item.column]);
            set(form, "Spedire", true);
            for (const Item& item : items())
                set(form, item.key, QString("%1.nuovo").arg(item.column).left(item.limit));
            set(form, "Email", "nuova@x.it");
            save(form);
            QVERIFY(!form.isVisible());
        });
        stage.command("cmdPopMailingUserMod");
        QCOMPARE(
            StoreStage::count("tb_destinatari", QString("sel = True AND id_grp = 1 AND id = %1").arg(id)), 1);
        QCOMPARE(stage.grd().TextMatrix(1, 2), "True");
        for (const Item& item : items()) {
            const QString wanted = qstrcmp(item.key, "Email") == 0
                                       ? QString("nuova@x.it")
                                       : QString("%1.nuovo").arg(item.column).left(item.limit);
            QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari];", item.column), QStringList(wanted));
            QCOMPARE(stage.grd().TextMatrix(1, item.gridColumn), wanted);
        }
        QCOMPARE(stage.grd().TextMatrix(1, 4), "1");
    }

    void savedFlagShowsAsACheckedBox() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa", "a@x.it", false);
        stage.clickNode("K1");
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "Spedire", true);
            save(form);
        });
        stage.command("cmdPopMailingUserMod");
        stage.grd().setCurrentIndex(stage.grd().model()->index(0, 2));
        QCOMPARE(stage.grd().CellChecked(), 1);
    }

    void columnWithoutAValueLoadsAsAnEmptyText() {
        StoreStage stage;
        const int id =
            stage.folder.addRecipient({{"rgs", "Alfa"}, {"nom", QString()}, {"campo9", QString()}});
        frmDestinatario& form = stage.form();
        form.CaricaUser(id);
        QCOMPARE(value(form, "Nome"), "");
        QCOMPARE(value(form, "Campo9"), "");
    }

    void newRecipientIsInsertedAndTheGroupReloaded() {
        StoreStage stage;
        stage.addRecipient(1, "Beta");
        stage.addRecipient(1, "Gamma");
        stage.clickNode("K1");
        stage.clickCell(2, 5);
        saveNew(stage, "Alfa", "alfa@x.it");
        QCOMPARE(stage.columnOfGrid(5), QStringList({"Alfa", "Beta", "Gamma"}));
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1 AND sel = True AND email = 'alfa@x.it'"), 1);
        QCOMPARE(stage.grd().Row(), 1);
    }

    void untickedRecipientIsStoredAsNotSelected() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "Email", "a@x.it");
            set(form, "Spedire", false);
            save(form);
        });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(StoreStage::count("tb_destinatari", "sel = False"), 1);
    }

    void flagDoesNotDependOnTheLanguageOfTheSystem() {
        StoreStage stage;
        stage.clickNode("K1");
        for (const char* language : {"it_IT", "en_US", "es_ES", "de_DE"}) {
            QLocale::setDefault(QLocale(language));
            saveNew(stage, language);
        }
        QCOMPARE(StoreStage::count("tb_destinatari", "sel = True"), 4);
    }

    void editedRecipientKeepsItsRowUntilTheNextFill() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.addRecipient(1, "Beta");
        stage.clickNode("K1");
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "RagioneSociale", "Zeta");
            save(form);
        });
        stage.command("cmdPopMailingUserMod");
        QCOMPARE(stage.columnOfGrid(5), QStringList({"Zeta", "Beta"}));
        stage.clickNode("K1");
        QCOMPARE(stage.columnOfGrid(5), QStringList({"Beta", "Zeta"}));
    }

    void savedFormIsNewerThanWhatIsRememberedOfARun() {
        StoreStage stage;
        const int id = stage.addRecipient(1, "Alfa");
        const auto database = mail::DatabaseFile::at(percorsoDB);
        QVERIFY(accettati().reserve(database, 1).ok());
        accettati().add(database, id, "a@x.it");
        stage.clickNode("K1");
        stage.clickCell(1, 5);
        stage.whenFormOpens([](frmDestinatario& form) { save(form); });
        stage.command("cmdPopMailingUserMod");
        ApplicaAccettati();
        QCOMPARE(SampleFolder::selected(), QStringList("a@x.it"));
    }

    void apostropheIsDroppedWithoutAWarning() {
        StoreStage stage;
        stage.clickNode("K1");
        saveNew(stage, "L'Arte d'Este", "o'hara@x.it");
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari];", "rgs"), QStringList("LArte dEste"));
        QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari];", "email"), QStringList("ohara@x.it"));
    }

    void textsAreCutToTheLimitBeforeApostrophesGo() {
        StoreStage stage;
        frmDestinatario& form = stage.form();
        form.PulisciCampi();
        for (const Item& item : items())
            set(form, item.key, QString(item.limit - 1, 'x') + "'yyy");
        form.show();
        MessageDialog::queue(MessageDialog::Ok);
        save(form);
        for (const Item& item : items())
            QCOMPARE(value(form, item.key), QString(item.limit - 1, 'x'));
    }

    void provinceOfThreeLettersIsCutToTwo() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "Provincia", "ROM");
            set(form, "Email", "a@x.it");
            save(form);
        });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari];", "prov"), QStringList("RO"));
    }

    void addressIsChecked_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("taken");
        QTest::newRow("plain") << "a@x.it" << true;
        QTest::newRow("equal sign") << "a=b@x.it" << true;
        QTest::newRow("last part of four") << "a@x.info" << true;
        QTest::newRow("last part of six") << "a@x.museum" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("no at sign") << "a.x.it" << false;
        QTest::newRow("blank behind") << "a@x.it " << false;
    }
    void addressIsChecked() {
        QFETCH(QString, address);
        QFETCH(bool, taken);
        StoreStage stage;
        stage.clickNode("K1");
        if (!taken) MessageDialog::queue(MessageDialog::Ok);
        bool open = false;
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "Email", address);
            save(form);
            open = form.isVisible();
        });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), taken ? 1 : 0);
        QCOMPARE(open, !taken);
        if (!taken) QVERIFY(stage.oneBox("Impossibile continuare.\r\nL'email inserita non è corretta.", 64));
    }

    void wrongAddressLeavesTheOtherFieldsCleanedAndTheFormOpen() {
        StoreStage stage;
        frmDestinatario& form = stage.form();
        form.PulisciCampi();
        set(form, "Email", "sbagliata");
        set(form, "Nome", "D'Anna");
        set(form, "Campo9", "l'ultimo");
        form.show();
        MessageDialog::queue(MessageDialog::Ok);
        save(form);
        QVERIFY(form.isVisible());
        QCOMPARE(value(form, "Nome"), "DAnna");
        QCOMPARE(value(form, "Campo9"), "lultimo");
    }

    void cancelHidesTheFormWithNoOtherEffect() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "RagioneSociale", "Altro");
            QTest::mouseClick(form.cmdAnnulla, Qt::LeftButton);
            QVERIFY(!form.isVisible());
        });
        stage.command("cmdPopMailingUserMod");
        QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari];", "rgs"), QStringList("Alfa"));
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
    }

    void titleBarAndEscDoNotCloseTheForm() {
        StoreStage stage;
        frmDestinatario& form = stage.form();
        set(form, "Nome", "Anna");
        form.show();
        QVERIFY(!form.close());
        QTest::keyClick(&form, Qt::Key_Escape);
        QVERIFY(form.isVisible());
        QCOMPARE(value(form, "Nome"), "Anna");
    }

    void formIsOneAndKeepsItsItems() {
        StoreStage stage;
        set(stage.form(), "Nome", "Anna");
        QCOMPARE(&stage.form(), &finestre::Destinatario());
        QCOMPARE(value(stage.form(), "Nome"), "Anna");
    }

    void failedEditIsReportedAndTheFormComesBackAsItWas() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        const int beta = stage.addRecipient(1, "Beta", "b@x.it");
        stage.clickNode("K1");
        stage.clickCell(2, 5);
        MessageDialog::queue(MessageDialog::Ok);
        QStringList rows;
        QStringList again;
        QString box;
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "RagioneSociale", "Zeta");
            set(form, "Spedire", false);
            setRoomOnDisk(false);
            save(form);
            setRoomOnDisk(true);
            QVERIFY(!form.isVisible());
            stage.whenFormOpens([&](frmDestinatario& back) {
                rows = stage.columnOfGrid(5);
                again = {value(back, "RagioneSociale"),     value(back, "Email"),   value(back, "Spedire"),
                         QString::number(back.modo),        back.txtIDuser->text(), back.txtIDgroup->text(),
                         QString::number(stage.grd().Row())};
                save(back);
            });
        });
        stage.command("cmdPopMailingUserMod");
        QCOMPARE(MessageDialog::shown().size(), 1);
        QVERIFY(!MessageDialog::shown()[0].text.isEmpty());
        QVERIFY(stage.oneBox(MessageDialog::shown()[0].text, 64));
        QCOMPARE(rows, QStringList({"Alfa", "Beta"}));
        QCOMPARE(again, QStringList({"Zeta", "b@x.it", "false", "1", QString::number(beta), "1", "2"}));
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(StoreStage::count("tb_destinatari", QString("rgs = 'Zeta' AND id = %1").arg(beta)), 1);
        QCOMPARE(stage.columnOfGrid(5), QStringList({"Alfa", "Zeta"}));
    }

    void failedSaveOfANewRecipientKeepsWhatWasTyped() {
        StoreStage stage;
        stage.addRecipient(1, "Beta");
        stage.clickNode("K1");
        for (int i = 0; i < 2; ++i)
            MessageDialog::queue(MessageDialog::Ok);
        QStringList typed;
        QStringList again;
        stage.whenFormOpens([&](frmDestinatario& form) {
            for (const Item& item : items()) {
                set(form, item.key, QString("%1@x.it").arg(item.column).left(item.limit));
                typed << value(form, item.key);
            }
            setRoomOnDisk(false);
            save(form);
            stage.whenFormOpens([&](frmDestinatario& back) {
                save(back);
                setRoomOnDisk(true);
                stage.whenFormOpens([&](frmDestinatario& last) {
                    for (const Item& item : items())
                        again << value(last, item.key);
                    QCOMPARE(last.modo, 0);
                    QCOMPARE(last.windowTitle(), "Aggiungi destinatario ");
                    save(last);
                });
            });
        });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(MessageDialog::shown().size(), 2);
        QCOMPARE(again, typed);
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 2);
        QCOMPARE(stage.grd().Rows(), 3);
        QVERIFY(stage.ends.isEmpty());
    }

    void cancelAfterAFailedSaveLeavesTheGridAsTheTableIs() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Ok);
        QString sentence;
        stage.whenFormOpens([&](frmDestinatario& form) {
            set(form, "RagioneSociale", "Zeta");
            stage.folder.hideDatabase();
            save(form);
            stage.whenFormOpens([&](frmDestinatario& back) {
                sentence = stage.grd().Notice();
                stage.folder.showDatabase();
                QTest::mouseClick(back.cmdAnnulla, Qt::LeftButton);
            });
        });
        stage.command("cmdPopMailingUserMod");
        QCOMPARE(sentence, "Impossibile leggere i destinatari di questa cartella");
        QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari];", "rgs"), QStringList("Alfa"));
        QVERIFY(!stage.columnOfGrid(5).contains("Zeta"));
        stage.clickNode("K1");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
        QCOMPARE(stage.grd().Notice(), QString());
    }

    void focusOpensOnTheAddressOrTheFirstItem() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        const auto current = [](frmDestinatario& form) {
            return lines(form).hasFocus() ? lines(form).currentItem()->text(0) : QString();
        };
        QString first;
        stage.whenFormOpens([&](frmDestinatario& form) { first = current(form); });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(first, "Email");
        stage.whenFormOpens([&](frmDestinatario& form) { first = current(form); });
        stage.command("cmdPopMailingUserMod");
        QCOMPARE(first, "Send");
    }

    void keyboardAloneFillsAndSavesTheForm() {
        StoreStage stage;
        stage.clickNode("K1");
        const auto type = [](const QString& text, Qt::Key end) {
            for (const QChar letter : text)
                QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
            QTest::keyClick(QApplication::focusWidget(), end);
            QCoreApplication::processEvents();
        };
        stage.whenFormOpens([&](frmDestinatario& form) {
            type("a@x.it", Qt::Key_Return);
            type("Alfa", Qt::Key_Tab);
            type("Anna", Qt::Key_Return);
            QVERIFY(form.isVisible());
            type({}, Qt::Key_Return);
            QVERIFY(!form.isVisible());
        });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(stage.columnOfGrid(3), QStringList("a@x.it"));
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
        QCOMPARE(stage.columnOfGrid(6), QStringList("Anna"));
    }

    void openCellIsSavedAndClosedWithTheForm() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.whenFormOpens([&](frmDestinatario& form) {
            QTest::keyClicks(&lines(form), "b");
            QTest::keyClicks(QApplication::focusWidget(), "@x.it");
            save(form);
        });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(stage.columnOfGrid(3), QStringList("b@x.it"));
        bool cellOpen = true;
        stage.whenFormOpens([&](frmDestinatario& form) {
            cellOpen = lines(form).viewport()->findChild<QLineEdit*>();
            QCOMPARE(value(form, "Email"), "");
        });
        stage.command("cmdPopMailingUserNew");
        QVERIFY(!cellOpen);
    }
};

TEST_CLASS(TestDestinatario);

}  // namespace destinatario_test

#include "destinatario_test.moc"
