// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/EmptyDatabase.h"

#include <algorithm>
#include <string>

#include "platform/jet/DataPages.h"
#include "platform/jet/EmptyTables.h"
#include "platform/jet/Failure.h"
#include "platform/jet/GeneralOrder.h"
#include "platform/jet/Header.h"
#include "platform/jet/IndexPage.h"

namespace jet {

using namespace empty;

namespace {

// Creation date, engine build and the four masked identities belong together: the mask of the identities
// follows from the date in a way that is not known, so all of them are taken from one real file.
constexpr uint8_t creationDate[] = {0xBC, 0x72, 0x1F, 0x7D, 0xF1, 0x9F, 0xE2, 0x40};
constexpr uint32_t engineBuild = 8618;
using Identity = std::array<uint8_t, 2>;
constexpr Identity admin{0xA6, 0x33};
constexpr Identity engine{0xA7, 0x31};
constexpr Identity users{0xA7, 0x33};
constexpr Identity creator{0xA7, 0x36};

constexpr uint32_t tablesId = 0x0F000001;
constexpr uint32_t databasesId = 0x0F000002;
constexpr uint32_t relationshipsId = 0x0F000003;
constexpr uint32_t databaseId = 0x10000000;

// Appends what follows the variable values of a row.
void finishRow(Writer& w, const std::vector<size_t>& offsets, std::span<const uint8_t> mask) {
    for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset)
        w.u16(static_cast<uint32_t>(*offset));
    w.u16(static_cast<uint32_t>(offsets.size() - 1));
    w.raw(mask);
}

struct Object {
    uint32_t id;
    uint32_t parent;
    std::string name;
    uint16_t type;
    Identity owner;
    uint32_t flags;
    int propertyRow = -1;  // on the page of the properties
    size_t propertyLength = 0;
};

Bytes objectRow(const Object& object, uint32_t propertiesPage) {
    Writer w;
    w.u16(17);
    w.u32(object.id);
    w.u32(object.parent);
    w.u16(object.type);
    w.raw(creationDate);
    w.raw(creationDate);
    w.u32(object.flags);
    std::vector<size_t> offsets{w.bytes.size()};
    w.utf16(object.name);
    offsets.push_back(w.bytes.size());
    w.raw(object.owner);
    const size_t properties = 8;
    while (offsets.size() <= properties)
        offsets.push_back(w.bytes.size());
    uint8_t mask[] = {0xFF, 0x00, 0x00};
    if (object.propertyRow >= 0) {
        mask[1] = 0x40;
        w.u32(static_cast<uint32_t>(object.propertyLength) | 0x40000000);
        w.u32(pointerTo(propertiesPage, static_cast<uint32_t>(object.propertyRow)));
        w.u32(0);
    }
    while (offsets.size() < 12)
        offsets.push_back(w.bytes.size());
    finishRow(w, offsets, mask);
    return w.bytes;
}

struct Ace {
    uint32_t object;
    Identity who;
    uint32_t rights;
    bool inherited = false;
};

Bytes aceRow(const Ace& ace) {
    Writer w;
    w.u16(4);
    w.u32(ace.object);
    w.u32(ace.rights);
    const size_t start = w.bytes.size();
    w.raw(ace.who);
    const uint8_t mask[] = {static_cast<uint8_t>(ace.inherited ? 0x0F : 0x07)};
    finishRow(w, {start, w.bytes.size()}, mask);
    return w.bytes;
}

void appendLong(Bytes& key, uint32_t value) {
    Bytes part(5);
    part[0] = 0x7F;
    store32Big(&part[1], value ^ 0x80000000u);
    key.insert(key.end(), part.begin(), part.end());
}

Bytes withRow(Bytes key, uint32_t page, uint8_t slot) {
    const uint8_t row[] = {0, static_cast<uint8_t>(page >> 8), static_cast<uint8_t>(page), slot};
    key.insert(key.end(), row, row + 4);
    return key;
}

class Builder {
  public:
    explicit Builder(const std::vector<NewTable>& tables) : m_tables(tables) {
        if (!canBeMade(tables)) failInternal("le tabelle nuove sono descritte male"_tr);
        for (const NewTable& table : tables)
            m_lists.push_back(propertyList(table.columns));
    }

    std::vector<Page> build() {
        const bool properties =
            std::any_of(m_lists.begin(), m_lists.end(), [](const Bytes& list) { return !list.empty(); });
        if (properties) m_propertiesPage = pageOf(m_tables.size());
        const size_t pages = pageOf(m_tables.size()) + (properties ? 1 : 0);
        if (pages > pagesOfGlobalMap) failInternal("le tabelle nuove sono troppe"_tr);
        m_pages.resize(pages);
        for (Page& page : m_pages)
            page.fill(0);
        std::vector<Object> objects = systemObjects();
        for (size_t i = 0; i < m_tables.size(); ++i) {
            objects.push_back({pageOf(i), tablesId, m_tables[i].name, 1, admin, 0});
            writeUserTable(userPlan(pageOf(i), m_tables[i].columns));
        }
        if (properties) writeProperties(objects);
        writeHeader();
        writeGlobalMap();
        writeSystemMaps();
        writeObjects(objects);
        writeAces();
        writeDefinition(queriesPlan());
        writeDefinition(relationshipsPlan());
        return std::move(m_pages);
    }

  private:
    static constexpr size_t pagesOfGlobalMap = 512;

    static uint32_t pageOf(size_t table) {
        return firstUserPage + pagesOfUserTable * static_cast<uint32_t>(table);
    }

    static std::vector<Object> systemObjects() {
        constexpr uint32_t root = 0x0F000000;
        constexpr uint32_t system = 0x80000000;
        return {{tablesId, root, "Tables", 3, engine, system},
                {databasesId, root, "Databases", 3, engine, system},
                {relationshipsId, root, "Relationships", 3, engine, system},
                {databaseId, databasesId, "MSysDb", 2, admin, system},
                {catalogPage, tablesId, "MSysObjects", 1, engine, system},
                {acesPage, tablesId, "MSysACEs", 1, engine, system},
                {queriesPage, tablesId, "MSysQueries", 1, engine, system},
                {relationshipsPage, tablesId, "MSysRelationships", 1, engine, system}};
    }

    void writeHeader() {
        Page& p = m_pages[0];
        const uint8_t start[] = {0, 1, 0, 0};
        std::copy(std::begin(start), std::end(start), p.begin());
        std::memcpy(&p[header::engineName], "Standard Jet DB", 16);
        store32(&p[header::version], 1);
        store32(&p[0x18], pointerTo(globalMapPage, 0));
        store32(&p[0x1C], pointerTo(globalMapPage, 1));
        for (uint32_t i = 0; i < 4; ++i)
            store32(&p[0x20 + 4 * i], catalogPage + i);
        store16(&p[0x3C], 1252);
        store32(&p[0x6A], engineBuild);
        store16(&p[0x6E], 0x0409);  // sort order "General"
        std::copy(std::begin(creationDate), std::end(creationDate), p.begin() + header::creationDate);
        // No password: zeros under the mask made of the date's whole days.
        constexpr int32_t days = 38143;
        for (size_t i = 0; i < header::passwordLength; i += 4)
            store32(&p[header::password + i], days);
        maskHeader(p);
        const uint8_t engineVersion[] = {0x54, 0x06, 0, 0, 0x34, 0x2E, 0x30};
        std::copy(std::begin(engineVersion), std::end(engineVersion), p.begin() + 0x98);
        // The commit counters of 256 users; a zero would ask for a repair.
        store16(&p[0xE00], 0x0101);
        for (size_t i = 1; i < 256; ++i)
            store16(&p[0xE00 + 2 * i], 0x0100);
    }

    static Bytes mapRow(std::initializer_list<uint32_t> members) {
        Bytes row(map::ordinaryLength);
        for (uint32_t page : members)
            row[map::bits + page / 8] |= static_cast<uint8_t>(1u << (page % 8));
        return row;
    }

    void writeGlobalMap() {
        Page& p = m_pages[globalMapPage];
        makeDataPage(p, 1);
        Bytes free = mapRow({});
        for (size_t page = m_pages.size(); page < pagesOfGlobalMap; ++page)
            free[map::bits + page / 8] |= static_cast<uint8_t>(1u << (page % 8));
        appendRow(p, globalMapPage, free);
        appendRow(p, globalMapPage, mapRow({}));
    }

    void writeSystemMaps() {
        std::vector<Bytes> rows(31, mapRow({}));
        rows[0] = rows[1] = mapRow({objectRowsPage});
        if (m_propertiesPage != 0) rows[10] = rows[11] = mapRow({m_propertiesPage});
        rows[16] = mapRow({objectsByNameRoot});
        rows[17] = mapRow({objectsByIdRoot});
        rows[18] = rows[19] = mapRow({aceRowsPage});
        rows[20] = mapRow({acesRoot});
        rows[25] = mapRow({10});
        rows[28] = mapRow({11});
        rows[29] = mapRow({12});
        rows[30] = mapRow({13});
        makeDataPage(m_pages[systemMapsPage], 0);
        for (const Bytes& row : rows)
            appendRow(m_pages[systemMapsPage], systemMapsPage, row);
    }

    void writeDefinition(const TablePlan& plan) {
        const Bytes bytes = definitionBytes(plan);
        if (bytes.size() > pageSize - 8) failInternal("una tabella nuova ha troppe colonne"_tr);
        std::copy(bytes.begin(), bytes.end(), m_pages[plan.page].begin());
        for (const IndexPlan& index : plan.indexes)
            if (m_pages[index.root][0] == 0) IndexPage().store(m_pages[index.root], plan.page);
    }

    void writeIndex(uint32_t root, uint32_t owner, std::vector<Bytes> entries) {
        std::sort(entries.begin(), entries.end());
        IndexPage page;
        for (const Bytes& entry : entries)
            page.insert(page.count(), entry);
        if (!page.fits()) failInternal("le tabelle nuove sono troppe"_tr);
        page.store(m_pages[root], owner);
    }

    void writeUserTable(const TablePlan& plan) {
        writeDefinition(plan);
        Page& maps = m_pages[plan.page + 1];
        makeDataPage(maps, 0);
        appendRow(maps, plan.page + 1, mapRow({}));
        appendRow(maps, plan.page + 1, mapRow({}));
        appendRow(maps, plan.page + 1, mapRow({plan.page + 2}));
    }

    /// The tables are the last of the objects.
    void writeProperties(std::vector<Object>& objects) {
        Page& p = m_pages[m_propertiesPage];
        makeDataPage(p, load32(reinterpret_cast<const uint8_t*>("LVAL")));
        for (size_t i = 0; i < m_lists.size(); ++i) {
            if (m_lists[i].empty()) continue;
            Object& object = objects[objects.size() - m_lists.size() + i];
            object.propertyRow = appendRow(p, m_propertiesPage, m_lists[i]);
            object.propertyLength = m_lists[i].size();
        }
    }

    void writeObjects(const std::vector<Object>& objects) {
        Page& rows = m_pages[objectRowsPage];
        makeDataPage(rows, catalogPage);
        std::vector<Bytes> byName;
        std::vector<Bytes> byId;
        for (const Object& object : objects) {
            const uint8_t slot = appendRow(rows, objectRowsPage, objectRow(object, m_propertiesPage));
            Bytes key;
            appendLong(key, object.parent);
            std::string name;
            if (!appendIndexKey(name, object.name)) failInternal("un nome non ha chiave"_tr);
            key.insert(key.end(), name.begin(), name.end());
            byName.push_back(withRow(key, objectRowsPage, slot));
            key.clear();
            appendLong(key, object.id);
            byId.push_back(withRow(key, objectRowsPage, slot));
        }
        writeIndex(objectsByNameRoot, catalogPage, byName);
        writeIndex(objectsByIdRoot, catalogPage, byId);
        writeDefinition(objectsPlan(static_cast<uint32_t>(objects.size())));
    }

    void writeAces() {
        std::vector<Ace> aces{{catalogPage, admin, 0x60000},
                              {acesPage, admin, 0x60000},
                              {queriesPage, admin, 0x60000},
                              {relationshipsPage, admin, 0xE0000},
                              {tablesId, creator, 0xF00FE, true},
                              {tablesId, admin, 0x60001},
                              {relationshipsId, creator, 0xF00FE, true},
                              {relationshipsId, admin, 0x60001},
                              {databasesId, admin, 0x60000},
                              {databaseId, admin, 0x6000E},
                              {databaseId, users, 0x0E},
                              {queriesPage, users, 0x14},
                              {relationshipsPage, users, 0x14},
                              {catalogPage, users, 0x14},
                              {tablesId, users, 0xFFEFF, true},
                              {relationshipsId, users, 0xFFFFF, true}};
        for (size_t i = 0; i < m_tables.size(); ++i) {
            aces.push_back({pageOf(i), admin, 0xF00FE});
            aces.push_back({pageOf(i), users, 0xFFEFF});
        }
        const uint32_t objects = static_cast<uint32_t>(systemObjects().size() + m_tables.size());
        Page& rows = m_pages[aceRowsPage];
        makeDataPage(rows, acesPage);
        std::vector<Bytes> byObject;
        for (const Ace& ace : aces) {
            Bytes key;
            appendLong(key, ace.object);
            byObject.push_back(withRow(key, aceRowsPage, appendRow(rows, aceRowsPage, aceRow(ace))));
        }
        writeIndex(acesRoot, acesPage, byObject);
        writeDefinition(acesPlan(static_cast<uint32_t>(aces.size()), objects));
    }

    const std::vector<NewTable>& m_tables;
    std::vector<Bytes> m_lists;     ///< of each table: the properties of its columns
    uint32_t m_propertiesPage = 0;  ///< 0: there are none
    std::vector<Page> m_pages;
};

}  // namespace

std::vector<Page> emptyDatabase(const std::vector<NewTable>& tables) {
    return Builder(tables).build();
}

}  // namespace jet
