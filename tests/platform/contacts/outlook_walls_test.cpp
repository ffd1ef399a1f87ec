// SPDX-License-Identifier: GPL-3.0-or-later
// The limits of an attacker who has taken over the reader of Outlook files.
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/contacts/ContactFolder.h"
#include "platform/contacts/HelperOutput.h"
#include "support/Vectors.h"

namespace outlook_walls_test {

using contacts::ContactFolder;
using contacts::readContactFolder;

namespace {

#ifdef VESTROLA_SANITIZED
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

class OutlookWalls : public testing::Test {
  protected:
    void SetUp() override {
        contacts::setOutlookHelper(TEST_BIN_DIR "/vestrola-pst");
        writeBytes(path("vittima"), "resta");
        qputenv("EVIL_VICTIM", path("vittima").toUtf8());
        qputenv("EVIL_FILE", path("nuovo").toUtf8());
        qputenv("ASAN_OPTIONS", "verify_asan_link_order=0");
    }
    void TearDown() override {
        contacts::setOutlookHelper({});
        for (const char* name : {"EVIL_VICTIM", "EVIL_FILE", "EVIL_DEED", "LD_PRELOAD", "ASAN_OPTIONS"})
            qunsetenv(name);
    }
    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// Reads with the compromised reader; `others` are preloaded before it.
    ContactFolder readTakenOver(const QByteArray& deed, const QByteArray& others = {}) const {
        qputenv("EVIL_DEED", deed);
        qputenv("LD_PRELOAD", others + " " EVIL_READER);
        auto folder = readContactFolder(path("x.pst"));
        qunsetenv("LD_PRELOAD");
        EXPECT_TRUE(folder.ok()) << folder.status().text().toStdString();
        return folder.ok() ? std::move(folder).value() : ContactFolder();
    }
    static QStringList deeds(const ContactFolder& folder) {
        QStringList all;
        for (std::size_t i = 0; i < folder.items.size(); ++i)
            all << folder.items[i]->email1Address;
        return all;
    }
    static QStringList expectedWalls() { return contacts::allWalls().mid(0, sanitized ? 2 : 3); }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(OutlookWalls, TakenOverReaderReachesNoFileNoSocketAndNoProgram) {
    const ContactFolder folder = readTakenOver("reach");
    EXPECT_EQ(deeds(folder), QStringList{"end"});
    EXPECT_EQ(folder.walls, expectedWalls());
    EXPECT_EQ(bytesOf(path("vittima")), QByteArray("resta"));
    EXPECT_FALSE(QFile::exists(path("nuovo")));
}

TEST_F(OutlookWalls, WithoutLandlockTheOtherWallsAreKeptAndThatIsReported) {
    const ContactFolder folder = readTakenOver("reach", NO_LANDLOCK);
    EXPECT_EQ(deeds(folder), QStringList{"end"});
    QStringList others = expectedWalls();
    others.removeAll("files");
    EXPECT_EQ(folder.walls, others);
    EXPECT_EQ(bytesOf(path("vittima")), QByteArray("resta"));
}

TEST_F(OutlookWalls, TakenOverReaderGetsNoMoreMemoryThanItsShare) {
    if (sanitized) GTEST_SKIP() << "the sanitizer's shadow takes more than any limit";
    EXPECT_EQ(deeds(readTakenOver("eat")), QStringList{"bounded"});
}

TEST_F(OutlookWalls, FloodOfEntriesIsBoundedAndItsCountNotTrusted) {
    struct rusage before {};
    struct rusage after {};
    getrusage(RUSAGE_SELF, &before);
    const ContactFolder folder = readTakenOver("flood");
    getrusage(RUSAGE_SELF, &after);
    EXPECT_EQ(folder.count, contacts::mostEntries);
    EXPECT_EQ(folder.items.size(), static_cast<std::size_t>(contacts::mostEntries));
    constexpr long mostGrowth = 100 * 1024;  // kilobytes
    EXPECT_TRUE(sanitized || after.ru_maxrss - before.ru_maxrss < mostGrowth);
}

TEST_F(OutlookWalls, AccentsAreReadWithAndWithoutLandlock) {
    const QString sample = SHARED_DIR "/pst/accents.pst";
    if (!QFile::exists(sample)) GTEST_SKIP() << "the sample Outlook files are not here";
    for (const char* loaded : {"", NO_LANDLOCK}) {
        qputenv("LD_PRELOAD", loaded);
        const auto folder = readContactFolder(sample);
        qunsetenv("LD_PRELOAD");
        ASSERT_TRUE(folder.ok());
        EXPECT_EQ(folder.value().items[3]->lastNameAndFirstName, "Tòlle, Màrgaret J.");
    }
}

}  // namespace outlook_walls_test
