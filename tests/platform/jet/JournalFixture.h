// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include "platform/jet/JetFixture.h"
#include "platform/jet/JetText.h"
#include "platform/jet/Notices.h"
#include "platform/jet/OsFile.h"
#include "support/HotJournal.h"

using namespace jet;

/// A database of 80 rows, a change that touches everything in it, and faults during the change.
class JournalTest : public JetTest {
  protected:
    JournalTest() {
        DatabasePtr database = create(path());
        Table& recipients = table(*database);
        EXPECT_OK(database->begin());
        for (int i = 0; i < 80; ++i)
            insert(recipients, recipient(recipients, "riga " + std::to_string(i)));
        EXPECT_OK(database->commit());
        database.reset();
        before = bytesOf(path());
        setNoticeHandler([this](const Phrase& text) { notices.push_back(text.sourceText()); });
    }
    ~JournalTest() override {
        setDiskHook({});
        setNoticeHandler({});
    }

    std::string journal() const { return path("data.mdb-journal"); }

    // A transaction that touches everything: rows that move, new pages, index splits, deletions.
    Status change(const Database::Options& options = {}) {
        auto opened = Database::open(path(), options);
        if (!opened.ok()) return opened.status();
        Database& database = *opened.value();
        Table& recipients = table(database);
        const Rows rows = rowsOf(recipients);
        if (Status status = database.begin(); !status.ok()) return status;
        for (int i = 0; i < 700; ++i)
            if (auto id = recipients.insert(recipient(recipients, "nuova " + std::to_string(i))); !id.ok())
                return id.status();
        int n = 0;
        for (const auto& [id, row] : rows) {
            const std::pair<size_t, Value> grow{12, std::string(180, 'x')};
            if (Status status = ++n % 4 ? recipients.update(id, std::span(&grow, 1)) : recipients.erase(id);
                !status.ok())
                return status;
        }
        return database.commit();
    }
    // The state after the transaction, made on a copy.
    void learnAfter() {
        EXPECT_OK(change());
        after = bytesOf(path());
        writeBytes(path(), before);
        ASSERT_NE(before, after);
    }
    // Opens what the fault left and returns its state.
    bool isAfter() {
        {
            const auto database = Database::open(path());
            EXPECT_OK(database);
        }
        EXPECT_FALSE(std::filesystem::exists(journal()));
        EXPECT_EQ(setAside(), std::vector<std::string>()) << "a journal that belongs to its file";
        const std::string now = bytesOf(path());
        EXPECT_TRUE(now == before || now == after) << "neither the state before nor the one after";
        return now == after;
    }

    // Runs a change in a process that dies at the first step for which `when` returns true.
    void dieAt(const std::function<bool(const DiskStep&)>& when, const Database::Options& options = {}) {
        const pid_t child = ::fork();
        if (child == 0) {
            setDiskHook([&](const DiskStep& disk) {
                if (when(disk)) ::_exit(9);
                return DiskStep::Outcome::Proceed;
            });
            (void)change(options);
            ::_exit(1);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_EQ(WEXITSTATUS(status), 9);
    }
    // A crash after the pages were written: the journal is hot.
    void crash() {
        int syncs = 0;
        dieAt([&](const DiskStep& disk) { return disk.kind == DiskStep::Kind::Sync && ++syncs == 2; });
        ASSERT_TRUE(hasHotJournal(path()));
        ASSERT_NE(bytesOf(path()), before);
    }
    // Names of the journals that were set aside.
    std::vector<std::string> setAside() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.path().toStdString()))
            if (entry.path().filename().string().find(".scartato") != std::string::npos)
                names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string before;
    std::string after;
    std::vector<std::string> notices;  // that were reported
};
