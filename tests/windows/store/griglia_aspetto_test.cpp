// SPDX-License-Identifier: GPL-3.0-or-later
// How tree, grid and recipient form look, also with texts a third longer; names and order for assistive
// programs and the keyboard. With VESTROLA_SHOTS set to a folder, pictures of the windows are left there.
#include <QAccessible>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QTreeWidget>

#include "modules/lang/bVAR.h"
#include "platform/ui/PropertyList.h"
#include "support/LookCheck.h"
#include "support/TestClass.h"
#include "windows/store/griglia_stage.h"

namespace griglia_aspetto_test {

using namespace testing_support;

namespace {

void makeLonger(QString& text) {
    text += QString(text.size() / 3 + 1, 'm');
}

void makeTextsLonger() {
    for (QString* text :
         {&bVAR::varAddDestinatario, &bVAR::varModDestinatario, &bVAR::xxxRagioneSociale, &bVAR::xxxNome,
          &bVAR::xxxPIva, &bVAR::xxxIndirizzo, &bVAR::xxxCAP, &bVAR::xxxLocalita, &bVAR::xxxProvincia,
          &bVAR::xxxTelefono, &bVAR::xxxFax, &bVAR::xxxCampo1, &bVAR::xxxCampo2})
        makeLonger(*text);
}

void fillWithGroupsAndRecipients(StoreStage& stage) {
    const int italy = stage.addGroup(0, "Clienti Italia");
    for (const char* name : {"Agenzie", "Fiera di primavera", "Fornitori", "Stampa locale"})
        stage.addGroup(0, name);
    stage.addGroup(italy, "Lombardia");
    stage.addGroup(italy, "Veneto");
    QList<SampleFolder::Columns> rows;
    const QStringList firms{"Adriatica Legnami S.r.l.", "Bottega dell'Olio", "Cartotecnica Brenta",
                            "Dolomiti Viaggi S.n.c.",   "Edil Piave S.p.A.", "Farmacia San Marco",
                            "Gioielleria Aurora",       "Hotel Belvedere"};
    for (int i = 0; i < 200; ++i)
        rows.append({{"rgs", firms[i % 8]},
                     {"nom", i % 2 ? "Luca Ferrari" : "Marta Bianchi"},
                     {"piva", QString::number(2345678900 + i)},
                     {"ind", QString("Via Roma, %1").arg(i)},
                     {"cap", "32100"},
                     {"loc", "Belluno"},
                     {"prov", "BL"},
                     {"email", QString("info%1@bianchi.example.it").arg(i)},
                     {"sel", i % 4 ? "1" : "0"}});
    stage.folder.addRecipients(rows);
    SampleFolder::run(QString("UPDATE [tb_destinatari] SET id_grp = %1;").arg(italy));
}

}  // namespace

class TestAspetto : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void picturesOfTheMainWindow() {
        StoreStage stage;
        stage.window();
        QCOMPARE(faultsOfLayout(stage.window()), QStringList());
        keepPicture(stage.window(), "main_inizio");
        stage.clickNode("K1");
        keepPicture(stage.window(), "main_cartella_vuota");
        fillWithGroupsAndRecipients(stage);
        stage.groups().CaricaGruppiINI();
        QCOMPARE(stage.tree().Count(), 7);
        const QString italy = StoreStage::look("SELECT id FROM [tb_gruppi] WHERE nome = 'Clienti Italia';");
        stage.clickNode('K' + italy);
        QVERIFY(stage.tree().Expand('K' + italy).ok());
        stage.clickCell(4, 5);
        stage.grd().setFocus();
        QCOMPARE(faultsOfLayout(stage.window()), QStringList());
        QCOMPARE(stage.grd().Rows(), 201);
        keepPicture(stage.window(), "main_cartella");
        stage.clickNode("K" + italy, Qt::RightButton);
        QWidget* menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        keepPicture(*menu, "main_menu_cartella");
        menu->close();
        stage.tree().setFocus();
        stage.command("cmdPopMailingRinomina");
        QVERIFY(stage.tree().findChild<QLineEdit*>());
        keepPicture(stage.window(), "main_rinomina");
    }

    void pictureOfTheMainWindowWithLongerTexts() {
        StoreStage stage;
        makeTextsLonger();
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        QCOMPARE(faultsOfLayout(stage.window()), QStringList());
        const QHeaderView* head = stage.grd().horizontalHeader();
        for (int section = 0; section < head->count(); ++section)
            if (!head->isSectionHidden(section)) QVERIFY(head->sectionSize(section) >= 40);
        keepPicture(stage.window(), "main_lunghi");
    }

    void pictureOfATreeWithoutGroups() {
        StoreStage stage;
        SampleFolder::run("DELETE FROM [tb_gruppi];");
        keepPicture(stage.window(), "main_senza_cartelle");
        QCOMPARE(stage.tree().Count(), 1);
    }

    void formOpensAtItsSizeWithNothingCut() {
        StoreStage stage;
        stage.addRecipient(1, "Dolomiti Viaggi S.n.c.", "info3@greco.example.it");
        stage.clickNode("K1");
        stage.whenFormOpens([](frmDestinatario& form) {
            QCOMPARE(form.size(), QSize(460, 640).expandedTo(form.sizeHint()));
            keepPicture(form, "destinatario_modifica");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
            keepPicture(form, "destinatario_cella");
        });
        stage.command("cmdPopMailingUserMod");
    }

    void formWithLongerTextsCutsNoHeadingAndNoButton() {
        StoreStage stage;
        makeTextsLonger();
        stage.form().cdmSalva->setText("&Salvammm e chiudi");
        stage.form().cmdAnnulla->setText("&Annullammm");
        stage.clickNode("K1");
        stage.whenFormOpens([](frmDestinatario& form) {
            for (const QWidget* widget :
                 {static_cast<QWidget*>(form.lbl), static_cast<QWidget*>(form.cdmSalva),
                  static_cast<QWidget*>(form.cmdAnnulla)})
                QVERIFY2(widget->width() >= widget->sizeHint().width(), qPrintable(widget->objectName()));
            const auto* list = form.prp->findChild<QTreeWidget*>();
            for (int i = 0; i < list->topLevelItemCount(); ++i)
                QVERIFY2(list->sizeHintForIndex(list->model()->index(i, 0)).width() <= list->columnWidth(0),
                         qPrintable(list->topLevelItem(i)->text(0)));
            keepPicture(form, "destinatario_lunghi");
        });
        stage.command("cmdPopMailingUserNew");
    }

    void aLargeFontWidensColumnsAndFormInItsProportion() {
        const QFont before = QApplication::font();
        const auto back = qScopeGuard([&before] { QApplication::setFont(before); });
        QFont large = before;
        large.setPointSizeF(14);
        QApplication::setFont(large);
        StoreStage stage;
        stage.clickNode("K1");
        // The toolkit may round the size of the font up.
        QVERIFY(stage.grd().columnWidth(2) >= 78);
        QVERIFY(stage.grd().columnWidth(3) >= 322);
        QVERIFY(stage.form().width() >= 644);
        QVERIFY(stage.form().height() <= stage.form().screen()->availableSize().height());
        keepPicture(stage.window(), "main_14pt");
        stage.form().show();
        keepPicture(stage.form(), "destinatario_14pt");
    }

    void buttonsAreAtTheBottomRight() {
        StoreStage stage;
        frmDestinatario& form = stage.form();
        form.show();
        QCOMPARE(form.cmdAnnulla->geometry().right(), form.width() - 13);
        QCOMPARE(form.cmdAnnulla->geometry().bottom(), form.height() - 13);
        QVERIFY(form.cdmSalva->geometry().right() < form.cmdAnnulla->x());
        for (const QPushButton* button : {form.cdmSalva, form.cmdAnnulla})
            QVERIFY(button->width() >= 100 && button->height() >= 28);
        QCOMPARE(form.findChild<QWidget*>("pic")->height(), 48);
    }

    void everyControlHasANameForAssistivePrograms() {
        StoreStage stage;
        frmDestinatario& form = stage.form();
        form.show();
        const QHash<QWidget*, QString> names{{form.cdmSalva, "Salva"},
                                             {form.cmdAnnulla, "Annulla"},
                                             {form.prp->focusProxy(), "Dati destinatario"},
                                             {&stage.tree(), "Gruppi mailing"},
                                             {&stage.grd(), "Mailing List"}};
        for (auto it = names.begin(); it != names.end(); ++it)
            QCOMPARE(QAccessible::queryAccessibleInterface(it.key())->text(QAccessible::Name), it.value());
    }

    void aRowOfTheGridIsNamedByItsAddress() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa", "alfa@x.it");
        stage.addRecipient(1, "Beta", "beta@x.it");
        stage.clickNode("K1");
        QAccessibleTableInterface* rows =
            QAccessible::queryAccessibleInterface(&stage.grd())->tableInterface();
        QCOMPARE(rows->rowDescription(0), "alfa@x.it");
        QCOMPARE(rows->cellAt(1, 2)->tableCellInterface()->rowHeaderCells()[0]->text(QAccessible::Name),
                 "beta@x.it");
    }

    void tabLeavesTheListForTheButtons() {
        StoreStage stage;
        stage.clickNode("K1");
        QStringList order;
        stage.whenFormOpens([&](frmDestinatario& form) {
            for (int i = 0; i < 3; ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                order << form.focusWidget()->objectName();
            }
        });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(order.mid(0, 2), QStringList({"cdmSalva", "cmdAnnulla"}));
    }
};

TEST_CLASS(TestAspetto);

}  // namespace griglia_aspetto_test

#include "griglia_aspetto_test.moc"
