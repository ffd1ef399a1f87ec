// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "modules/accounts/AccountFile.h"
#include "modules/message/MessaggioMss.h"
#include "platform/jet/NewDatabase.h"

namespace testing_support {

/// A program folder in a temporary place, made the program's own and the user's home
/// by the constructor: an empty database with
/// the group "Clienti", no account, a language file that leaves the windows' own texts. The destructor
/// closes the database and restores the program's former folder.
class SampleFolder {
  public:
    SampleFolder();
    ~SampleFolder();
    SampleFolder(const SampleFolder&) = delete;
    SampleFolder& operator=(const SampleFolder&) = delete;

    /// Absolute path of a file in the folder.
    QString path(const QString& name) const { return m_dir.filePath(name); }
    QString database() const { return path("data/data.mdb"); }

    /// Columns of a recipient by name. Those that are not named are empty texts; a QString without a value
    /// (isNull) is Null. "sel" is "1" unless named.
    using Columns = QHash<QString, QString>;
    /// Adds recipients to the group, in one transaction. Returns the number of the first one.
    int addRecipients(const QList<Columns>& recipients);
    int addRecipient(const Columns& columns) { return addRecipients({columns}); }

    /// Addresses of the recipients that are selected, in the order of sending.
    static QStringList selected();
    /// Runs a statement on the program's database.
    static void run(const QString& statement);

    /// Appends an account that sends through 127.0.0.1:port. `chkUsaSMTP` and the like can be changed
    /// beforehand.
    static Account loopbackAccount(quint16 port);
    void addAccount(const Account& account);

    /// Writes a message file as the editor saves it, so that it is known; returns its path.
    QString writeMessage(const QString& name, const MessaggioMss& message) const;
    /// Subject ":::rgs:::", body "Gentile :::nom:::", normal priority, no attachment.
    QString writeMessage() const;

    /// Replaces the database by one whose column of the groups' names is narrower than a new one's.
    void narrowGroupNames(int characters);

    /// Renames a table or a column in the bytes of a database, to a name of the same length.
    static void renameInFile(const QString& path, const QByteArray& from, const QByteArray& to);

    /// Overwrites the pages that contain this text; the file must have some.
    void damagePagesWith(const QByteArray& text) const;

    /// Takes the database away and puts it back.
    void hideDatabase();
    void showDatabase();

  private:
    void makeDatabase(const std::vector<jet::NewTable>& tables) const;

    QTemporaryDir m_dir;
    TabellaAccount m_accounts;
};

}  // namespace testing_support
