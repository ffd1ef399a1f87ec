// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Database.h"

#include "platform/jet/Catalog.h"
#include "platform/jet/Engine.h"
#include "platform/jet/FileEnd.h"
#include "platform/jet/Names.h"

namespace jet {

namespace {

const std::vector<CatalogEntry>& currentCatalog(Engine& engine) {
    if (engine.catalogGeneration != engine.file.generation()) {
        engine.catalog = readCatalog(engine.file);
        engine.catalogGeneration = engine.file.generation();
    }
    return engine.catalog;
}

}  // namespace

Engine::Engine(std::string filePath, const Database::Options& options)
    : path(std::move(filePath)),
      file(path, options.readOnly, {options.cachedPages, options.cachedPages, options.lockWait}) {}

Database::Database(std::unique_ptr<Engine> engine) : m_engine(std::move(engine)) {}

Database::~Database() = default;

Result<std::unique_ptr<Database>> Database::open(const std::string& path, const Options& options) {
    return guarded([&]() -> Result<std::unique_ptr<Database>> {
        auto engine = std::make_unique<Engine>(path, options);
        const std::string& wanted = engine->file.header().password;
        if (!wanted.empty() && wanted != options.password)
            fail(ErrorCode::InvalidPassword, "Password non valida."_tr);
        const Reading reading(engine->file);
        if (lacksItsEnd(engine->file, currentCatalog(*engine)))
            failDamaged("il file \"%1\" è troncato"_tr, path);
        engine->toldGeneration = engine->file.generation();
        return std::unique_ptr<Database>(new Database(std::move(engine)));
    });
}

Database::Seen Database::look(const std::string& path) const {
    switch (m_engine->file.look(path)) {
        case PageFile::Seen::Unchanged:
            return Seen::Unchanged;
        case PageFile::Seen::Changed:
            return Seen::Changed;
        default:
            return Seen::Other;
    }
}

bool Database::readOnly() const {
    return m_engine->file.readOnly();
}

Result<std::vector<CatalogEntry>> Database::catalog() {
    return guarded([&]() -> Result<std::vector<CatalogEntry>> {
        const Reading reading(m_engine->file);
        return currentCatalog(*m_engine);
    });
}

Result<Table*> Database::table(std::string_view name) {
    return guarded([&]() -> Result<Table*> {
        const Reading reading(m_engine->file);
        const CatalogEntry* other = nullptr;
        for (const CatalogEntry& entry : currentCatalog(*m_engine)) {
            if (!sameName(name, entry.name)) continue;
            if (entry.kind != CatalogEntry::Kind::Local) {
                other = &entry;
                continue;
            }
            std::unique_ptr<Table>& table = m_engine->tables[entry.definitionPage];
            if (!table) table.reset(new Table(std::make_unique<TableState>(*m_engine, entry)));
            return table.get();
        }
        if (other)
            fail(ErrorCode::NotSupported,
                 other->kind == CatalogEntry::Kind::Linked
                     ? Phrase("La tabella \"%1\" è collegata a un altro file."_tr, other->name)
                     : Phrase("\"%1\" è una query, non una tabella."_tr, other->name));
        fail(ErrorCode::TableNotFound, "Impossibile trovare la tabella \"%1\"."_tr, name);
    });
}

Result<bool> Database::refresh() {
    return guarded([&]() -> Result<bool> {
        const Reading reading(m_engine->file);
        if (m_engine->toldGeneration == m_engine->file.generation()) return false;
        m_engine->toldGeneration = m_engine->file.generation();
        m_engine->tables.clear();
        return true;
    });
}

bool Database::roomReserved() {
    return m_engine->file.roomReserved();
}

void Database::setLockWait(LockWait wait) {
    m_engine->file.setLockWait(std::move(wait));
}

Status Database::begin() {
    return guarded([&]() -> Status {
        m_engine->file.beginWrite();
        m_engine->doom = {};
        return {};
    });
}

Status Database::commit() {
    if (!inTransaction()) return {ErrorCode::NotSupported, "Nessuna transazione è in corso."_tr};
    if (!m_engine->doom.ok()) {
        rollback();
        return m_engine->doom;
    }
    return guarded([&]() -> Status {
        m_engine->file.commit();
        return {};
    });
}

void Database::rollback() {
    if (inTransaction()) m_engine->file.rollback();
}

bool Database::inTransaction() const {
    return m_engine->file.writing();
}

ReadScope::ReadScope(Database& database)
    : m_database(database), m_status(guarded([&]() -> Status {
          database.m_engine->file.beginRead();
          return {};
      })) {}

ReadScope::~ReadScope() {
    if (m_status.ok()) m_database.m_engine->file.endRead();
}

}  // namespace jet
