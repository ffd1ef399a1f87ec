// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "modules/core/Prodotto.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/MessageDialog.h"
#include "support/SampleFolder.h"
#include "windows/accounts/frmAccount.h"
#include "windows/accounts/frmAccount_elenco.h"

namespace testing_support {

/// The account window over a program folder of its own, with functions that find its controls. Boxes answer
/// from their queue; the end of the program is only noted.
class AccountStage {
  public:
    /// Opens the window over a file with these records; each is text with "|" between its fields.
    explicit AccountStage(const QStringList& records = {});
    ~AccountStage();

    SampleFolder folder;
    std::unique_ptr<frmAccount> window;
    QList<int> ends;  ///< exit statuses of the ends of the program that were asked for

    /// Replaces the window by a new one, as the next start of the program would.
    void reopen();

    template <class Control>
    Control* control(const QString& name) const {
        auto* found = window->findChild<Control*>(name);
        if (!found) qFatal("no control %s", qPrintable(name));
        return found;
    }
    bool enabled(const QString& name) const { return control<QWidget>(name)->isEnabled(); }
    QString text(const QString& name) const { return control<QLineEdit>(name)->text(); }
    void type(const QString& name, const QString& text) { control<QLineEdit>(name)->setText(text); }
    bool checked(const QString& name) const { return control<QCheckBox>(name)->isChecked(); }
    void click(const QString& name);
    /// Clicks the check box unless it has that value already.
    void check(const QString& name, bool value);
    /// Fields 1 to 10 of a record, as the user would enter them.
    void fill(const QStringList& fields);
    /// Name, address and no server: what is enough for an account.
    void fillSmall(const QString& name) {
        fill({name, name + "@b.it", "", "25", "0", "", "", "EHLO", "0", "0"});
    }

    ElencoAccount& list() const { return *control<ElencoAccount>("lstAccount"); }
    QStringList entries() const;
    void press(int position, Qt::MouseButton button = Qt::LeftButton);
    void key(int code);

    /// The file's records, decoded, and its bytes.
    QStringList records() const;
    QByteArray file() const;
    void writeRecords(const QStringList& records) const;
    QString path() const { return folder.path("data/Account.imp"); }

    /// The text of the only box since the last reset, "" when there is not exactly one.
    QString box() const;
};

}  // namespace testing_support
