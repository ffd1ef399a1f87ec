// SPDX-License-Identifier: GPL-3.0-or-later
// The pool of sessions: which of them a connection text names.
#include <algorithm>
#include <chrono>
#include <QFile>
#include <QFileInfo>

#include "platform/ado/ConnectionText.h"
#include "platform/ado/Session.h"
#include "platform/ado/Waiting.h"
#include "platform/jet/Probe.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

using Clock = std::chrono::steady_clock;

/// A name is looked at once for the statement that follows at once.
constexpr std::chrono::milliseconds nameIsTrusted{5};

/// At most one session for each file, or they would lock each other out.
struct PoolEntry {
    QString path;
    QString password;  ///< that opened it
    std::shared_ptr<Session> session;
    QString name = {};               ///< under which it was last asked for; it led to `path` then
    Clock::time_point trusted = {};  ///< until then the name is taken to lead there still
};

constexpr size_t pooledSessions = 4;
constexpr size_t cachedPages = 1024;  // the system keeps the file as well

/// The most recently used one last.
std::vector<PoolEntry>& pool() {
    static std::vector<PoolEntry> entries;
    return entries;
}

/// The entry for a name that was used before and leads to the same file as then, which one look at the file
/// shows; null where more is needed. `trusting` leaves out that look where it has just been done.
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

}  // namespace

/// The file and password of a connection text.
struct Session::Target {
    QString name;        ///< as it was given
    QString canonical;   ///< identifies the file; empty where there is none
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
    if (Waiting::refused())
        return Status(ErrorCode::FileInUse, Words::tr("Un'altra istruzione è in attesa del database."));
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
    commitAll();
    pool().clear();
}

void Session::commitAll() {
    const Waiting waiting(recordsetSeconds);
    for (const PoolEntry& entry : pool())
        entry.session->commitGroup();
}

}  // namespace ado
