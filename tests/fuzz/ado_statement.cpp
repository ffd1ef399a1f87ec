// SPDX-License-Identifier: GPL-3.0-or-later
// Any text as a statement over a small recipient list: it must neither crash nor leave anything but the two
// tables in a file that can be read.
#include <cstdlib>
#include <memory>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "modules/store/NuovoDatabase.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/Command.h"
#include "platform/ado/Recordset.h"
#include "platform/jet/Database.h"
#include "support/HotJournal.h"
#include "support/MemoryFolder.h"

namespace {

void demand(bool condition) {
    if (!condition) std::abort();
}

class List {
  public:
    List() : m_folder(memoryFolderPattern()) { make(); }

    QString connection() const { return QStringLiteral("Data Source = ") + path(); }

    /// The folder contains only the list and a journal that reserves room for it, and both tables can be read
    /// to their ends.
    void check() {
        QStringList files = QDir(m_folder.path()).entryList(QDir::Files);
        if (files.removeOne(QStringLiteral("lista.mdb-journal")))
            demand(!hasHotJournal(path().toStdString()));
        demand(files == QStringList(QStringLiteral("lista.mdb")));
        auto database = jet::Database::open(path().toStdString());
        demand(database.ok());
        const auto catalog = database.value()->catalog();
        demand(catalog.ok() && catalog.value().size() == 6);
        int rows = 0;
        for (const char* name : {"tb_gruppi", "tb_destinatari"}) {
            auto table = database.value()->table(name);
            demand(table.ok());
            const auto count = [&rows](jet::RowId, const jet::RowView&) { return ++rows > 0; };
            demand(table.value()->scan(count).ok());
        }
        // a table copied into itself doubles each time
        if (++m_changes % 200 == 0 || rows > mostRows) make();
    }

  private:
    static constexpr int mostRows = 40;

    QString path() const { return m_folder.filePath(QStringLiteral("lista.mdb")); }
    void make() {
        ado::closeAll();
        QFile::remove(path());
        demand(schema::CreaDatabase(path().toStdString()).ok());
        for (const char* group : {"0, 'Clienti'", "0, 'Fornitori'", "1, 'Estero'"})
            run(QStringLiteral("INSERT INTO tb_gruppi (id_up, nome) VALUES (%1)").arg(QLatin1String(group)));
        for (const char* recipient :
             {"1, True, 'a@b.it', 'Rossi', 'Anna'", "1, False, 'c@d.it', 'Per\u00f9', Null",
              "2, True, '', 'D''Angelo', ''", "3, True, 'e@f.it', Null, 'Zoe'"})
            run(QStringLiteral("INSERT INTO tb_destinatari (id_grp, sel, email, rgs, nom) VALUES (%1)")
                    .arg(QString::fromUtf8(recipient)));
    }
    void run(const QString& statement) const {
        ado::Command command;
        demand(command.setActiveConnection(connection()).ok());
        command.setCommandText(statement);
        demand(command.execute().ok());
    }

    QTemporaryDir m_folder{memoryFolderPattern()};
    int m_changes = 0;
};

void readAll(const QString& connection, const QString& statement) {
    ado::Recordset rows;
    demand(rows.setActiveConnection(connection).ok());
    rows.setCursorType(ado::CursorType::Static);
    rows.setSource(statement);
    if (!rows.open().ok()) return;
    while (!rows.isEof()) {
        for (int i = 0; i < rows.fieldCount(); ++i)
            (void)rows.value(i).value().toTextOrEmpty(QLocale::c());
        if (!rows.moveNext().ok()) return;
    }
    demand(rows.recordCount() >= 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static auto list = std::make_unique<List>();
    const QString statement =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    readAll(list->connection(), statement);
    ado::Command command;
    demand(command.setActiveConnection(list->connection()).ok());
    command.setCommandText(statement);
    command.setCommandTimeout(0);
    if (command.execute().ok()) list->check();
    return 0;
}
