// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <set>

#include "platform/jet/Database.h"
#include "platform/jet/Failure.h"
#include "platform/jet/LongValue.h"
#include "platform/jet/PageFile.h"
#include "platform/jet/RowStore.h"

namespace jet {

/// The state that a Database and its Tables share.
struct Engine {
    Engine(std::string filePath, const Database::Options& options);

    std::string path;
    PageFile file;
    uint64_t toldGeneration = 0;  ///< of the file, when refresh() last returned
    std::vector<CatalogEntry> catalog;
    uint64_t catalogGeneration = 0;
    std::map<uint32_t, std::unique_ptr<Table>> tables;  ///< by definition page
    Status doom;                                        ///< why the transaction cannot be committed any more
};

struct TableState {
    TableState(Engine& sharedEngine, const CatalogEntry& entry);

    /// Makes sure that the definition still is the file's. Throws Failure if another program has changed it.
    void ensureCurrent();
    /// The counters in the definition.
    int32_t lastAutoNumber();
    void setAutoNumber(int32_t last);
    void addToRowCount(int change);
    void addToKeyCount(size_t index, int change);
    LongValuePages& pagesOf(const Column& column);

    Engine& engine;
    PageFile& file;
    Bytes structure;  ///< the definition's bytes without its counters
    TableDefinition definition;
    uint64_t generation;
    RowStore rows;
    std::map<uint16_t, LongValuePages> longValues;  ///< by column number, as far as they were needed
    std::optional<int32_t> greatestNumber;  ///< in use when `generation` was first seen; see AutoNumber.h
    std::set<size_t> provedIndexes;         ///< their entries were compared with their rows
    std::map<size_t, uint32_t> lastLeaves;  ///< of indexes whose last new entry was their greatest
    PagePtr borrowed;                       ///< page of the row that row() returned
};

}  // namespace jet
