// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <QTemporaryDir>
#include <set>
#include <string>
#include <vector>

#include "modules/store/NuovoDatabase.h"
#include "platform/jet/Database.h"
#include "platform/jet/OutsideReaders.h"
#include "platform/Status.h"
#include "support/JetChecker.h"

/// A folder of its own, and the calls of the engine that the tests share. Failures end the running test.
class JetTest : public ::testing::Test {
  protected:
    using Row = std::vector<jet::Value>;
    using Rows = std::map<jet::RowId, Row>;
    using DatabasePtr = std::unique_ptr<jet::Database>;

    std::string path(const char* name = "data.mdb") const {
        return m_folder.filePath(QString::fromUtf8(name)).toStdString();
    }

    /// A fresh empty database, opened.
    DatabasePtr create(const std::string& file) {
        const Status status = schema::CreaDatabase(file);
        if (!status.ok()) throw std::runtime_error(status.text().toStdString());
        m_made.insert(file);
        return open(file);
    }
    /// Verifies at the end of each test that the engine's files are sound.
    void TearDown() override {
        for (const std::string& file : m_made)
            if (!m_unsound && !HasFailure() && std::filesystem::exists(file)) expectSound(file);
    }
    /// For a test that damages its files itself.
    void leaveUnsound() { m_unsound = true; }
    static DatabasePtr open(const std::string& file, const jet::Database::Options& options = {}) {
        auto database = jet::Database::open(file, options);
        if (!database.ok()) throw std::runtime_error(database.status().text().toStdString());
        return std::move(database).value();
    }
    static jet::Table& table(jet::Database& database, std::string_view name = "tb_destinatari") {
        auto found = database.table(name);
        if (!found.ok()) throw std::runtime_error(found.status().text().toStdString());
        return *found.value();
    }
    static Rows rowsOf(jet::Table& table) {
        Rows rows;
        const size_t columns = table.definition().columns.size();
        const Status status = table.scan([&](jet::RowId id, const jet::RowView& view) {
            Row row;
            for (size_t i = 0; i < columns; ++i)
                row.push_back(view.value(i));
            rows[id] = std::move(row);
            return true;
        });
        if (!status.ok()) throw std::runtime_error(status.text().toStdString());
        return rows;
    }
    static std::string bytesOf(const std::string& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static void writeBytes(const std::string& file, const std::string& bytes) {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    /// A recipient with the given name in `rgs`, in group 1.
    static Row recipient(const jet::Table& table, const std::string& name) {
        Row row(table.definition().columns.size());
        row[1] = int64_t{1};
        row[2] = name;
        row.back() = true;
        return row;
    }
    static jet::RowId insert(jet::Table& table, const Row& row) {
        auto id = table.insert(row);
        if (!id.ok()) throw std::runtime_error(id.status().text().toStdString());
        return id.value();
    }
    static void expectSound(const std::string& file) {
        EXPECT_EQ(checkJetFile(file), std::vector<std::string>()) << file;
    }
    static void expectSoundForAll(const std::string& file) {
        expectSound(file);
        if (const auto findings = sharedCheckerFindings(file)) {
            EXPECT_EQ(*findings, "");
        }
    }
    /// A sample file of the shared folder, or an empty path with a note when the folder is not there.
    static std::string sample(const char* name) {
        std::string file = std::string(SHARED_DIR "/mdb/") + name;
        if (std::filesystem::exists(file)) return file;
        std::printf("[ SAMPLES  ] %s is not here: its part of the test was skipped\n", file.c_str());
        return {};
    }
    /// Names of all sample files; none, with a note, when they are not here.
    static std::vector<std::string> samples() {
        std::vector<std::string> names;
        if (!std::filesystem::exists(SHARED_DIR "/mdb")) {
            std::printf("[ SAMPLES  ] the samples are not here: this part of the test was skipped\n");
            return names;
        }
        for (const auto& entry : std::filesystem::directory_iterator(SHARED_DIR "/mdb"))
            if (entry.path().extension() == ".mdb") names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }
    /// A copy of the sample, so that it stays unchanged; empty when there is none.
    std::string copyOf(const char* name) {
        const std::string file = sample(name);
        if (file.empty()) return {};
        std::filesystem::copy_file(file, path(name));
        std::filesystem::permissions(path(name), std::filesystem::perms(0644));
        return path(name);
    }
    static bool isJet3(const std::string& file) { return bytesOf(file)[0x14] == 0; }
    /// The password of a sample.
    static jet::Database::Options optionsFor(const std::string& name) {
        const bool hasPassword = name.find("with-password") != std::string::npos;
        return {.password = hasPassword ? "password" : ""};
    }

    QTemporaryDir m_folder;

  private:
    std::set<std::string> m_made;  // by create()
    bool m_unsound = false;
};

#define EXPECT_OK(call)                                    \
    do {                                                   \
        const auto& outcome_ = (call);                     \
        EXPECT_TRUE(outcome_.ok()) << jetTextOf(outcome_); \
    } while (false)
#define EXPECT_FAILS(expected, call)                                     \
    do {                                                                 \
        const auto& outcome_ = (call);                                   \
        EXPECT_EQ(jetCodeOf(outcome_), expected) << jetTextOf(outcome_); \
    } while (false)

inline std::string jetTextOf(const Status& status) {
    return status.text().toStdString();
}
inline ErrorCode jetCodeOf(const Status& status) {
    return status.code();
}
template <class T>
std::string jetTextOf(const Result<T>& result) {
    return result.status().text().toStdString();
}
template <class T>
ErrorCode jetCodeOf(const Result<T>& result) {
    return result.status().code();
}
