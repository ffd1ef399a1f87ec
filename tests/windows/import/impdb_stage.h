// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "modules/store/NuovoDatabase.h"
#include "support/JetTables.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/import_stage.h"

namespace testing_support {

inline QDialog& accessImportWindow() {
    return finestre::ImpDB();
}

/// The Access import over the main window, with a source database that the test fills.
class DbStage : public ImportStage {
  public:
    explicit DbStage(QDialog& (*of)() = accessImportWindow) : ImportStage(of) {}

    using Columns = std::vector<jettables::Column>;
    using Row = std::vector<jet::Value>;

    QString source() const { return folder.path("sorgente.mdb"); }
    /// Adds a table to the source, which is made at its first mention, beside the two of a recipient
    /// database.
    void addTable(const std::string& name, const Columns& columns, const std::vector<Row>& rows) {
        if (!QFile::exists(source())) esigi(schema::CreaDatabase(source().toStdString()));
        jettables::addTable(source().toStdString(), name, columns, {});
        for (const Row& row : rows)
            jettables::addRow(source().toStdString(), name, row);
    }
    /// A table "Anagrafe" with the columns "mail" and "nome".
    void addPeople(const std::vector<Row>& rows) {
        addTable("Anagrafe", {{"mail", jet::Type::Text, 120}, {"nome", jet::Type::Text, 120}}, rows);
    }
    void open(const QString& path, const QString& password = {}) {
        type("txtDatabase", path);
        type("txtPassword", password);
        click("cmdApri");
    }
    void open() { open(source()); }
    /// Chooses a column of the source, by name, in a box.
    void feed(int index, const QString& column) {
        const int entry = box(index)->findText(column);
        if (entry < 0) qFatal("no column %s", qUtf8Printable(column));
        box(index)->setCurrentIndex(entry);
    }
    /// Chooses a table as the user does.
    void pick(const QString& table) {
        auto* tables = control<QComboBox>("cmbTab");
        tables->setCurrentText(table);
        Q_EMIT tables->activated(tables->currentIndex());
    }
    /// Imports from the table that is shown; a user can do so with the first one only.
    void importPicked() {
        control<QPushButton>("cmdImportaDB")->setEnabled(true);
        click("cmdImportaDB");
    }
    static QStringList entries(const QComboBox& of) {
        QStringList texts;
        for (int i = 0; i < of.count(); ++i)
            texts << of.itemText(i);
        return texts;
    }
    QStringList tables() { return entries(*control<QComboBox>("cmbTab")); }
    /// Makes the group the current node.
    void chooseNode(int group = 1) {
        window();
        clickNode(QString("K%1").arg(group));
    }
    void answerBox() { ui::MessageDialog::queue(ui::MessageDialog::Ok); }
};

}  // namespace testing_support
