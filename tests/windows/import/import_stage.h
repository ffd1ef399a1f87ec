// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QCryptographicHash>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "modules/core/Fallimento.h"
#include "modules/store/Destinatario.h"
#include "platform/ado/Connection.h"
#include "support/JetChecker.h"
#include "windows/entry/Finestre.h"
#include "windows/store/griglia_stage.h"

namespace testing_support {

/// Whether these are the first ones of "n1@x.it", "n2@x.it", …
inline bool isBeginningOfTheList(const QStringList& addresses) {
    for (int i = 0; i < addresses.size(); ++i)
        if (addresses[i] != QString("n%1@x.it").arg(i + 1)) return false;
    return true;
}

/// The main window with a database, and functions for one of the import windows, which is shown at its first
/// use though not modally.
class ImportStage : public StoreStage {
  public:
    explicit ImportStage(QDialog& (*of)()) : m_of(of) {}

    QDialog& dialog() {
        window();
        QDialog& found = m_of();
        if (!found.isVisible()) {
            found.show();
            if (!QTest::qWaitForWindowExposed(&found)) qFatal("the window does not show");
        }
        return found;
    }
    template <class Control>
    Control* control(const QString& name) {
        auto* found = dialog().findChild<Control*>(name);
        if (!found) qFatal("no control %s", qUtf8Printable(name));
        return found;
    }
    void click(const QString& name) { control<QAbstractButton>(name)->click(); }
    QComboBox* box(int index) { return control<QComboBox>(QString("cmbCmp(%1)").arg(index)); }
    /// The label right above a box.
    QLabel* labelAbove(int index) {
        const QPoint place = box(index)->mapTo(&dialog(), QPoint());
        for (auto* label : dialog().findChildren<QLabel*>()) {
            const QPoint corner = label->mapTo(&dialog(), QPoint());
            const int gap = place.y() - corner.y() - label->height();
            if (corner.x() == place.x() && gap >= 0 && gap < 8) return label;
        }
        return nullptr;
    }
    bool enabled(const QString& name) { return control<QWidget>(name)->isEnabled(); }
    void type(const QString& name, const QString& text) { control<QLineEdit>(name)->setText(text); }

    QString write(const QString& name, const QByteArray& content) const {
        QFile file(folder.path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qUtf8Printable(name));
        return file.fileName();
    }

    /// One column of the recipients in the order of their insertion.
    static QStringList inserted(const QString& column) {
        return StoreStage::column("SELECT * FROM [tb_destinatari] ORDER BY id ASC;", column);
    }
    static int recipients() { return count("tb_destinatari", "id > 0"); }
    static int groupsInTable() { return count("tb_gruppi", "id > 0"); }
    /// The statements that insert the table's rows, as one hash.
    static QByteArray statementsHash() {
        ado::Recordset rows;
        esigi(rows.setActiveConnection(connDB));
        rows.setSource("SELECT * FROM [tb_destinatari] ORDER BY id ASC;");
        esigi(rows.open());
        QCryptographicHash hash(QCryptographicHash::Sha256);
        for (; !rows.isEof(); esigi(rows.moveNext())) {
            destinatario::Valori values;
            for (const schema::Campo field : schema::ordineTabella)
                values[field] = esigi(esigi(rows.value(destinatario::NomeColonna(field))).toText());
            const QString group = esigi(rows.value(u"id_grp")).toTextOrEmpty();
            hash.addData(destinatario::IstruzioneNuovo(group, "True", values).toUtf8() + '\n');
        }
        return hash.result().toHex();
    }
    /// What is wrong with the database file; empty for nothing.
    QStringList faults() const {
        ado::closeAll();
        QStringList found;
        for (const auto& fault : checkJetFile(folder.database().toStdString()))
            found << QString::fromStdString(fault);
        return found;
    }

  private:
    QDialog& (*m_of)();
};

}  // namespace testing_support
