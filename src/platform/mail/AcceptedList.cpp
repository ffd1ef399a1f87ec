// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/AcceptedList.h"

#include <algorithm>
#include <QFile>
#include <QSet>
#include <utility>

#include "platform/text/Words.h"

namespace mail {

namespace {

constexpr int mostFiles = 16;          // processes over one data folder
constexpr qsizetype inMemory = -1;     // the slot of an entry that is not in the file
constexpr qsizetype roomAtFirst = 64;  // entries; a run asks for more

QString fileName(const QString& folder, int number) {
    return folder + QStringLiteral("Accettati%1.imp").arg(number);
}

}  // namespace

void AcceptedList::open(const QString& folder) {
    m_folder = folder;
    m_file.reset();
    m_entries.clear();
    m_room = 0;
    refresh();
}

void AcceptedList::refresh() {
    if (m_folder.isEmpty()) return;
    if (m_file) readOwn();
    m_foreign.clear();
    for (int number = 1; number <= mostFiles; ++number) {
        const QString path = fileName(m_folder, number);
        if (!m_file || path != m_file->path()) adopt(path);
    }
}

void AcceptedList::readOwn() {
    const auto content = m_file->read();
    if (!content) return;
    m_entries.removeIf([](const AcceptedContent::Place& place) { return place.slot != inMemory; });
    m_entries.append(content->entries);
    m_room = content->room;
}

/// Takes an existing file over where its process has ended, and reads it otherwise.
void AcceptedList::adopt(const QString& path) {
    auto other = AcceptedFile::open(path, AcceptedFile::Create::No);
    if (!other) return;
    const bool orphan = other->own();
    const auto content = other->read();
    if (!content) return;
    if (!orphan) {
        for (const AcceptedContent::Place& place : content->entries)
            m_foreign.append({path, place});
        return;
    }
    if (!m_file) {
        use(std::move(*other));
        return;
    }
    // What does not fit here stays there for the next time.
    if (room() < content->entries.size() && !m_file->reserve(m_entries.size() + content->entries.size()).ok())
        return;
    m_room = m_file->room();
    for (const AcceptedContent::Place& place : content->entries)
        keep(place.entry);
    if (!content->entries.isEmpty()) m_file->sync();
    if (content->damaged)
        m_setAside.append(other->setAside());
    else
        other->remove();
}

/// Makes an owned file the process's own. False for a damaged one, which is put aside; its valid entries are
/// kept in memory until there is another.
bool AcceptedList::use(AcceptedFile file) {
    const auto content = file.read();
    const QVector<AcceptedContent::Place> before = m_entries;
    if (!content || content->damaged) {
        if (content)
            for (const AcceptedContent::Place& place : content->entries)
                keep(place.entry);
        m_setAside.append(file.setAside());
        return false;
    }
    m_file = std::move(file);
    m_entries.clear();
    readOwn();
    for (const AcceptedContent::Place& place : before)
        keep(place.entry);
    return true;
}

Status AcceptedList::makeFile() {
    for (int number = 1; number <= mostFiles; ++number) {
        const QString path = fileName(m_folder, number);
        auto file = AcceptedFile::open(path, AcceptedFile::Create::IfMissing);
        if (!file || !file->own()) continue;
        Status begun = file->reserve(0);
        if (!begun.ok()) return begun;
        if (use(std::move(*file))) {
            const Status reserved = m_file->reserve(roomAtFirst + m_entries.size());
            m_room = m_file->room();
            return m_room > 0 ? Status() : reserved;
        }
        if (!QFile::exists(path)) --number;  // the name is free now
    }
    return {ErrorCode::PathAccess,
            Words::tr("Impossibile aprire il file \"%1\".").arg(fileName(m_folder, 1))};
}

void AcceptedList::keep(const AcceptedEntry& entry) {
    const bool known = std::any_of(m_entries.begin(), m_entries.end(),
                                   [&](const AcceptedContent::Place& place) { return place.entry == entry; });
    if (known) return;
    const qsizetype slot = freeSlot();
    const bool others = !m_entries.isEmpty();
    const bool written = m_file && slot < mostAccepted && m_file->write(slot, entry);
    m_entries.append({written ? slot : inMemory, entry});
    // A single entry is soon removed when its row is marked, which is on the disk then; several entries mean
    // that rows cannot be marked, and only this file records them.
    if (others && written) m_file->sync();
}

qsizetype AcceptedList::freeSlot() const {
    QSet<qsizetype> taken;
    for (const AcceptedContent::Place& place : m_entries)
        taken.insert(place.slot);
    qsizetype slot = 0;
    while (taken.contains(slot))
        ++slot;
    return slot;
}

Status AcceptedList::reserve(const DatabaseFile& database, qsizetype count) {
    m_last = database;
    if (m_folder.isEmpty()) return {};
    if (!m_file) {
        Status made = makeFile();
        if (!made.ok()) return made;
    }
    Status reserved = m_file->reserve(m_entries.size() + count);
    m_room = m_file->room();
    return reserved;
}

void AcceptedList::release() {
    if (!m_file || !m_entries.isEmpty()) return;
    m_file->remove();
    m_file.reset();
    m_room = 0;
}

bool AcceptedList::holds(const DatabaseFile& database, qint64 number, const QString& address) const {
    if (m_entries.isEmpty() && m_foreign.isEmpty()) return false;  // as a rule
    const AcceptedEntry wanted = AcceptedEntry::of(database, number, address);
    const auto fits = [&](const AcceptedEntry& entry) {
        return entry.number == number && entry.address == wanted.address && entry.sameDatabase(wanted);
    };
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [&](const AcceptedContent::Place& place) { return fits(place.entry); }) ||
           std::any_of(m_foreign.begin(), m_foreign.end(),
                       [&](const Foreign& foreign) { return fits(foreign.place.entry); });
}

QVector<AcceptedEntry> AcceptedList::of(const DatabaseFile& database) const {
    const AcceptedEntry any = AcceptedEntry::ofDatabase(database);
    QVector<AcceptedEntry> found;
    for (const AcceptedContent::Place& place : m_entries)
        if (place.entry.sameDatabase(any)) found.append(place.entry);
    for (const Foreign& foreign : m_foreign)
        if (foreign.place.entry.sameDatabase(any)) found.append(foreign.place.entry);
    return found;
}

void AcceptedList::add(const DatabaseFile& database, qint64 number, const QString& address) {
    const bool away = database.inode == 0 && database.path == m_last.path;
    keep(AcceptedEntry::of(away ? m_last : database, number, address));
}

void AcceptedList::remove(const DatabaseFile& database, qint64 number) {
    const auto meant = [&, any = AcceptedEntry::ofDatabase(database)](const AcceptedEntry& entry) {
        return entry.number == number && entry.sameDatabase(any);
    };
    for (const AcceptedContent::Place& place : std::as_const(m_entries))
        if (place.slot != inMemory && meant(place.entry)) m_file->clear(place.slot, place.entry);
    m_entries.removeIf([&](const AcceptedContent::Place& place) { return meant(place.entry); });
    for (const Foreign& foreign : std::as_const(m_foreign)) {
        if (!meant(foreign.place.entry)) continue;
        auto file = AcceptedFile::open(foreign.file, AcceptedFile::Create::No);
        if (file) file->clear(foreign.place.slot, foreign.place.entry);
    }
    m_foreign.removeIf([&](const Foreign& foreign) { return meant(foreign.place.entry); });
}

}  // namespace mail
