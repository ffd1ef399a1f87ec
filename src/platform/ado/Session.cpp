#include "platform/ado/Session.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <QFile>
#include <QFileInfo>

#include "platform/ado/ConnectionText.h"
#include "platform/ado/JetModule.h"
#include "platform/ado/Rows.h"
#include "platform/ado/SqlTokens.h"
#include "platform/ado/Waiting.h"
#include "platform/jet/GeneralOrder.h"
#include "platform/jet/Probe.h"

namespace ado {

namespace {

using Clock = std::chrono::steady_clock;

/// A name is looked at once for the statement that follows at once.
constexpr std::chrono::milliseconds nameIsTrusted{5};

/// At most one session for each file, or they would keep each other out.
struct PoolEntry {
    QString path;
    QString password;  ///< that opened it
    std::shared_ptr<Session> session;
    QString name = {};               ///< under which it was last asked for; it led to `path` then
    Clock::time_point trusted = {};  ///< until then the name is taken to lead there still
};

constexpr size_t pooledSessions = 4;
constexpr size_t idleStatements = 16;
constexpr size_t cachedPages = 1024;  // the system keeps the file as well

/// The most recently used one last.
std::vector<PoolEntry>& pool() {
    static std::vector<PoolEntry> entries;
    return entries;
}

/// The entry for a name that was used before and leads to the same file as then, which one look at the file
/// tells; null where more is needed. `trusting` leaves out that look where it has just been done.
PoolEntry* recognised(const ConnectionText& text, jet::Database::Seen most, bool trusting) {
    const auto entry = std::find_if(pool().begin(), pool().end(), [&](const PoolEntry& known) {
        return known.name == text.path && known.password == text.password;
    });
    if (entry == pool().end()) return nullptr;
    const Clock::time_point now = Clock::now();
    if (trusting && now < entry->trusted) return &*entry;
    const bool leadsThere =
        entry->session->database().look(QFile::encodeName(text.path).toStdString()) <= most;
    entry->trusted = leadsThere ? now + nameIsTrusted : Clock::time_point();
    if (!leadsThere) return nullptr;
    return &*entry;
}

std::string tableKey(const QString& name) {
    return name.toLower().toStdString();
}

int compareTexts(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return jet::compareGeneral({static_cast<const char*>(left), static_cast<size_t>(leftSize)},
                               {static_cast<const char*>(right), static_cast<size_t>(rightSize)});
}

void bind(sqlite3_stmt* statement, int number, const jet::Value& value) {
    if (const auto* whole = std::get_if<int64_t>(&value)) {
        sqlite3_bind_int64(statement, number, *whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement, number, *real);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        sqlite3_bind_text64(statement, number, text->data(), text->size(), SQLITE_STATIC, SQLITE_UTF8);
    }
}

/// The Italian words for what SQLite says about a statement.
Status statementFailure(const QString& message) {
    constexpr QLatin1String unknownColumn("no such column: ");
    constexpr QLatin1String notInTable(" has no column named ");
    QString column;
    if (message.startsWith(unknownColumn)) column = message.mid(unknownColumn.size());
    if (const auto at = message.indexOf(notInTable); at >= 0) column = message.mid(at + notInTable.size());
    if (!column.isEmpty())
        return {ErrorCode::ItemNotFound, QStringLiteral("Impossibile trovare il campo \"%1\".").arg(column)};
    if (message.startsWith(QLatin1String("near \"")) ||
        message.startsWith(QLatin1String("unrecognized token")))
        return {ErrorCode::SyntaxError, QStringLiteral("Errore di sintassi nell'istruzione SQL vicino a %1.")
                                            .arg(message.section(u'"', 1, 1))};
    if (message.contains(QLatin1String(" values for ")))
        return {ErrorCode::SyntaxError,
                QStringLiteral("Il numero dei valori non corrisponde al numero dei campi di destinazione.")};
    if (message == QLatin1String("not authorized") || message.startsWith(QLatin1String("access to ")) ||
        message.startsWith(QLatin1String("not authorized to use function")))
        return {ErrorCode::NotSupported, QStringLiteral("Istruzione SQL non ammessa.")};
    return {ErrorCode::SyntaxError, QStringLiteral("Istruzione SQL non valida.")};
}

}  // namespace

/// The file and password of a connection text.
struct Session::Target {
    QString name;        ///< as it was given
    QString canonical;   ///< tells it from other files; empty where there is none
    std::string native;  ///< in the file system's encoding
    QString password;

    static Result<Target> read(const QString& connectionText);
};

Result<Session::Target> Session::Target::read(const QString& connectionText) {
    const Result<ConnectionText> parsed = ConnectionText::parse(connectionText);
    if (!parsed.ok()) return parsed.status();
    const ConnectionText& text = parsed.value();
    const QString canonical = QFileInfo(text.path).canonicalFilePath();
    const QByteArray native = QFile::encodeName(canonical.isEmpty() ? text.path : canonical);
    return Target{text.path, canonical, native.toStdString(), text.password};
}

Status Session::attach(const QString& connectionText) {
    if (const Result<ConnectionText> text = ConnectionText::parse(connectionText); !text.ok()) {
        return text.status();
    } else if (recognised(text.value(), jet::Database::Seen::Unchanged, false)) {
        return {};  // it was verified when it was opened
    }
    const Result<Target> target = Target::read(connectionText);
    return target.ok() ? jet::probe(target.value().native, target.value().password.toStdString())
                       : target.status();
}

/// The pooled session of that file, or null; it has become the most recently used one.
Result<std::shared_ptr<Session>> Session::pooled(const Target& target) {
    auto& entries = pool();
    const auto known = std::find_if(entries.begin(), entries.end(),
                                    [&](const auto& entry) { return entry.path == target.canonical; });
    if (known == entries.end()) return std::shared_ptr<Session>();
    if (known->password != target.password)
        if (Status status = jet::probe(target.native, target.password.toStdString()); !status.ok())
            return status;
    known->name = target.name;
    std::rotate(known, known + 1, entries.end());
    return entries.back().session;
}

/// The pooled session for that text, or null.
Result<std::shared_ptr<Session>> Session::known(const QString& connectionText) {
    if (Waiting::asking())
        return Status(ErrorCode::FileInUse, QStringLiteral("Un'altra istruzione è in attesa del database."));
    const Result<ConnectionText> text = ConnectionText::parse(connectionText);
    if (!text.ok()) return text.status();
    if (PoolEntry* entry = recognised(text.value(), jet::Database::Seen::Changed, true)) {
        auto& entries = pool();
        const auto at = entries.begin() + (entry - entries.data());
        std::rotate(at, at + 1, entries.end());
        return entries.back().session;
    }
    const Result<Target> target = Target::read(connectionText);
    return target.ok() ? pooled(target.value()) : target.status();
}

Result<std::shared_ptr<Session>> Session::make(const QString& connectionText) {
    const Result<Target> target = Target::read(connectionText);
    return target.ok() ? make(target.value()) : target.status();
}

Result<std::shared_ptr<Session>> Session::make(const Target& target) {
    auto& entries = pool();
    std::erase_if(entries, [&](const auto& entry) { return entry.path == target.canonical; });
    jet::Database::Options options;
    options.password = target.password.toStdString();
    options.cachedPages = cachedPages;
    options.lockWait = Waiting::lockWait();
    auto database = jet::Database::open(target.native, options);
    if (!database.ok()) return database.status();
    std::shared_ptr<Session> session(new Session(std::move(database).value()));
    if (Status status = session->start(); !status.ok()) return status;
    if (entries.size() >= pooledSessions) {
        const auto idle = std::find_if(entries.begin(), entries.end(),
                                       [](const auto& entry) { return entry.session.use_count() == 1; });
        if (idle != entries.end()) entries.erase(idle);
    }
    entries.push_back({target.canonical, target.password, session, target.name});
    return session;
}

Result<std::shared_ptr<Session>> Session::open(const QString& connectionText) {
    Result<Reading> reading = read(connectionText);
    if (!reading.ok()) return reading.status();
    return reading.value().session;
}

Result<Session::Reading> Session::read(const QString& connectionText) {
    auto pooled = known(connectionText);
    if (!pooled.ok()) return pooled.status();
    if (auto& session = pooled.value()) {
        auto scope = std::make_unique<jet::ReadScope>(session->database());
        const Status status = scope->status().ok() ? session->refresh() : scope->status();
        if (status.ok()) return Reading{session, std::move(scope)};
        if (status.code() == ErrorCode::FileInUse) return status;
    }
    const auto made = make(connectionText);
    if (!made.ok()) return made.status();
    auto scope = std::make_unique<jet::ReadScope>(made.value()->database());
    if (!scope->status().ok()) return scope->status();
    return Reading{made.value(), std::move(scope)};
}

/// The session of that file with a transaction begun on it.
Result<std::shared_ptr<Session>> Session::openForWriting(const QString& connectionText) {
    auto pooled = known(connectionText);
    if (!pooled.ok()) return pooled;
    if (pooled.value()) {
        pooled.value()->commitGroup();
        const Status status = pooled.value()->begin();
        if (status.ok()) return pooled;
        if (status.code() == ErrorCode::FileInUse || status.code() == ErrorCode::ReadOnlyDatabase)
            return status;
    }
    auto made = make(connectionText);
    if (!made.ok()) return made;
    Status status = made.value()->begin();
    if (!status.ok()) return status;
    return made;
}

void Session::closeAll() {
    const Waiting waiting(recordsetSeconds);
    for (const PoolEntry& entry : pool())
        entry.session->commitGroup();
    pool().clear();
}

Session::~Session() {
    for (const auto& [sql, statement] : m_idle)
        sqlite3_finalize(statement);
    sqlite3_close(m_sqlite);
}

Status Session::start() {
    constexpr int oneThread = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    const auto works = [](int code) { return code == SQLITE_OK; };
    const bool ready = works(sqlite3_open_v2(":memory:", &m_sqlite, oneThread, nullptr)) &&
                       works(sqlite3_create_module(m_sqlite, "jet", &jetModule, this)) &&
                       works(sqlite3_create_collation(m_sqlite, "JET", SQLITE_UTF8, nullptr, compareTexts));
    if (!ready) return {ErrorCode::DeviceIo, QStringLiteral("Impossibile avviare il motore SQL.")};
    sqlite3_db_config(m_sqlite, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(m_sqlite, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_limit(m_sqlite, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_limit(m_sqlite, SQLITE_LIMIT_EXPR_DEPTH, 200);
    return {};
}

Status Session::refresh() {
    const Result<bool> changed = m_database->refresh();
    if (!changed.ok()) return changed.status();
    if (changed.value()) {
        ++m_epoch;
        for (auto& [name, table] : m_tables)
            table->changedOutside();
        m_outdated = m_outdated || !std::all_of(m_tables.begin(), m_tables.end(), [](const auto& table) {
                         return table.second->stillTheSame();
                     });
    }
    if (m_outdated)
        return {ErrorCode::TableNotFound, QStringLiteral("La struttura del database è stata modificata.")};
    return {};
}

void Session::forget() {
    ++m_epoch;
    for (auto& [name, table] : m_tables)
        table->forget();
}

Result<JetTable*> Session::table(const QString& name) {
    const auto known = [this](const std::string& key) {
        const auto entry = m_tables.find(key);
        return entry != m_tables.end() ? entry->second.get() : nullptr;
    };
    if (JetTable* table = known(tableKey(name))) return table;
    const Result<jet::Table*> found = m_database->table(name.toStdString());
    if (!found.ok()) return found.status();
    const std::string key = tableKey(QString::fromStdString(found.value()->definition().name));
    if (JetTable* table = known(key)) return table;
    // Some of the system's own are marked by nothing but their name.
    if (found.value()->definition().system || name.startsWith(QLatin1String("MSys"), Qt::CaseInsensitive))
        return Status(ErrorCode::NotSupported,
                      QStringLiteral("La tabella \"%1\" è riservata al sistema.").arg(name));
    const auto entry = m_tables.emplace(key, std::make_unique<JetTable>(*m_database, *found.value())).first;
    if (Status status = declare(*entry->second); !status.ok()) {
        m_tables.erase(entry);
        return status;
    }
    return entry->second.get();
}

Status Session::declare(JetTable& table) {
    const std::string declaration =
        "CREATE VIRTUAL TABLE " + quotedName(table.definition().name) + " USING jet";
    const int code = sqlite3_exec(m_sqlite, declaration.c_str(), nullptr, nullptr, nullptr);
    if (code == SQLITE_OK) return {};
    return {ErrorCode::NotSupported,
            QStringLiteral("La tabella \"%1\" non può essere usata nelle istruzioni SQL.")
                .arg(QString::fromStdString(table.definition().name))};
}

JetTable* Session::declared(const char* name) const {
    const auto entry = m_tables.find(tableKey(QString::fromUtf8(name)));
    return entry != m_tables.end() ? entry->second.get() : nullptr;
}

int Session::authorize(void* client, int action, const char* first, const char* second, const char* database,
                       const char*) {
    const auto& session = *static_cast<const Session*>(client);
    switch (action) {
        case SQLITE_SELECT:
            return SQLITE_OK;
        case SQLITE_READ:
        case SQLITE_INSERT:
        case SQLITE_UPDATE:
        case SQLITE_DELETE: {
            return (!database || std::string_view(database) == "main") && session.declared(first)
                       ? SQLITE_OK
                       : SQLITE_DENY;
        }
        case SQLITE_FUNCTION:
            return std::string_view(second) == "count" ? SQLITE_OK : SQLITE_DENY;
        default:
            return SQLITE_DENY;
    }
}

Result<Prepared> Session::compile(const QByteArray& sql) {
    const auto idle =
        std::find_if(m_idle.rbegin(), m_idle.rend(), [&](const auto& known) { return known.first == sql; });
    if (idle != m_idle.rend()) {
        Prepared prepared(idle->second, {this, sql});
        m_idle.erase(std::next(idle).base());
        return prepared;
    }
    sqlite3_stmt* statement = nullptr;
    sqlite3_set_authorizer(m_sqlite, authorize, this);
    const int code = sqlite3_prepare_v3(m_sqlite, sql.constData(), static_cast<int>(sql.size()),
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    sqlite3_set_authorizer(m_sqlite, nullptr, nullptr);
    if (code != SQLITE_OK) return takeFailure();
    if (!statement) return Status(ErrorCode::SyntaxError, QStringLiteral("Istruzione SQL non valida."));
    return Prepared(statement, {this, sql});
}

Result<Prepared> Session::prepare(const QByteArray& sql, const std::vector<jet::Value>& values) {
    Result<Prepared> prepared = compile(sql);
    if (!prepared.ok()) return prepared;
    int number = 0;
    for (const jet::Value& value : values)
        bind(prepared.value().get(), ++number, value);
    return prepared;
}

void Session::keep(sqlite3_stmt* statement, const QByteArray& sql) {
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (m_idle.size() == idleStatements) {
        sqlite3_finalize(m_idle.front().second);
        m_idle.erase(m_idle.begin());
    }
    m_idle.emplace_back(sql, statement);
}

void KeepStatement::operator()(sqlite3_stmt* statement) const {
    session->keep(statement, sql);
}

/// Lets open recordsets pass all their rows before a write moves them.
Status Session::finishReaders() {
    for (Rows* reader : m_readers)
        if (Status status = reader->finish(); !reader->ended()) return status;
    return {};
}

Status Session::begin() {
    if (Status status = m_database->begin(); !status.ok()) return status;
    ++m_epoch;
    for (auto& [name, table] : m_tables)
        table->beginStatement();
    Status status = finishReaders();
    if (status.ok()) status = refresh();
    return status.ok() ? status : end(std::move(status));
}

/// Ends the transaction: with a commit after success, undone otherwise.
Status Session::end(Status status) {
    if (status.ok()) status = m_database->commit();
    if (status.ok()) return status;
    if (m_database->inTransaction()) m_database->rollback();
    forget();
    return status;
}

Status Session::write(const std::function<Status()>& work) {
    commitGroup();
    if (Status status = begin(); !status.ok()) return status;
    return end(work());
}

Status Session::write(const QString& connectionText, const std::function<Status(Session&)>& work) {
    const auto session = openForWriting(connectionText);
    return session.ok() ? session.value()->end(work(*session.value())) : session.status();
}

Result<std::shared_ptr<Session>> Session::beginGroup(const QString& connectionText, GroupProgress& group) {
    auto session = openForWriting(connectionText);
    if (session.ok()) session.value()->m_group = &group;
    return session;
}

Status Session::insertInGroup(const StatementText& statement) {
    bool refused = false;
    const auto insert = [&]() -> Status {
        if (Status status = finishReaders(); !status.ok()) return status;
        if (const auto target = table(statement.table); !target.ok()) return target.status();
        const Result<Prepared> prepared = prepare(statement.sql, statement.values);
        if (!prepared.ok()) return prepared.status();
        refused = sqlite3_step(prepared.value().get()) != SQLITE_DONE;
        return refused ? takeFailure() : Status();
    };
    Status status = insert();
    if (status.ok()) ++m_group->taken;
    // A group of nothing would keep the lock for nothing.
    if (refused || m_group->taken == 0) commitGroup();
    return status;
}

void Session::commitGroup() {
    if (!m_group) return;
    GroupProgress& group = *std::exchange(m_group, nullptr);
    group.failure = end({});
    if (group.failure.ok()) group.committed += group.taken;
    group.taken = 0;
}

int Session::fail(Status failure) {
    m_failure = std::move(failure);
    return SQLITE_ERROR;
}

Status Session::takeFailure() {
    if (!m_failure.ok()) return std::exchange(m_failure, Status());
    return statementFailure(QString::fromUtf8(sqlite3_errmsg(m_sqlite)));
}

}  // namespace ado
