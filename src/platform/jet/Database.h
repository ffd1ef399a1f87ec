// SPDX-License-Identifier: GPL-3.0-or-later
// A Jet 4 database file: its tables, their rows, and transactions over them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/jet/LockWait.h"
#include "platform/jet/TableDefinition.h"
#include "platform/jet/Value.h"
#include "platform/PlainStatus.h"

namespace jet {

/// Identity of a row: the page and slot of its original place. It never changes while the row lives.
struct RowId {
    uint32_t page = 0;
    uint8_t slot = 0;
    bool operator==(const RowId&) const = default;
    auto operator<=>(const RowId&) const = default;

    int64_t toInteger() const { return (static_cast<int64_t>(page) << 8) | slot; }
    static RowId fromInteger(int64_t value) {
        return {static_cast<uint32_t>(value >> 8), static_cast<uint8_t>(value & 0xff)};
    }
};

/// A table of the catalogue.
struct CatalogEntry {
    enum class Kind { Local, Linked, Query };
    std::string name;
    Kind kind = Kind::Local;
    bool system = false;
    uint32_t definitionPage = 0;
    RowId place = {};  ///< of its row in MSysObjects
};

/// A row's bytes seen through its table's definition. Borrowed: valid until the next call on the Database.
class RowView {
  public:
    RowView() = default;
    RowView(const TableDefinition* definition, std::span<const uint8_t> bytes)
        : m_definition(definition), m_bytes(bytes) {}

    const TableDefinition& definition() const { return *m_definition; }
    std::span<const uint8_t> bytes() const { return m_bytes; }

    bool isNull(size_t column) const;
    /// The column's value decoded; memo and OLE values are those stored in the row's own bytes only, so use
    /// Table::value() for them. What cannot be read of a damaged row is Null.
    Value value(size_t column) const;
    /// Fast paths. text() appends the UTF-8 form to `out` and returns false for Null.
    bool text(size_t column, std::string& out) const;
    /// The bytes in which a value is stored; those of a text are as in JetText.h or in Windows-1252
    /// (Column::ansi).
    StoredField field(size_t column) const;
    /// Those of all columns, by position.
    void fields(std::vector<StoredField>& all) const;
    int64_t integer(size_t column) const;
    bool yesNo(size_t column) const;

  private:
    const TableDefinition* m_definition = nullptr;
    std::span<const uint8_t> m_bytes;
};

class Database;
struct Engine;
class PagePrints;
struct TableState;

/// Rows and indexes of one local table of an open database. Owned by the Database; valid as long as it is
/// open and refresh() has not returned true. Failures are those of Database, and besides:
///   FileInUse when another program changed the table's structure since refresh()
///   NoCurrentRecord when a row that is to be changed does not exist
/// A change that fails because of its values leaves the transaction as it was. After any other failure
/// (damage, disk) the transaction can only be undone, and commit() does that.
class Table {
  public:
    ~Table();
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;
    const TableDefinition& definition() const;

    /// Calls `visit` for each row in page order until it returns false. Only reading is allowed meanwhile.
    Status scan(const std::function<bool(RowId, const RowView&)>& visit) { return scan({}, visit); }
    /// The same from the row `from` on, or from its former place: a scan in parts continues after the last.
    Status scan(RowId from, const std::function<bool(RowId, const RowView&)>& visit);
    /// The same for the rows with that number in a column of whole numbers, or with True (any number but 0)
    /// or False in a yes/no column. An index that begins with the column is used where few rows have the
    /// number and the index is one that the engine would keep.
    Status scanGroup(size_t column, int64_t number, const std::function<bool(RowId, const RowView&)>& visit);
    /// Calls `visit`, until it returns false, for each row on a page whose content is not that of `prints`,
    /// which are then renewed; and returns these pages, by number, with those that
    /// are no longer the table's. The page of a row is that of its identity.
    Result<std::vector<bool>> scanChanged(PagePrints& prints,
                                          const std::function<bool(RowId, const RowView&)>& visit);
    /// The row of that identity; no row there is an empty optional.
    Result<std::optional<RowView>> row(RowId id);
    /// Calls `visit` for each of these rows in turn as row() returns it, at one moment; a failure ends it.
    Status rows(std::span<const RowId> ids, const std::function<void(const std::optional<RowView>&)>& visit);
    /// One value, following memo and OLE values to their pages.
    Result<Value> value(RowId id, size_t column);
    /// The row with that number in the primary key, found through the index. Only for tables with
    /// longPrimaryKey().
    Result<std::optional<RowId>> findByPrimaryKey(int32_t key);

    /// Why no row may be inserted or deleted, or success. Looks at everything that could not be kept right:
    /// indexes whose keys are not known for sure or do not agree with their rows, columns that are not
    /// understood, enforced relations, system tables, read-only files.
    Status writable();
    /// Why these columns (by position) of existing rows may not be changed, or success. Less than writable()
    /// asks for: an index that cannot be kept matters only when one of its columns changes.
    Status updatable(std::span<const size_t> columns);
    /// Takes the next auto-number for a row that will be inserted; it is lost if the row is not. Outside a
    /// transaction it is a transaction of its own.
    Result<int32_t> takeAutoNumber();
    /// Inserts a row; `values` in column order, one for each column. An auto-number column that is Null
    /// gets the next number; a greater one raises the counter. Only between begin() and commit(). Failures of
    /// values, naming the column: TypeMismatch, Overflow, FieldTooSmall, ValueRequired (Null, or empty text
    /// where the column forbids it), RecordTooLarge, DuplicateKey, NotSupported (OLE other than
    /// Null, indexed text with characters whose key is not known). Taken for a column: yes/no: bool, or a
    /// number that is not 0 · whole numbers: int64_t, or bool as -1 and 0 · single, double: double or int64_t
    /// · everything else the alternative that reading returns.
    Result<RowId> insert(std::span<const Value> values);
    /// Changes the columns named by position; values as for insert(). Columns that already have the value do
    /// not count. An auto-number cannot be changed. Only between begin() and commit().
    Status update(RowId id, std::span<const std::pair<size_t, Value>> changes);
    /// Sets a yes/no column of every row to that value, page by page, and returns the number of rows.
    /// Nothing, and nothing changed, where rows have to be changed one by one: another type of column, or one
    /// in an index. `goOn` is called before each row; when it returns false the call fails (Timeout) and the
    /// transaction can only be undone. Only between begin() and commit().
    Result<std::optional<int64_t>> setYesNo(size_t column, bool value, const std::function<bool()>& goOn);
    /// Deletes a row, and what other pages contain of its memo and OLE values. Only between begin() and
    /// commit().
    Status erase(RowId id);

  private:
    friend class Database;
    explicit Table(std::unique_ptr<TableState> state);
    std::unique_ptr<TableState> m_state;
};

/// A Jet file. Every read outside a transaction sees the file as it is on disk, also when another process has
/// changed or replaced it in between; refresh() reports whether that happened. Names are in UTF-8,
/// paths in the file system's encoding.
///
/// Other processes are kept out by advisory locks on the file. There is one writer at a time, from begin() to
/// commit() or rollback(); others read on meanwhile and see the file as it was at begin(). Nobody reads while
/// pages are written: that is inside commit(), and in a transaction that outgrows the cache from then on.
/// Waiting is as LockWait says; then FileInUse. Two Databases in one process keep each other out as well, so
/// share one.
///
/// While a file is open for writing an empty journal is beside it (`<file>-journal`), which reserves room on
/// the disk for the next one; the last who closes the file removes it.
///
/// Failures: FileNotFound, PathAccess, UnrecognizedFormat, InvalidPassword, FileInUse, ReadOnlyDatabase,
/// DeviceIo, DamagedDatabase (the file contradicts itself), DatabaseFull (2 GB), Internal (the
/// engine contradicts itself), NotSupported (what cannot be kept right, refused before the file is touched).
/// One thread at a time.
class Database {
  public:
    struct Options {
        std::string password = {};  ///< in UTF-8
        bool readOnly = false;
        LockWait lockWait = {};     ///< for another process, while opening and until setLockWait()
        size_t cachedPages = 8192;  ///< pages of 4 KB kept in memory; a transaction may use as many more
    };

    /// Opens an existing file. What a dead writer left is rolled back first; a journal that does not belong
    /// to the file is set aside and reported (Notices.h); one made by somebody who may not write the file, or
    /// that is a link, makes opening fail (PathAccess). Fails with a clear text for a missing or unreadable
    /// file, a file that is no Jet database, one that is truncated, or a wrong
    /// password. Files of Access 97 (Jet 3) are opened for reading only.
    static Result<std::unique_ptr<Database>> open(const std::string& path, const Options& options);
    static Result<std::unique_ptr<Database>> open(const std::string& path) { return open(path, {}); }
    ~Database();  ///< a transaction that is open is undone
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// What is at `path` now: this file as it was when it was last locked, this file changed since,
    /// or another one or none. Takes no lock and reads nothing.
    enum class Seen { Unchanged, Changed, Other };
    Seen look(const std::string& path) const;
    /// Whether nothing can be written: asked for, without the right to, or a file of Access 97 (Jet 3).
    bool readOnly() const;
    /// Tables of the catalogue by name (system tables included and marked).
    Result<std::vector<CatalogEntry>> catalog();
    /// A local table by name, case ignored. Linked tables and queries are refused.
    Result<Table*> table(std::string_view name);

    /// Makes sure that what is cached agrees with the file. The value is true when the file had been changed
    /// from outside and caches (also those of the caller) must be dropped; Table pointers are invalid then.
    Result<bool> refresh();

    /// Whether the room for the journal of one row's update is taken on the disk, so that such an update
    /// succeeds even when the disk gets full. Tries to take it where it is not. False where nothing can be
    /// written, there is no room, or the file system writes every change to a new place.
    bool roomReserved();

    /// Writes a copy of the file as it is now to `target`, given as for open(). It appears under its name
    /// when it is complete and on the disk; a file that is there is replaced then, and a hot journal beside
    /// it is set aside and reported (Notices.h). The file itself as target fails (PathAccess), a target that
    /// others use does after the wait (FileInUse); whatever fails leaves the target as it was. `ownerOnly`
    /// makes a new file for its owner alone; one that is replaced passes its rights on.
    Status copyTo(const std::string& target, bool ownerOnly = false);

    /// How the calls that follow wait for another process.
    void setLockWait(LockWait wait);

    /// Starts a transaction: takes the writer's lock. Nothing is written to the file before the journal is
    /// synced. Refused (FileInUse) as well while another program keeps the NAME.ldb beside the file. Within a
    /// ReadScope it does not wait: two that read and wait for each other would do so for ever.
    Status begin();
    /// Makes the transaction durable; waits until nobody reads. After it returns success the changes survive
    /// a crash (not that of the machine when the emptied journal could not be synced; then the next
    /// transaction tries that first, and fails where it fails again, having changed nothing). After a failure
    /// the file is as it was at begin().
    Status commit();
    /// Puts the file back to what it was at begin().
    void rollback();
    bool inTransaction() const;

  private:
    friend class ReadScope;
    explicit Database(std::unique_ptr<Engine> engine);
    std::unique_ptr<Engine> m_engine;
};

/// Keeps writers out for a stretch of reading, so that several calls see one state of the file and cost one
/// lock. Look at status() first; without success the calls lock for themselves.
class ReadScope {
  public:
    explicit ReadScope(Database& database);
    ~ReadScope();
    ReadScope(const ReadScope&) = delete;
    const Status& status() const { return m_status; }

  private:
    Database& m_database;
    Status m_status;
};

}  // namespace jet
