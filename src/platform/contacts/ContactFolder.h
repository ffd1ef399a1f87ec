#pragma once

#include <chrono>
#include <optional>
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
    QString businessAddress;       ///< the whole address, its lines divided by CR LF
    QString businessAddressPostalCode;
    QString businessAddressCity;
    QString businessTelephoneNumber;
    QString businessFaxNumber;
};

/// The default contacts folder of Microsoft Outlook, as its data file (.pst, .ost) holds it.
struct ContactFolder {
    int count = 0;  ///< entries of the folder
    /// The entries, in the folder's order; none for one that is no contact, such as a distribution list.
    /// Fewer than `count` where the file could not be read to its end.
    std::vector<std::optional<Contact>> items;
};

/// Where Outlook's data files are looked for, in this order: the user's documents, their folders "Outlook
/// Files" and "File di Outlook", the program's data folder.
QStringList outlookFolders();

/// The data file that was changed last in these folders; empty where there is none.
QString findOutlookFile(const QStringList& folders);

/// The program `vestrola-pst`: beside this one, or where an installed program has it ("../libexec/vestrola"
/// as seen from its own folder); or what setOutlookHelper() said.
QString outlookHelper();
void setOutlookHelper(const QString& program);

/// Reads the contacts folder of a data file. The file is read by the helper in a process of its own, since
/// what can be in such a file has brought its readers down before. A helper that cannot be started, or ends,
/// hangs or talks rubbish before it told the count, gives FileNotFound, Timeout or UnrecognizedFormat;
/// afterwards its end is the end of the entries. Blocks for as long as the helper works, at most for
/// `patience`; takes at most 128 MB of what it says.
Result<ContactFolder> readContactFolder(const QString& path,
                                        std::chrono::milliseconds patience = std::chrono::seconds(60));

}  // namespace contacts
