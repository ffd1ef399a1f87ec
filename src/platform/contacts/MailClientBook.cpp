// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/MailClientBook.h"

#include <sqlite3.h>
#include <algorithm>
#include <array>
#include <memory>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryDir>
#include <QThread>

#include "platform/contacts/VCard.h"
#include "platform/text/Words.h"

namespace contacts {

namespace {

constexpr qint64 largestBook = 512LL * 1024 * 1024;
constexpr int largestValue = 8 * 1024 * 1024;
constexpr int stepsBetweenChecks = 1'000'000;
constexpr int mostChecks = 200;

/// The database, its write-ahead log and its rollback journal.
constexpr std::array<const char*, 3> suffixes{"", "-wal", "-journal"};

Status unrecognized() {
    return {ErrorCode::UnrecognizedFormat, Words::tr("La rubrica non è leggibile.")};
}

QDateTime lastChange(const QString& path) {
    QDateTime newest;
    for (const char* suffix : suffixes) {
        const QFileInfo file(path + QLatin1String(suffix));
        if (file.exists() && (!newest.isValid() || file.lastModified() > newest))
            newest = file.lastModified();
    }
    return newest;
}

/// Size and time of change of all files of a database.
QString stateOf(const QString& path) {
    QString state;
    for (const char* suffix : suffixes) {
        const QFileInfo file(path + QLatin1String(suffix));
        if (file.exists()) {
            state += QStringLiteral("%1 %2 %3;")
                         .arg(QLatin1String(suffix))
                         .arg(file.size())
                         .arg(file.lastModified().toMSecsSinceEpoch());
        }
    }
    return state;
}

Status copyOnce(const QString& path, const QString& copy) {
    for (const char* suffix : suffixes) {
        const QString from = path + QLatin1String(suffix);
        const QString to = copy + QLatin1String(suffix);
        QFile::remove(to);
        if (!QFileInfo::exists(from)) continue;
        if (QFileInfo(from).size() > largestBook) return unrecognized();
        if (!QFile::copy(from, to) || !QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner)) {
            return {ErrorCode::PathAccess, Words::tr("Impossibile leggere la rubrica.")};
        }
    }
    return {};
}

/// Copies until nothing was written meanwhile: the files of a database belong together, and a mix of several
/// states could look like entries that never existed.
Status copyBook(const QString& path, const QString& copy) {
    constexpr int attempts = 20;
    Status status;
    for (int i = 0; i < attempts; ++i) {
        const QString before = stateOf(path);
        status = copyOnce(path, copy);
        if (status.ok() && stateOf(path) == before) return {};
        if (status.ok()) status = {ErrorCode::PathAccess, Words::tr("La rubrica cambia di continuo.")};
        QThread::msleep(50);
    }
    return status;
}

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// A malicious file meets limits on sizes and on work, and can run no code of its own.
Database openCopy(const QString& copy, int& checks) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(copy.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    Database database(opened);
    if (result != SQLITE_OK) return nullptr;
    sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, largestValue);
    sqlite3_progress_handler(
        opened, stepsBetweenChecks,
        [](void* count) { return ++*static_cast<int*>(count) > mostChecks ? 1 : 0; }, &checks);
    return database;
}

Statement prepare(const Database& database, const char* text) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database.get(), text, -1, &statement, nullptr);
    return Statement(statement);
}

QByteArray column(const Statement& statement, int index) {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement.get(), index));
    return {bytes, sqlite3_column_bytes(statement.get(), index)};
}

/// What is known of one card: the card it was read from, or the single properties.
struct Properties {
    Card card;
    bool complete = false;  ///< the card was in "_vCard"
};

void addProperty(Properties& properties, const QByteArray& name, const QByteArray& value) {
    static const QHash<QByteArray, QString Card::*> fields{
        {"PrimaryEmail", &Card::emailAddress},   {"DisplayName", &Card::displayName},
        {"Company", &Card::companyName},         {"HomeAddress", &Card::homeStreet},
        {"HomeZipCode", &Card::homePostalCode},  {"HomeCity", &Card::homeCity},
        {"WorkPhone", &Card::businessTelephone}, {"FaxNumber", &Card::businessFax},
    };
    if (name == "_vCard") {
        const std::vector<Card> cards = readVCards(value);
        if (cards.empty()) return;
        properties = {cards.front(), true};
    } else if (const auto field = fields.value(name); field != nullptr && !properties.complete) {
        properties.card.*field = QString::fromUtf8(value);
    }
}

bool readCards(const Database& database, std::vector<Card>& cards) {
    const Statement rows = prepare(database, "SELECT card, name, value FROM properties ORDER BY rowid");
    std::vector<Properties> found;
    QHash<QByteArray, std::size_t> places;
    int result = rows ? sqlite3_step(rows.get()) : SQLITE_ERROR;
    for (; result == SQLITE_ROW; result = sqlite3_step(rows.get())) {
        const QByteArray key = column(rows, 0);
        auto place = places.find(key);
        if (place == places.end()) {
            if (found.size() == mostCards) continue;
            place = places.insert(key, found.size());
            found.emplace_back();
        }
        addProperty(found[*place], column(rows, 1), column(rows, 2));
    }
    std::transform(found.begin(), found.end(), std::back_inserter(cards),
                   [](const Properties& properties) { return properties.card; });
    return result == SQLITE_DONE;
}

void readLists(const Database& database, std::vector<Card>& cards) {
    const Statement rows = prepare(database, "SELECT name FROM lists ORDER BY rowid");
    while (rows && cards.size() < mostCards && sqlite3_step(rows.get()) == SQLITE_ROW) {
        cards.emplace_back().displayName = QString::fromUtf8(column(rows, 0));
    }
}

}  // namespace

QString findMailClientBook(const QString& home) {
    static const QStringList roots{
        QStringLiteral("/.thunderbird"),
        QStringLiteral("/.icedove"),
        QStringLiteral("/.var/app/org.mozilla.Thunderbird/.thunderbird"),
        QStringLiteral("/snap/thunderbird/common/.thunderbird"),
    };
    QString newest;
    QDateTime newestChange;
    for (const QString& root : roots) {
        for (const QFileInfo& profile : QDir(home + root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString book = profile.filePath() + QStringLiteral("/abook.sqlite");
            if (!QFileInfo(book).isFile()) continue;
            const QDateTime change = lastChange(book);
            if (newest.isEmpty() || change > newestChange) {
                newest = book;
                newestChange = change;
            }
        }
    }
    return newest;
}

Result<std::vector<Card>> readMailClientBook(const QString& path) {
    if (!QFileInfo(path).isFile()) {
        return Status(ErrorCode::FileNotFound, Words::tr("La rubrica non esiste."));
    }
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("abook.sqlite"));
    if (Status status = copyBook(path, copy); !status.ok()) return status;
    int checks = 0;
    const Database database = openCopy(copy, checks);
    std::vector<Card> cards;
    if (!database || !readCards(database, cards)) return unrecognized();
    readLists(database, cards);
    return cards;
}

}  // namespace contacts
