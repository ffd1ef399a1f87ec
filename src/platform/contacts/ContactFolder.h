// SPDX-License-Identifier: GPL-3.0-or-later
// The contacts of Microsoft Outlook's default folder, read by the helper vestrola-pst.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "platform/Status.h"

namespace contacts {

/// The eight values of an Outlook contact; a value it does not have is empty.
struct Contact {
    QString email1Address;
    QString companyName;
    QString lastNameAndFirstName;  ///< "surname, given middle"
    QString businessAddress;       ///< the whole address, its lines separated by CR LF
    QString businessAddressPostalCode;
    QString businessAddressCity;
    QString businessTelephoneNumber;
    QString businessFaxNumber;
};

/// The entries of a folder, kept as the helper wrote them and decoded one at a time: so the entries of a
/// hostile file take no more memory than the helper's output.
class ContactList {
  public:
    std::size_t size() const { return m_ends.size(); }
    /// None for an entry that is no contact, such as a distribution list. `index` is below size().
    std::optional<Contact> operator[](std::size_t index) const;

    /// Adds an entry: a line of the helper's output, see HelperOutput.h.
    void append(QByteArrayView line);

  private:
    QByteArray m_lines;
    std::vector<qsizetype> m_ends;  ///< where each entry ends
};

/// The default contacts folder of Microsoft Outlook, as its data file (.pst, .ost) contains it.
struct ContactFolder {
    int count = 0;      ///< entries of the folder as the helper counts them: only to be shown
    ContactList items;  ///< in the folder's order; fewer than counted where reading the file failed
    /// The restrictions that the helper reports for itself: "files", "calls", "memory".
    QStringList walls;
};

/// The restrictions that every helper sets where the system supports them.
QStringList allWalls();

/// Where Outlook's data files are looked for, in this order: the user's documents, their folders "Outlook
/// Files" and "File di Outlook", the program's data folder.
QStringList outlookFolders();

/// The data file that was changed last in these folders; empty where there is none.
QString findOutlookFile(const QStringList& folders);

/// The program `vestrola-pst`: beside this one, or where an installed program has it ("../libexec/vestrola"
/// as seen from its own folder); or what setOutlookHelper() said.
QString outlookHelper();
void setOutlookHelper(const QString& program);

/// Reads the contacts folder of a data file. The file is read by the helper in a separate process, since
/// such files can crash their readers. A helper that cannot be started, or ends, hangs or prints invalid
/// lines before the count, fails with FileNotFound, Timeout or UnrecognizedFormat; after the count, its end
/// is the end of the entries; the count is not trusted. The helper is ended with all processes that it may
/// have started. Blocks while it works, at most for `patience`; reads at most 64 MB of its output. `goOn` is
/// called every few milliseconds with the elapsed time, and ends the reading with CancelSelected by returning
/// false.
Result<ContactFolder> readContactFolder(
    const QString& path, std::chrono::milliseconds patience = std::chrono::seconds(60),
    const std::function<bool(std::chrono::milliseconds waited)>& goOn = {});

}  // namespace contacts
