// SPDX-License-Identifier: GPL-3.0-or-later
// Tables whose columns have impossible names: the table is refused, all else still works.
#include "TestDatabase.h"

namespace damaged_names_test {

namespace {

class DamagedNamesTest : public ado::TestDatabase {
  protected:
    void SetUp() override {
        TestDatabase::SetUp();
        run("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'gruppo')");
        run("INSERT INTO [tb_destinatari] (id_grp, rgs) VALUES (1, 'ditta')");
        ado::closeAll();
    }
    /// Renames a column of tb_destinatari to a name of the same length.
    void rename(std::u16string from, std::u16string to) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QByteArray all = file.readAll();
        const auto stored = [](const std::u16string& name) {
            QByteArray bytes;
            for (const char16_t unit : std::u16string(1, static_cast<char16_t>(2 * name.size())) + name)
                bytes.append(static_cast<char>(unit & 0xff)).append(static_cast<char>(unit >> 8));
            return bytes;
        };
        const qsizetype definition = 19 * 4096;
        const qsizetype at = all.indexOf(stored(from), definition);
        ASSERT_GT(at, definition);
        file.seek(at);
        file.write(stored(to));
    }
    void expectOnlyThatTableRefused() {
        for (int round = 0; round < 3; ++round) {
            EXPECT_EQ(column("SELECT nome FROM tb_gruppi", "nome"), "gruppo");
            const auto refused = tryRun(QStringLiteral("UPDATE tb_destinatari SET sel = True"));
            EXPECT_EQ(refused.status().code(), ErrorCode::DamagedDatabase) << ado::words(refused.status());
            EXPECT_TRUE(refused.status().text().contains(QLatin1String("nome")))
                << ado::words(refused.status());
            run("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'gruppo')");
            EXPECT_EQ(run("DELETE FROM tb_gruppi WHERE id > 1"), 1);
        }
    }
};

}  // namespace

TEST_F(DamagedNamesTest, Nul) {
    rename(u"rgs", std::u16string(u"r\0s", 3));
    expectOnlyThatTableRefused();
}

TEST_F(DamagedNamesTest, ControlCharacter) {
    rename(u"rgs", u"r\ns");
    expectOnlyThatTableRefused();
}

TEST_F(DamagedNamesTest, TwoOfOneName) {
    rename(u"nom", u"rgs");
    expectOnlyThatTableRefused();
}

TEST_F(DamagedNamesTest, TwoOfOneNameButForTheCase) {
    rename(u"nom", u"RGS");
    expectOnlyThatTableRefused();
}

TEST_F(DamagedNamesTest, TableThatSqlCannotNameLeavesTheOthersAlone) {
    leaveUnsound();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray all = file.readAll();
    // In the catalogue the name is stored in plain UTF-16.
    const auto utf16 = [](const char* text) {
        QByteArray bytes;
        for (; *text; ++text)
            bytes.append(*text).append('\0');
        return bytes;
    };
    ASSERT_TRUE(all.contains(utf16("tb_destinatari")));
    all.replace(utf16("tb_destinatari"), utf16("sqlite_inatari"));
    file.seek(0);
    file.write(all);
    file.close();
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(column("SELECT nome FROM tb_gruppi", "nome"), "gruppo");
        EXPECT_EQ(failure("UPDATE sqlite_inatari SET sel = True"), ErrorCode::NotSupported);
        run("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'gruppo')");
        EXPECT_EQ(run("DELETE FROM tb_gruppi WHERE id > 1"), 1);
    }
}

}  // namespace damaged_names_test
