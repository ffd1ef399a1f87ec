#include <QTemporaryDir>

#include "core/bFunctions.h"
#include "core/Fallimento.h"
#include "support/Vectors.h"

namespace {

bool usable(const QString& path) {
    bool result = false;
    Prosegui prosegui;
    prosegui([&] { result = VerificaDatabase(path); });
    return result;
}

}  // namespace

TEST(DatabaseCheck, FileThatIsNoDatabaseFailsAndCountsAsFalse) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("x.mdb"));
    EXPECT_THROW(VerificaDatabase(path), Fallimento);
    writeBytes(path, QByteArray(8192, 'x'));
    EXPECT_THROW(VerificaDatabase(path), Fallimento);
    EXPECT_THROW(VerificaDatabase(folder.path()), Fallimento);
    EXPECT_FALSE(usable(path));
    EXPECT_EQ(bytesOf(path), QByteArray(8192, 'x'));
}
