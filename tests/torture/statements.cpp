// SPDX-License-Identifier: GPL-3.0-or-later
// Random statements, run on a database of the program and on a table of plain SQLite: both return the same
// rows, change the same number of them, and contain the same afterwards.
//
//     torture_statements SEED CASES
#include <sqlite3.h>
#include <algorithm>
#include <QDir>
#include <QTemporaryDir>

#include "modules/store/NuovoDatabase.h"
#include "platform/ado/Command.h"
#include "platform/ado/Recordset.h"
#include "support/JetChecker.h"
#include "support/MemoryFolder.h"
#include "torture/StatementMaker.h"
#include "torture/Tally.h"

namespace {

/// Rows as lines of text, or why there are none.
struct Answer {
    bool ok = false;
    qint64 changed = 0;
    QStringList rows = {};
    QString why = {};
};

class Plain {
  public:
    Plain() {
        sqlite3_open(":memory:", &m_sqlite);
        QString columns = "id INTEGER PRIMARY KEY AUTOINCREMENT";
        for (size_t i = 1; i < schema::colonneDestinatari.size(); ++i) {
            const schema::Colonna& column = schema::colonneDestinatari[i];
            const QString name =
                QString::fromUtf16(column.nome.data(), static_cast<qsizetype>(column.nome.size()));
            switch (column.tipo) {
                case schema::Tipo::Testo:
                    columns += QStringLiteral(", %1 TEXT COLLATE NOCASE CHECK (length(%1) <= %2)")
                                   .arg(name)
                                   .arg(column.massimo);
                    break;
                case schema::Tipo::SiNo:
                    columns += ", " + name + " INTEGER NOT NULL DEFAULT 0";
                    break;
                default:
                    columns += ", " + name + " INTEGER";
            }
        }
        run("CREATE TABLE tb_destinatari(" + columns + ')');
    }
    ~Plain() { sqlite3_close(m_sqlite); }
    Plain(const Plain&) = delete;

    /// True is -1 to the program's databases and 1 to SQLite.
    Answer run(QString text) {
        const QByteArray sql = text.replace("True", "-1").toUtf8();
        sqlite3_stmt* statement = nullptr;
        Answer answer;
        const int before = sqlite3_total_changes(m_sqlite);
        int code = sqlite3_prepare_v2(m_sqlite, sql.constData(), -1, &statement, nullptr);
        if (code == SQLITE_OK)
            while ((code = sqlite3_step(statement)) == SQLITE_ROW)
                answer.rows << row(statement);
        answer.ok = code == SQLITE_DONE;
        if (!answer.ok) answer.why = QString::fromUtf8(sqlite3_errmsg(m_sqlite));
        answer.changed = sqlite3_total_changes(m_sqlite) - before;
        sqlite3_finalize(statement);
        return answer;
    }

  private:
    static QString row(sqlite3_stmt* statement) {
        QStringList cells;
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            const bool null = sqlite3_column_type(statement, i) == SQLITE_NULL;
            cells << (null ? QStringLiteral("(null)")
                           : QString::fromUtf8(
                                 reinterpret_cast<const char*>(sqlite3_column_text(statement, i))));
        }
        return cells.join('|');
    }

    sqlite3* m_sqlite = nullptr;
};

class Ours {
  public:
    explicit Ours(const QString& path) : m_connection("Data Source = " + path) {}

    Answer read(const QString& text) const {
        ado::Recordset rows;
        Answer answer;
        Status status = rows.setActiveConnection(m_connection);
        rows.setCursorType(ado::CursorType::Static);
        rows.setSource(text);
        if (status.ok()) status = rows.open();
        while (status.ok() && !rows.isEof()) {
            answer.rows << row(rows);
            status = rows.moveNext();
        }
        answer.ok = status.ok();
        answer.why = status.text();
        return answer;
    }
    Answer change(const QString& text) const {
        ado::Command command;
        Answer answer;
        const Status status = command.setActiveConnection(m_connection);
        command.setCommandText(text);
        command.setCommandTimeout(0);
        const Result<qint64> changed = status.ok() ? command.execute() : Result<qint64>(status);
        answer.ok = changed.ok();
        answer.why = changed.status().text();
        if (changed.ok()) answer.changed = changed.value();
        return answer;
    }

  private:
    static QString row(const ado::Recordset& rows) {
        QStringList cells;
        for (int i = 0; i < rows.fieldCount(); ++i) {
            const Result<ado::Value> value = rows.value(i);
            if (!value.ok()) return value.status().text();
            if (value.value().isNull())
                cells << "(null)";
            else if (value.value().type() == ado::Value::Type::YesNo)
                cells << (value.value().toBool().value() ? "-1" : "0");
            else
                cells << value.value().toTextOrEmpty(QLocale::c());
        }
        return cells.join('|');
    }

    QString m_connection;
};

/// Whether both answered the same; `why` describes the difference.
bool agree(Answer ours, Answer plain, bool ordered, QString& why) {
    if (ours.ok != plain.ok) {
        why = ours.ok ? "SQLite refuses: " + plain.why : "refused: " + ours.why;
    } else if (ours.ok && ours.changed != plain.changed) {
        why = QStringLiteral("%1 rows changed, in SQLite %2").arg(ours.changed).arg(plain.changed);
    } else if (ours.ok) {
        if (!ordered)
            for (QStringList* rows : {&ours.rows, &plain.rows})
                rows->sort();
        if (ours.rows == plain.rows) return true;
        const auto [mine, theirs] =
            std::mismatch(ours.rows.begin(), ours.rows.end(), plain.rows.begin(), plain.rows.end());
        why = QStringLiteral("%1 rows, in SQLite %2; %3 against %4")
                  .arg(ours.rows.size())
                  .arg(plain.rows.size())
                  .arg(mine == ours.rows.end() ? "nothing" : *mine,
                       theirs == plain.rows.end() ? "nothing" : *theirs);
    }
    return why.isEmpty();
}

}  // namespace

int main(int argc, char** argv) {
    const Wanted wanted(argc, argv);
    const QTemporaryDir folder(memoryFolderPattern());
    const QString path = folder.filePath("data.mdb");
    if (!schema::CreaDatabase(path.toStdString()).ok()) return 2;
    const QString everything = "SELECT * FROM tb_destinatari ORDER BY id;";
    Plain plain;
    const Ours ours(path);
    StatementMaker maker(wanted.seed);
    Tally tally;
    long refused = 0;
    long rowsRead = 0;
    const auto compare = [&](const StatementMaker::Statement& statement) {
        const Answer mine = statement.reads ? ours.read(statement.text) : ours.change(statement.text);
        const Answer theirs = plain.run(statement.text);
        if (!mine.ok && !theirs.ok) ++refused;
        rowsRead += static_cast<long>(mine.rows.size());
        QString why;
        if (agree(mine, theirs, statement.ordered, why)) return true;
        ++tally.damaged;
        tally.tell("seed %u, statement %ld: %s\n    %s", wanted.seed, tally.cases, qPrintable(statement.text),
                   qPrintable(why));
        return false;
    };
    qint64 rows = 0;
    while (tally.cases < wanted.cases && tally.damaged == 0) {
        const StatementMaker::Statement statement = maker.next(rows);
        ++tally.cases;
        if (!compare(statement)) break;
        if (!statement.reads) rows = plain.run("SELECT id FROM tb_destinatari").rows.size();
        if (tally.cases % 50 == 0 && !compare({everything, true, true})) break;
        ++tally.survived;
    }
    ado::closeAll();
    for (const std::string& finding : checkJetFile(path.toStdString())) {
        ++tally.damaged;
        tally.tell("%s", finding.c_str());
    }
    tally.more = std::to_string(refused) + " refused by both, " + std::to_string(rowsRead) + " rows compared";
    return tally.report("statements", wanted.seed);
}
