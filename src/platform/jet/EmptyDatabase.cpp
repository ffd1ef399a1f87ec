#include "platform/jet/EmptyDatabase.h"

#include <algorithm>
#include <numeric>
#include <QFile>
#include <string>

#include "platform/jet/Database.h"
#include "platform/jet/DataPages.h"
#include "platform/jet/Failure.h"
#include "platform/jet/GeneralOrder.h"
#include "platform/jet/Header.h"
#include "platform/jet/IndexPage.h"
#include "platform/jet/JetText.h"
#include "platform/jet/OsFile.h"

namespace jet {

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

constexpr uint32_t acesPage = 3;
constexpr uint32_t queriesPage = 4;
constexpr uint32_t relationshipsPage = 5;
constexpr uint32_t systemMapsPage = 6;
constexpr uint32_t objectsByNameRoot = 7;
constexpr uint32_t objectsByIdRoot = 8;
constexpr uint32_t acesRoot = 9;
constexpr uint32_t objectRowsPage = 14;
constexpr uint32_t aceRowsPage = 15;
constexpr uint32_t groupsPage = 16;
constexpr uint32_t recipientsPage = 19;
constexpr uint32_t propertiesPage = 22;

constexpr uint32_t tablesId = 0x0F000001;
constexpr uint32_t databasesId = 0x0F000002;
constexpr uint32_t relationshipsId = 0x0F000003;
constexpr uint32_t databaseId = 0x10000000;

constexpr uint16_t language = 0x0409;
constexpr uint32_t blockMark = 0x659;
constexpr uint32_t indexMark = 1923;

// Appends numbers and texts to bytes.
struct Writer {
    Bytes bytes;

    void u8(uint32_t v) { bytes.push_back(static_cast<uint8_t>(v)); }
    void u16(uint32_t v) {
        u8(v);
        u8(v >> 8);
    }
    void u32(uint32_t v) {
        u16(v);
        u16(v >> 16);
    }
    void zeros(size_t n) { bytes.resize(bytes.size() + n); }
    void raw(std::span<const uint8_t> v) { bytes.insert(bytes.end(), v.begin(), v.end()); }
    void utf16(const std::string& text) { raw(*encodeText(toUtf16(text), false)); }
    void name(const std::string& text) {
        u16(static_cast<uint32_t>(2 * text.size()));
        utf16(text);
    }
};

struct ColumnPlan {
    std::string name;
    Type type;
    uint16_t number;
    uint16_t variableIndex;
    uint8_t flags;
    uint16_t fixedOffset;
    uint16_t length;
    uint8_t extended = 0;
    uint16_t display = 0;
};

struct IndexPlan {
    std::vector<uint16_t> columns;
    uint8_t flags;
    uint32_t map;  // row and page
    uint32_t root;
    uint32_t keys = 0;
};

struct LogicalPlan {
    std::string name;
    uint32_t number;  // of the real index as well
    bool primary;
};

struct LongPlan {
    uint16_t column;
    uint32_t firstMap;  // owned; the next row: with room
};

struct TablePlan {
    uint32_t page;
    char kind;
    uint32_t rows;
    uint16_t variables;
    uint32_t maps;  // owned; the next row: with room
    std::vector<ColumnPlan> columns;
    std::vector<IndexPlan> indexes;
    std::vector<LogicalPlan> logicals;
    std::vector<LongPlan> longs = {};
};

constexpr uint32_t pointerTo(uint32_t page, uint32_t row) {
    return page << 8 | row;
}
constexpr uint32_t systemMap(uint32_t row) {
    return pointerTo(systemMapsPage, row);
}

Bytes definitionOf(const TablePlan& table) {
    Writer w;
    w.bytes = {DefinitionPage, 1, 0, 0, 0, 0, 0, 0};
    w.u32(0);  // length, below
    w.u32(blockMark);
    w.u32(table.rows);
    w.u32(0);
    w.u32(1);
    w.zeros(12);
    w.u8(static_cast<uint8_t>(table.kind));
    const uint32_t columns = static_cast<uint32_t>(table.columns.size());
    w.u16(columns);
    w.u16(table.variables);
    w.u16(columns);
    w.u32(static_cast<uint32_t>(table.logicals.size()));
    w.u32(static_cast<uint32_t>(table.indexes.size()));
    w.u32(table.maps);
    w.u32(table.maps + 1);
    for (const IndexPlan& plan : table.indexes) {
        w.u32(0);
        w.u32(plan.keys);
        w.u32(0);
    }
    for (const ColumnPlan& plan : table.columns) {
        w.u8(static_cast<uint8_t>(plan.type));
        w.u32(blockMark);
        w.u16(plan.number);
        w.u16(plan.variableIndex);
        w.u16(plan.display);
        w.u16(language);
        w.u16(0);
        w.u8(plan.flags);
        w.u8(plan.extended);
        w.zeros(4);
        w.u16(plan.fixedOffset);
        w.u16(plan.length);
    }
    for (const ColumnPlan& plan : table.columns)
        w.name(plan.name);
    for (const IndexPlan& plan : table.indexes) {
        w.u32(indexMark);
        for (size_t i = 0; i < 10; ++i) {
            w.u16(i < plan.columns.size() ? plan.columns[i] : 0xFFFF);
            w.u8(i < plan.columns.size() ? 1 : 0);
        }
        w.u32(plan.map);
        w.u32(plan.root);
        w.zeros(4);
        w.u8(plan.flags);
        w.zeros(5);
    }
    for (const LogicalPlan& plan : table.logicals) {
        w.u32(blockMark);
        w.u32(plan.number);
        w.u32(plan.number);
        w.u8(0);
        w.u32(0xFFFFFFFF);
        w.u32(0);
        w.u8(4);
        w.u8(4);
        w.u8(plan.primary ? 1 : 0);
        w.zeros(4);
    }
    for (const LogicalPlan& plan : table.logicals)
        w.name(plan.name);
    for (const LongPlan& plan : table.longs) {
        w.u16(plan.column);
        w.u32(plan.firstMap);
        w.u32(plan.firstMap + 1);
    }
    w.u16(0xFFFF);
    store32(&w.bytes[definition::length], static_cast<uint32_t>(w.bytes.size()));
    store16(&w.bytes[2], static_cast<uint32_t>(pageSize - 8 - w.bytes.size()));
    return w.bytes;
}

constexpr uint8_t fixedFlags = 0x13;
constexpr uint8_t variableFlags = 0x12;
constexpr uint8_t ownerFlags = 0x32;

TablePlan objectsPlan(uint32_t rows) {
    const auto text = [](const char* name, Type type, uint16_t number, uint16_t index, uint16_t length) {
        return ColumnPlan{name, type, number, index, variableFlags, 0, length};
    };
    return {catalogPage,
            'S',
            rows,
            11,
            systemMap(0),
            {text("Connect", Type::Memo, 9, 3, 0),
             text("Database", Type::Memo, 8, 2, 0),
             {"DateCreate", Type::Date, 4, 1, fixedFlags, 10, 8},
             {"DateUpdate", Type::Date, 5, 1, fixedFlags, 18, 8},
             {"Flags", Type::Long, 7, 2, fixedFlags, 26, 4},
             text("ForeignName", Type::Text, 10, 4, 510),
             {"Id", Type::Long, 0, 0, fixedFlags, 0, 4},
             text("Lv", Type::Ole, 13, 7, 0),
             text("LvExtra", Type::Ole, 16, 10, 0),
             text("LvModule", Type::Ole, 15, 9, 0),
             text("LvProp", Type::Ole, 14, 8, 0),
             text("Name", Type::Text, 2, 0, 510),
             {"Owner", Type::Binary, 6, 1, ownerFlags, 0, 510},
             {"ParentId", Type::Long, 1, 0, fixedFlags, 4, 4},
             text("RmtInfoLong", Type::Ole, 12, 6, 0),
             text("RmtInfoShort", Type::Binary, 11, 5, 510),
             {"Type", Type::Integer, 3, 1, fixedFlags, 8, 2}},
            {{{1, 2}, 0x81, systemMap(16), objectsByNameRoot, rows},
             {{0}, 0x81, systemMap(17), objectsByIdRoot, rows}},
            {{"Id", 1, true}, {"ParentIdName", 0, false}},
            {{9, systemMap(4)},
             {8, systemMap(2)},
             {13, systemMap(8)},
             {16, systemMap(14)},
             {15, systemMap(12)},
             {14, systemMap(10)},
             {12, systemMap(6)}}};
}

TablePlan acesPlan(uint32_t rows, uint32_t objects) {
    return {acesPage,
            'S',
            rows,
            1,
            systemMap(18),
            {{"ACM", Type::Long, 2, 1, fixedFlags, 4, 4},
             {"FInheritable", Type::YesNo, 3, 1, fixedFlags, 0, 1},
             {"ObjectId", Type::Long, 0, 0, fixedFlags, 0, 4},
             {"SID", Type::Binary, 1, 0, ownerFlags, 0, 510}},
            {{{0}, 0x88, systemMap(20), acesRoot, objects}},
            {{"ObjectId", 0, false}}};
}

TablePlan queriesPlan() {
    return {queriesPage,
            'S',
            0,
            4,
            systemMap(21),
            {{"Attribute", Type::Byte, 1, 0, fixedFlags, 4, 1},
             {"Expression", Type::Memo, 5, 3, variableFlags, 0, 0},
             {"Flag", Type::Integer, 6, 4, fixedFlags, 5, 2},
             {"LvExtra", Type::Long, 7, 4, fixedFlags, 7, 4},
             {"Name1", Type::Text, 3, 1, variableFlags, 0, 510},
             {"Name2", Type::Text, 4, 2, variableFlags, 0, 510},
             {"ObjectId", Type::Long, 0, 0, fixedFlags, 0, 4},
             {"Order", Type::Binary, 2, 0, variableFlags, 0, 510}},
            {{{0, 1, 2}, 0x81, systemMap(25), 10}},
            {{"ObjectIdAttribute", 0, true}},
            {{5, systemMap(23)}}};
}

TablePlan relationshipsPlan() {
    return {relationshipsPage,
            'S',
            0,
            5,
            systemMap(26),
            {{"ccolumn", Type::Long, 2, 1, fixedFlags, 4, 4},
             {"grbit", Type::Long, 1, 1, fixedFlags, 0, 4},
             {"icolumn", Type::Long, 3, 1, fixedFlags, 8, 4},
             {"szColumn", Type::Text, 5, 2, variableFlags, 0, 510},
             {"szObject", Type::Text, 4, 1, variableFlags, 0, 510},
             {"szReferencedColumn", Type::Text, 7, 4, variableFlags, 0, 510},
             {"szReferencedObject", Type::Text, 6, 3, variableFlags, 0, 510},
             {"szRelationship", Type::Text, 0, 0, variableFlags, 0, 510}},
            {{{0}, 0x82, systemMap(28), 11}, {{4}, 0x82, systemMap(29), 12}, {{6}, 0x82, systemMap(30), 13}},
            {{"szObject", 1, false}, {"szReferencedObject", 2, false}, {"szRelationship", 0, false}}};
}

// The tables of the recipient list: a plan from the columns' names and lengths.
struct UserColumn {
    const char* name;
    Type type;
    uint16_t characters = 0;
    bool autoNumber = false;
};

const std::vector<UserColumn> groupColumns{
    {"id", Type::Long, 0, true}, {"id_up", Type::Long}, {"nome", Type::Text, 255}};

const std::vector<UserColumn> recipientColumns{
    {"id", Type::Long, 0, true}, {"id_grp", Type::Long},      {"rgs", Type::Text, 70},
    {"nom", Type::Text, 70},     {"piva", Type::Text, 15},    {"ind", Type::Text, 255},
    {"cap", Type::Text, 10},     {"loc", Type::Text, 70},     {"prov", Type::Text, 2},
    {"tel", Type::Text, 15},     {"fax", Type::Text, 15},     {"email", Type::Text, 255},
    {"campo1", Type::Text, 255}, {"campo2", Type::Text, 255}, {"campo3", Type::Text, 255},
    {"campo4", Type::Text, 255}, {"campo5", Type::Text, 255}, {"campo6", Type::Text, 255},
    {"campo7", Type::Text, 255}, {"campo8", Type::Text, 255}, {"campo9", Type::Text, 255},
    {"sel", Type::YesNo}};

// Definition, map page and index root stand on three pages in a row.
TablePlan userPlan(uint32_t page, const std::vector<UserColumn>& columns) {
    TablePlan plan{page, 'N', 0, 0, pointerTo(page + 1, 0), {}, {}, {{"PrimaryKey", 0, true}}};
    uint16_t fixedOffset = 0;
    for (const UserColumn& column : columns) {
        const uint16_t number = static_cast<uint16_t>(plan.columns.size());
        if (column.type == Type::Text) {
            plan.columns.push_back({column.name, Type::Text, number, plan.variables, 0x02, 0,
                                    static_cast<uint16_t>(2 * column.characters), 1, number});
            ++plan.variables;
            continue;
        }
        const bool yesNo = column.type == Type::YesNo;
        const uint8_t flags = column.autoNumber ? 0x07 : 0x03;
        plan.columns.push_back({column.name, column.type, number, plan.variables, flags,
                                yesNo ? uint16_t{0} : fixedOffset, static_cast<uint16_t>(yesNo ? 1 : 4), 0,
                                number});
        if (!yesNo) fixedOffset = static_cast<uint16_t>(fixedOffset + 4);
    }
    plan.indexes = {{{0}, 0x89, pointerTo(page + 1, 2), page + 2}};
    return plan;
}

// Text columns may hold empty text: kept as a property list in the table's catalogue row.
Bytes propertiesOf(const std::vector<UserColumn>& columns) {
    static const std::string property = "AllowZeroLength";
    Writer w;
    w.raw(std::span(reinterpret_cast<const uint8_t*>("MR2"), 4));
    w.u32(static_cast<uint32_t>(8 + 2 * property.size()));
    w.u16(0x80);
    w.name(property);
    for (const UserColumn& column : columns) {
        if (column.type != Type::Text) continue;
        const uint32_t nameBlock = static_cast<uint32_t>(6 + 2 * std::strlen(column.name));
        const uint32_t propertyLength = 9;
        w.u32(6 + nameBlock + propertyLength);
        w.u16(1);
        w.u32(nameBlock);
        w.name(column.name);
        w.u16(propertyLength);
        w.u8(1);
        w.u8(static_cast<uint8_t>(Type::YesNo));
        w.u16(0);
        w.u16(1);
        w.u8(1);
    }
    return w.bytes;
}

// Appends what stands behind the variable values of a row.
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

Bytes objectRow(const Object& object) {
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
    explicit Builder(EmptyContent content) : m_content(content) {}

    std::vector<Page> build() {
        const bool user = m_content != EmptyContent::SystemTables;
        const bool properties = m_content == EmptyContent::WithProperties;
        m_pages.resize(properties ? 23 : user ? 22 : 16);
        for (Page& page : m_pages)
            page.fill(0);
        std::vector<Object> objects = systemObjects();
        if (user) {
            objects.push_back({groupsPage, tablesId, "tb_gruppi", 1, admin, 0});
            objects.push_back({recipientsPage, tablesId, "tb_destinatari", 1, admin, 0});
            writeUserTable(userPlan(groupsPage, groupColumns));
            writeUserTable(userPlan(recipientsPage, recipientColumns));
        }
        if (properties) writeProperties(objects);
        writeHeader();
        writeGlobalMap();
        writeSystemMaps();
        writeObjects(objects);
        writeAces(user);
        writeDefinition(queriesPlan());
        writeDefinition(relationshipsPlan());
        return std::move(m_pages);
    }

  private:
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
        store16(&p[0x6E], language);
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
        for (size_t page = m_pages.size(); page < 512; ++page)
            free[map::bits + page / 8] |= static_cast<uint8_t>(1u << (page % 8));
        appendRow(p, globalMapPage, free);
        appendRow(p, globalMapPage, mapRow({}));
    }

    void writeSystemMaps() {
        std::vector<Bytes> rows(31, mapRow({}));
        rows[0] = rows[1] = mapRow({objectRowsPage});
        if (m_content == EmptyContent::WithProperties) rows[10] = rows[11] = mapRow({propertiesPage});
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
        const Bytes bytes = definitionOf(plan);
        std::copy(bytes.begin(), bytes.end(), m_pages[plan.page].begin());
        for (const IndexPlan& index : plan.indexes)
            if (m_pages[index.root][0] == 0) IndexPage().store(m_pages[index.root], plan.page);
    }

    void writeIndex(uint32_t root, uint32_t owner, std::vector<Bytes> entries) {
        std::sort(entries.begin(), entries.end());
        IndexPage page;
        for (const Bytes& entry : entries)
            page.insert(page.count(), entry);
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

    void writeProperties(std::vector<Object>& objects) {
        Page& p = m_pages[propertiesPage];
        makeDataPage(p, load32(reinterpret_cast<const uint8_t*>("LVAL")));
        for (Object& object : objects) {
            if (object.id != groupsPage && object.id != recipientsPage) continue;
            const Bytes list = propertiesOf(object.id == groupsPage ? groupColumns : recipientColumns);
            object.propertyRow = appendRow(p, propertiesPage, list);
            object.propertyLength = list.size();
        }
    }

    void writeObjects(const std::vector<Object>& objects) {
        Page& rows = m_pages[objectRowsPage];
        makeDataPage(rows, catalogPage);
        std::vector<Bytes> byName;
        std::vector<Bytes> byId;
        for (const Object& object : objects) {
            const uint8_t slot = appendRow(rows, objectRowsPage, objectRow(object));
            Bytes key;
            appendLong(key, object.parent);
            std::string name;
            if (!appendIndexKey(name, object.name)) failDamaged(QStringLiteral("nome senza chiave"));
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

    void writeAces(bool user) {
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
        uint32_t objects = 8;
        for (uint32_t table : {groupsPage, recipientsPage}) {
            if (!user) break;
            aces.push_back({table, admin, 0xF00FE});
            aces.push_back({table, users, 0xFFEFF});
            ++objects;
        }
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

    EmptyContent m_content;
    std::vector<Page> m_pages;
};

}  // namespace

std::vector<Page> emptyDatabase(EmptyContent content) {
    return Builder(content).build();
}

Status createEmptyDatabase(const QString& path) {
    return guarded([&]() -> Status {
        const std::string name = QFile::encodeName(path).toStdString();
        if (OsFile::exists(name))
            fail(ErrorCode::PathAccess, QStringLiteral("Il file \"%1\" esiste già.").arg(path));
        const std::vector<Page> pages = emptyDatabase(EmptyContent::WithProperties);
        OsFile file(name, OsFile::Access::Create);
        try {
            for (size_t n = 0; n < pages.size(); ++n)
                file.write(n * pageSize, pages[n]);
            file.sync();
            OsFile::syncFolderOf(name);
        } catch (const Failure&) {
            OsFile::remove(name);
            throw;
        }
        return {};
    });
}

}  // namespace jet
