// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/store/griglia_stage.h"

#include <QApplication>
#include <QTimer>

#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "platform/ado/Recordset.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Unattended.h"
#include "windows/core/Evento.h"
#include "windows/entry/Finestre.h"

namespace testing_support {

namespace {

ado::Recordset opened(const QString& statement) {
    ado::Recordset rows;
    esigi(rows.setActiveConnection(connDB));
    rows.setCursorType(ado::CursorType::Static);
    rows.setLockType(ado::LockType::Optimistic);
    rows.setSource(statement);
    esigi(rows.open());
    return rows;
}

void setLanguageTexts() {
    bVAR::MailingOpen = "Apri Mailing List";
    bVAR::varAddDestinatario = "Aggiungi destinatario";
    bVAR::varModDestinatario = "Modifica destinatario";
    bVAR::xxxRagioneSociale = "Ragione Sociale";
    bVAR::xxxNome = "Nome";
    bVAR::xxxPIva = "P.Iva o Cod.Fis.";
    bVAR::xxxIndirizzo = "Indirizzo";
    bVAR::xxxCAP = "CAP";
    bVAR::xxxLocalita = "Località";
    bVAR::xxxProvincia = "Prov.";
    bVAR::xxxTelefono = "Telefono";
    bVAR::xxxFax = "Fax";
    int number = 0;
    for (QString* text :
         {&bVAR::xxxCampo1, &bVAR::xxxCampo2, &bVAR::xxxCampo3, &bVAR::xxxCampo4, &bVAR::xxxCampo5,
          &bVAR::xxxCampo6, &bVAR::xxxCampo7, &bVAR::xxxCampo8, &bVAR::xxxCampo9})
        *text = QString("Campo %1").arg(++number);
}

}  // namespace

StoreStage::StoreStage() {
    static const bool dressed = [] {
        ui::setUpDesktop(*static_cast<QApplication*>(QCoreApplication::instance()));
        return true;
    }();
    Q_UNUSED(dressed);
    QLocale::setDefault(QLocale("it_IT"));
    ui::setUnattended(true);
    ui::MessageDialog::reset();
    ui::FileDialog::reset();
    sostituisciTermine([this](int status) { ends.append(status); });
    nodoCorrente.reset();
    setLanguageTexts();
    finestre::dimentica();
}

StoreStage::~StoreStage() {
    finestre::dimentica();
    sostituisciTermine({});
}

frmMain& StoreStage::window() {
    frmMain& main = finestre::Main();
    if (!std::exchange(m_shown, true)) {
        main.show();
        main.activateWindow();
        if (!QTest::qWaitForWindowActive(&main)) qFatal("the main window does not show");
    }
    return main;
}

frmDestinatario& StoreStage::form() {
    window();
    return finestre::Destinatario();
}

int StoreStage::addGroup(int parent, const QString& name) {
    ado::Recordset rows = opened("SELECT * FROM [tb_gruppi];");
    esigi(rows.addNew());
    esigi(rows.setValue(u"id_up", parent));
    esigi(rows.setValue(u"nome", name));
    const int id = static_cast<int>(esigi(esigi(rows.value(u"id")).toInteger()));
    esigi(rows.update());
    return id;
}

int StoreStage::addRecipient(int group, const QString& rgs, const QString& email, bool sel) {
    const int id = folder.addRecipient({{"rgs", rgs}, {"email", email}, {"sel", sel ? "1" : "0"}});
    SampleFolder::run(QString("UPDATE [tb_destinatari] SET id_grp = %1 WHERE id = %2 ;").arg(group).arg(id));
    return id;
}

QString StoreStage::look(const QString& statement) {
    ado::Recordset rows = opened(statement);
    return rows.isEof() ? QString() : esigi(rows.value(0)).toTextOrEmpty();
}

QStringList StoreStage::column(const QString& statement, const QString& name) {
    QStringList values;
    ado::Recordset rows = opened(statement);
    for (; !rows.isEof(); esigi(rows.moveNext()))
        values << esigi(rows.value(name)).toTextOrEmpty();
    return values;
}

int StoreStage::count(const QString& table, const QString& where) {
    return static_cast<int>(opened("SELECT * FROM [" + table + "] WHERE " + where + " ;").recordCount());
}

QPoint StoreStage::at(const QString& key) {
    const ui::GroupNodeRef node = tree().Node(key);
    if (!node) qFatal("no node %s", qUtf8Printable(key));
    QStringList above;
    for (ui::GroupNodeRef parent = node->Parent(); parent; parent = parent->Parent())
        esigi(tree().Expand(parent->Key()));
    QTest::qWait(0);
    for (QTreeWidgetItemIterator item(&tree()); *item; ++item) {
        const QRect place = tree().visualItemRect(*item);
        if (tree().HitTest(place.center()) == node) return place.center();
    }
    qFatal("the node %s is not in sight", qUtf8Printable(key));
}

QPoint StoreStage::emptySpace() {
    const QPoint place = tree().viewport()->rect().bottomLeft() + QPoint(40, -10);
    if (tree().HitTest(place)) qFatal("the tree has no empty space");
    return place;
}

void StoreStage::clickNode(const QString& key, Qt::MouseButton button) {
    mouse::click(&tree(), at(key), button);
}

QString StoreStage::shape(const QString& key) {
    for (QTreeWidgetItemIterator item(&tree()); *item; ++item) {
        const QString text = (*item)->text(0);
        if (tree().Node(key)->Text() != text) continue;
        std::function<QString(QTreeWidgetItem*)> tell = [&tell](QTreeWidgetItem* node) {
            QStringList below;
            for (int i = 0; i < node->childCount(); ++i)
                below << tell(node->child(i));
            return below.isEmpty() ? node->text(0) : node->text(0) + '(' + below.join(", ") + ')';
        };
        return tell(*item);
    }
    return {};
}

void StoreStage::dropRow(const QPoint& position) {
    mouse::drop(&tree(), position, ui::dragContent(ui::Dragged::Row));
}

void StoreStage::dropNode(const QPoint& position) {
    mouse::drop(&tree(), position, ui::dragContent(ui::Dragged::Node));
}

void StoreStage::command(const QString& name) {
    evento([&] { window().ComandoPremuto(name); });
}

QPoint StoreStage::cell(int row, int column) {
    return grd().visualRect(grd().model()->index(row - 1, column)).center();
}

void StoreStage::clickCell(int row, int column, Qt::MouseButton button) {
    mouse::click(&grd(), cell(row, column), button);
}

QStringList StoreStage::columnOfGrid(int column) {
    QStringList texts;
    for (int row = 1; row < grd().Rows(); ++row)
        texts << grd().TextMatrix(row, column);
    return texts;
}

QString StoreStage::takePopup() {
    QWidget* menu = QApplication::activePopupWidget();
    if (!menu) return {};
    QString name = menu->objectName();
    menu->close();
    return name;
}

void StoreStage::whenFormOpens(std::function<void(frmDestinatario&)> act) {
    QTimer::singleShot(0, &window(), [this, act = std::move(act)] {
        frmDestinatario& open = form();
        if (!QTest::qWaitForWindowExposed(&open)) qFatal("the recipient form does not open");
        QApplication::setActiveWindow(&open);
        act(open);
        if (open.isVisible()) open.hide();
    });
}

bool StoreStage::oneBox(const QString& text, int style) {
    const auto& shown = ui::MessageDialog::shown();
    return shown.size() == 1 && shown[0].text == text && shown[0].style == style &&
           shown[0].title == "Attenzione";
}

QString StoreStage::failure() {
    if (ends.isEmpty() || ui::MessageDialog::shown().isEmpty()) return {};
    const auto& box = ui::MessageDialog::shown().constLast();
    return box.text.startsWith("Errore ") ? box.text : QString();
}

}  // namespace testing_support
