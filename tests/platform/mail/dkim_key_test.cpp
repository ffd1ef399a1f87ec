// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DkimKey.h"

#include <QFile>
#include <QTemporaryDir>

#include "platform/mail/dkim_support.h"
#include "platform/mail/DkimSigner.h"

namespace dkim_key_test {

using namespace mail;

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Key : public testing::Test {
  protected:
    QString path(const char* name) const { return folder + '/' + QString::fromLatin1(name); }

    QTemporaryDir dir;
    QString folder = dir.filePath("dkim");
};

TEST_F(Key, IsMadeForItsOwnerAloneAndSigns) {
    const auto made = createDkimKey(folder, "Example.it");
    ASSERT_TRUE(made.ok()) << made.status().text().toStdString();
    EXPECT_TRUE(made.value().selector.startsWith("vestrola20"));
    const auto rights = QFile::permissions(path("example.it.pem"));
    EXPECT_FALSE(rights & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther));
    EXPECT_TRUE(rights & QFile::ReadOwner);
    EXPECT_TRUE(DkimSigner().signs(folder, "example.it"));
    const auto read = readDkimKey(folder, "example.it");
    ASSERT_TRUE(read.ok()) << read.status().text().toStdString();
    EXPECT_EQ(read.value().selector, made.value().selector);
    EXPECT_EQ(read.value().publicKey, made.value().publicKey);
}

TEST_F(Key, IsAnRsaKeyOf2048BitsByAnothersReading) {
    const auto made = createDkimKey(folder, "example.it");
    ASSERT_TRUE(made.ok());
    const QByteArray told =
        compose::run("openssl", {"pkey", "-in", path("example.it.pem"), "-text", "-noout"});
    EXPECT_TRUE(told.contains("2048 bit")) << told.left(200).toStdString();
    EXPECT_EQ(compose::run("openssl", {"pkey", "-in", path("example.it.pem"), "-pubout", "-outform", "DER"}),
              made.value().publicKey);
}

TEST_F(Key, NeverTakesThePlaceOfAnother) {
    ASSERT_TRUE(createDkimKey(folder, "example.it").ok());
    const QByteArray before = contentOf(path("example.it.pem"));
    EXPECT_EQ(createDkimKey(folder, "example.it").status().code(), ErrorCode::FileInUse);
    EXPECT_EQ(contentOf(path("example.it.pem")), before);
}

TEST_F(Key, IsNotMadeBesideHalfAKey) {
    ASSERT_TRUE(createDkimKey(folder, "example.it").ok());
    const QByteArray selector = contentOf(path("example.it.selector"));
    ASSERT_TRUE(QFile::remove(path("example.it.pem")));
    EXPECT_EQ(createDkimKey(folder, "example.it").status().code(), ErrorCode::FileInUse);
    EXPECT_FALSE(QFile::exists(path("example.it.pem")));
    EXPECT_EQ(contentOf(path("example.it.selector")), selector);
}

TEST_F(Key, IsNotWrittenThroughALink) {
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(QFile::link(dir.filePath("altrove"), path("example.it.pem")));
    EXPECT_FALSE(createDkimKey(folder, "example.it").ok());
    EXPECT_FALSE(QFile::exists(dir.filePath("altrove")));
}

TEST_F(Key, LeavesNothingWhereItsSelectorCannotBeWritten) {
    ASSERT_TRUE(QDir().mkpath(path("example.it.selector")));
    EXPECT_FALSE(createDkimKey(folder, "example.it").ok());
    EXPECT_FALSE(QFile::exists(path("example.it.pem")));
}

TEST_F(Key, OfAnInvalidDomainIsNone) {
    for (const char* domain : {"", "../x", "a b", "[127.0.0.1]"})
        EXPECT_FALSE(createDkimKey(folder, domain).ok()) << domain;
}

TEST_F(Key, ThatIsMissingAndOneThatCannotBeUsedAreDistinguished) {
    EXPECT_EQ(readDkimKey(folder, "example.it").status().code(), ErrorCode::FileNotFound);
    EXPECT_EQ(readDkimKey(folder, "../x").status().code(), ErrorCode::FileNotFound);
    ASSERT_TRUE(createDkimKey(folder, "example.it").ok());
    ASSERT_TRUE(QFile::setPermissions(path("example.it.pem"), QFile::ReadOwner | QFile::ReadOther));
    const Status open = readDkimKey(folder, "example.it").status();
    EXPECT_EQ(open.code(), ErrorCode::NotSupported);
    EXPECT_FALSE(open.text().isEmpty());
}

TEST_F(Key, IsKnownInBothItsForms) {
    const auto one = createDkimKey(folder, "uno.example");
    const auto two = createDkimKey(folder, "due.example");
    ASSERT_TRUE(one.ok() && two.ok());
    const QByteArray& key = one.value().publicKey;
    EXPECT_TRUE(isSameKey(key, key));
    EXPECT_FALSE(isSameKey(key, two.value().publicKey));
    const QByteArray plain = compose::run(
        "openssl", {"rsa", "-in", path("uno.example.pem"), "-RSAPublicKey_out", "-outform", "DER"});
    EXPECT_NE(plain, key);
    EXPECT_TRUE(isSameKey(key, plain));
}

TEST_F(Key, RubbishIsNoKey) {
    const auto one = createDkimKey(folder, "uno.example");
    ASSERT_TRUE(one.ok());
    const QByteArray& key = one.value().publicKey;
    for (const QByteArray& published :
         {QByteArray(), QByteArray("x"), key.left(100), QByteArray(100000, '\x30')})
        EXPECT_FALSE(isSameKey(key, published));
}

}  // namespace
}  // namespace dkim_key_test
