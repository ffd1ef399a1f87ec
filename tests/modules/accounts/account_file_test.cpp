// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/accounts/AccountFile.h"

#include <QTemporaryDir>

#include "modules/accounts/bBinary.h"
#include "modules/core/Fallimento.h"
#include "support/Vectors.h"

namespace account_file_test {

namespace {

constexpr std::array<const char*, Account::numeroCampi> names{
    "idAccount",   "txtNomeVisual", "txtEmail",  "txtServerSMTP", "txtServerPORT", "chkAutentick",
    "txtUsername", "txtPassword",   "cmbSaluto", "txtOutPort",    "chkUsaSMTP"};

class AccountFile : public testing::Test {
  protected:
    QString path() const { return m_folder.filePath(QStringLiteral("Account.imp")); }
    void write(const QStringList& records) const {
        QByteArray bytes;
        for (const QString& record : records)
            bytes += TestoInBit(record).toLatin1() + "\r\n";
        writeBytes(path(), bytes);
    }
    bool read(const QString& file) {
        return CaricaAccount(file, table, [this](const Account& account, int number) {
            list += VoceAccount(account);
            numbers.push_back(number);
        });
    }
    ErrorCode failureOf(const QString& file) {
        try {
            read(file);
        } catch (const Fallimento& failure) {
            return static_cast<ErrorCode>(failure.numero());
        }
        return ErrorCode::None;
    }

    TabellaAccount table;
    QStringList list;
    std::vector<int> numbers;

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(AccountFile, ReadsTheVectors) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("account/read.json"))) {
        SCOPED_TRACE(vector[QLatin1String("name")].toString().toStdString());
        table.clear();
        list.clear();
        const QString file = dataPath(QStringLiteral("account/") + vector[QLatin1String("file")].toString());
        EXPECT_EQ(failureOf(file) != ErrorCode::None, !vector[QLatin1String("failure")].isNull());

        const QJsonArray arrays = vector[QLatin1String("arrays")].toArray();
        ASSERT_EQ(static_cast<qsizetype>(table.size()), arrays.size());
        for (std::size_t i = 0; i < table.size(); ++i) {
            for (std::size_t field = 0; field < names.size(); ++field) {
                EXPECT_EQ(table[i].*Account::campi[field],
                          arrays[static_cast<int>(i)][QLatin1String(names[field])].toString())
                    << i << ' ' << names[field];
            }
        }
        EXPECT_EQ(list, vector[QLatin1String("list")].toVariant().toStringList());
        const QJsonValue chosen = vector[QLatin1String("frmInvia_text")];
        if (chosen.isString()) {
            EXPECT_EQ(VoceAccount(table.at(0)), chosen.toString());
        }
    }
}

TEST_F(AccountFile, EmptyFileHasNoAccount) {
    write({});
    EXPECT_FALSE(read(path()));
    EXPECT_TRUE(table.empty());
}

TEST_F(AccountFile, MissingFileFails) {
    EXPECT_EQ(failureOf(path()), ErrorCode::FileNotFound);
}

TEST_F(AccountFile, FewerThanElevenFieldsFailAndKeepWhatCameBefore) {
    write({QStringLiteral("0|a|a@b.it||25|0|||EHLO|0|0"), QStringLiteral("1|a|a@b.it||25|0|||EHLO|0")});
    EXPECT_EQ(failureOf(path()), ErrorCode::SubscriptOutOfRange);
    EXPECT_EQ(table.size(), 1u);
    EXPECT_EQ(list, QStringList(QStringLiteral("a [a@b.it]")));
}

TEST_F(AccountFile, NumberThatIsNoneFails) {
    for (const char* number : {"", "x", "0x1", "1 2", "\x01"}) {
        write({QLatin1String(number) + QStringLiteral("|a|a@b.it||25|0|||EHLO|0|0")});
        EXPECT_EQ(failureOf(path()), ErrorCode::TypeMismatch) << number;
    }
}

TEST_F(AccountFile, NumberBeyondSixteenBitsOverflowsAndANegativeOneHasNoPlace) {
    write({QStringLiteral("32768|a|a@b.it||25|0|||EHLO|0|0")});
    EXPECT_EQ(failureOf(path()), ErrorCode::Overflow);
    write({QStringLiteral("-1|a|a@b.it||25|0|||EHLO|0|0")});
    EXPECT_EQ(failureOf(path()), ErrorCode::SubscriptOutOfRange);
    write({QStringLiteral("32767|a|a@b.it||25|0|||EHLO|0|0")});
    EXPECT_EQ(failureOf(path()), ErrorCode::None);
    EXPECT_EQ(table.size(), 32768u);
}

TEST_F(AccountFile, EmptyLineIsOneCharacterOfCodeZeroAndNoNumber) {
    writeBytes(path(), "\r\n");
    EXPECT_EQ(failureOf(path()), ErrorCode::SubscriptOutOfRange) << "one field only";
}

TEST_F(AccountFile, LowerNumberNeverShrinksTheTable) {
    write({QStringLiteral("3|c|c@b.it||25|0|||EHLO|0|0"), QStringLiteral("1|a|a@b.it||25|0|||EHLO|0|0")});
    EXPECT_TRUE(read(path()));
    ASSERT_EQ(table.size(), 4u);
    EXPECT_EQ(table[3].txtNomeVisual, QStringLiteral("c"));
    EXPECT_EQ(table[1].txtNomeVisual, QStringLiteral("a"));
    EXPECT_TRUE(table[0].txtNomeVisual.isEmpty());
    EXPECT_EQ(numbers, (std::vector<int>{3, 1}));
}

TEST_F(AccountFile, NumberIsReadInTheUsersLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    write({QStringLiteral(" 1,5 |a|a@b.it||25|0|||EHLO|0|0")});
    EXPECT_TRUE(read(path()));
    QLocale::setDefault(before);
    EXPECT_EQ(numbers, std::vector<int>{2});
    EXPECT_EQ(table.at(2).idAccount, QStringLiteral(" 1,5 "));
}

}  // namespace account_file_test
