// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/accounts/Portachiavi.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/PrivateKeyring.h"
#include "support/Vectors.h"

namespace portachiavi_test {

namespace keyring = sys::keyring;

namespace {

Account account(const QString& password) {
    Account one;
    one.txtNomeVisual = "Ada";
    one.txtEmail = "ada@x.it";
    one.txtServerSMTP = "mail.x.it";
    one.txtUsername = "ada";
    one.txtPassword = password;
    return one;
}

/// Expects no keyring: passwords stay in the file, and a marker is not resolved.
void expectNone(const Account& marked) {
    EXPECT_FALSE(keyring::available());
    EXPECT_EQ(portachiavi::PasswordDi(marked), marked.txtPassword);
    EXPECT_EQ(portachiavi::PasswordDi(account("chiara")), "chiara");
    EXPECT_FALSE(portachiavi::Custodisci(account("chiara"), {}, true, true).ok());
    EXPECT_EQ(portachiavi::Custodisci(account("chiara"), {}, true, false).value().txtPassword, "chiara");
}

/// The accounts of a window and their file, over a keyring of their own.
class Portachiavi : public testing::Test {
  protected:
    static void SetUpTestSuite() { s_keyring = new PrivateKeyring; }
    static void TearDownTestSuite() {
        delete s_keyring;
        s_keyring = nullptr;
    }
    void SetUp() override { ASSERT_TRUE(s_keyring->runs()) << "is gnome-keyring installed?"; }

    QString path() const { return m_folder.filePath("Account.imp"); }
    void add(const Account& values, bool inKeyring) {
        const auto kept = portachiavi::Custodisci(values, table, true, inKeyring);
        ASSERT_TRUE(kept.ok()) << kept.status().text().toStdString();
        NuovoAccount(path(), table, kept.value());
    }
    Status change(int position, const Account& values, bool inKeyring) {
        const auto kept = portachiavi::Custodisci(values, table, false, inKeyring);
        if (!kept.ok()) return kept.status();
        const TabellaAccount before = table;
        ModificaAccount(path(), table, static_cast<int>(table.size()), position, kept.value());
        portachiavi::Ripulisci(before, path(), static_cast<int>(table.size()));
        return {};
    }
    /// The accounts as the file has them.
    TabellaAccount read() const {
        TabellaAccount found;
        CaricaAccount(path(), found, [](const Account&, int) {});
        return found;
    }
    static bool has(const Account& one) {
        return keyring::lookUp(one.txtPassword, {one.txtServerSMTP, one.txtUsername}).ok();
    }

    TabellaAccount table;

  private:
    static inline PrivateKeyring* s_keyring = nullptr;
    QTemporaryDir m_folder;
};

}  // namespace

// Before the others: a connection is kept once it is made.
TEST(BusChiuso, BusThatDoesNotAnswerIsNoKeyring) {
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/manca");
    expectNone(account(keyring::newMarker()));
    bus.isNull() ? qunsetenv("DBUS_SESSION_BUS_ADDRESS") : qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
}

TEST_F(Portachiavi, PasswordMovesToTheKeyringAndBackAndNothingIsLost) {
    const QString password = QStringLiteral("pàss € ") + QString(200, 'x');
    add(account(password), false);
    ASSERT_TRUE(change(0, table[0], true).ok());
    const Account kept = read().at(0);
    EXPECT_TRUE(keyring::isMarker(kept.txtPassword));
    EXPECT_EQ(portachiavi::PasswordDi(kept), password);
    EXPECT_FALSE(bytesOf(path()).contains(QByteArray("01111000").repeated(20))) << "the password in the file";
    ASSERT_TRUE(change(0, kept, false).ok());
    EXPECT_EQ(read().at(0).txtPassword, password);
    EXPECT_FALSE(has(kept)) << "what the file holds again leaves the keyring";
}

TEST_F(Portachiavi, MarkerIsBoundToServerAndUser) {
    add(account("segreta"), true);
    Account stolen = table[0];
    stolen.txtServerSMTP = "mail.ladro.it";
    EXPECT_EQ(portachiavi::PasswordDi(stolen), table[0].txtPassword);
    stolen = table[0];
    stolen.txtUsername = "eva";
    EXPECT_EQ(portachiavi::PasswordDi(stolen), table[0].txtPassword);
    stolen = table[0];
    stolen.txtPassword = keyring::newMarker();
    EXPECT_EQ(portachiavi::PasswordDi(stolen), stolen.txtPassword);
}

TEST_F(Portachiavi, UserWhoChangesTheServerTakesHisPasswordAlong) {
    add(account("segreta"), true);
    const Account before = table[0];
    Account moved = before;
    moved.txtServerSMTP = "nuovo.x.it";
    ASSERT_TRUE(change(0, moved, true).ok());
    EXPECT_NE(table[0].txtPassword, before.txtPassword);
    EXPECT_EQ(portachiavi::PasswordDi(table[0]), "segreta");
    EXPECT_FALSE(has(before));
    moved = table[0];
    moved.txtNomeVisual = "Ada Rossi";
    ASSERT_TRUE(change(0, moved, true).ok());
    EXPECT_EQ(table[0].txtPassword, moved.txtPassword) << "what is not bound changes nothing";
}

TEST_F(Portachiavi, CopyHasAPasswordOfItsOwnAndOutlivesItsModel) {
    add(account("segreta"), true);
    add(table[0], true);
    ASSERT_EQ(table.size(), 2u);
    EXPECT_NE(table[0].txtPassword, table[1].txtPassword);
    const Account first = table[0];
    const TabellaAccount before = table;
    EliminaAccount(path(), table, 2, 0);
    portachiavi::Ripulisci(before, path(), 1);
    EXPECT_FALSE(has(first));
    EXPECT_EQ(portachiavi::PasswordDi(read().at(0)), "segreta");
}

TEST_F(Portachiavi, FileThatWasNotWrittenWholeTakesNothingOutOfTheKeyring) {
    add(account("segreta"), true);
    const TabellaAccount before = table;
    writeBytes(path(), "");
    portachiavi::Ripulisci(before, path(), 1);
    EXPECT_EQ(portachiavi::PasswordDi(before[0]), "segreta");
    ASSERT_TRUE(QFile::remove(path()));
    portachiavi::Ripulisci(before, path(), 0);
    EXPECT_EQ(portachiavi::PasswordDi(before[0]), "segreta");
}

TEST_F(Portachiavi, PasswordThatTheFileCannotContainStaysInTheKeyring) {
    const QString password = QStringLiteral("Ωmega");
    add(account(password), true);
    const Status status = change(0, table[0], false);
    EXPECT_EQ(status.code(), ErrorCode::NotSupported);
    EXPECT_EQ(portachiavi::PasswordDi(read().at(0)), password);
}

TEST_F(Portachiavi, MarkerThatTheKeyringDoesNotKnowStopsTheChange) {
    add(account("segreta"), true);
    const QByteArray file = bytesOf(path());
    ASSERT_TRUE(keyring::remove(table[0].txtPassword).ok());
    for (const bool inKeyring : {false, true}) {
        Account changed = table[0];
        changed.txtServerSMTP = "nuovo.x.it";
        EXPECT_EQ(change(0, changed, inKeyring).code(), ErrorCode::ItemNotFound);
    }
    EXPECT_EQ(bytesOf(path()), file);
    Account typed = table[0];
    typed.txtPassword = "nuova";
    ASSERT_TRUE(change(0, typed, true).ok());
    EXPECT_EQ(portachiavi::PasswordDi(table[0]), "nuova");
}

TEST_F(Portachiavi, WithoutABusThereIsNone) {
    add(account("segreta"), true);
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    expectNone(table[0]);
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
    EXPECT_EQ(portachiavi::PasswordDi(table[0]), "segreta");
}

TEST(Segnaposto, HasAFormOfItsOwnAndIsNeverTheSame) {
    const QString marker = keyring::newMarker();
    EXPECT_TRUE(keyring::isMarker(marker));
    EXPECT_NE(keyring::newMarker(), marker);
    EXPECT_FALSE(marker.contains('|'));
    for (const QString& other :
         {QString(), QString("segreta"), marker + '\n', ' ' + marker, marker.toUpper()})
        EXPECT_FALSE(keyring::isMarker(other));
}

// After the others, whose session bus is gone: GLib would have ended the program.
TEST(SenzaSessione, ProgramOutlivesItsSessionBus) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/manca");
    EXPECT_FALSE(keyring::available());
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
}

}  // namespace portachiavi_test
