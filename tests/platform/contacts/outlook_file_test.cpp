// SPDX-License-Identifier: GPL-3.0-or-later
// The helper itself, over real Outlook files and damaged copies of them.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <thread>

#include "platform/contacts/ContactFolder.h"
#include "platform/contacts/VCard.h"
#include "support/Repetitions.h"
#include "support/Vectors.h"

namespace outlook_file_test {

using contacts::ContactFolder;
using contacts::readContactFolder;
using namespace std::chrono_literals;

namespace {

class OutlookHelper : public testing::Test {
  protected:
    void SetUp() override {
        if (!QFile::exists(sample("accents.pst"))) GTEST_SKIP() << "the sample Outlook files are not here";
        contacts::setOutlookHelper(TEST_BIN_DIR "/vestrola-pst");
        ASSERT_TRUE(QFile::exists(contacts::outlookHelper()));
    }
    void TearDown() override { contacts::setOutlookHelper({}); }

    static QString sample(const QString& name) { return SHARED_DIR "/pst/" + name; }

    static ContactFolder read(const QString& name) {
        auto folder = readContactFolder(sample(name));
        EXPECT_TRUE(folder.ok()) << name.toStdString() << ": " << folder.status().text().toStdString();
        return folder.ok() ? std::move(folder).value() : ContactFolder();
    }
};

/// What an independent reader finds, as lines of the texts that a vCard and a contact share.
QStringList contactsOfReadpst(const QString& file) {
    const QTemporaryDir out;
    QProcess::execute("readpst", {"-q", "-r", "-cv", "-tc", "-o", out.path(), file});
    QStringList lines;
    QDirIterator walk(out.path(), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        // An absent text is "(null)" in its output.
        for (const auto& card : contacts::readVCards(bytesOf(walk.next()).replace("(null)", ""))) {
            lines.append(card.emailAddress + '|' + card.companyName + '|' + card.businessTelephone);
        }
    }
    return lines;
}

QStringList contactsOf(const ContactFolder& folder) {
    QStringList lines;
    for (std::size_t i = 0; i < folder.items.size(); ++i) {
        const auto item = folder.items[i];
        if (!item) continue;
        lines.append(item->email1Address + '|' + item->companyName + '|' + item->businessTelephoneNumber);
    }
    return lines;
}

}  // namespace

TEST_F(OutlookHelper, ContactsAreThoseOfAnIndependentReader) {
    for (const char* name : {"a_SampleContacts1.pst", "accents.pst", "j_dist-list.pst", "j_passworded.pst"}) {
        const QStringList expected = contactsOfReadpst(sample(name));
        EXPECT_FALSE(expected.isEmpty()) << name;
        EXPECT_EQ(contactsOf(read(name)), expected) << name;
    }
}

TEST_F(OutlookHelper, EightValuesOfAContact) {
    const ContactFolder folder = read("accents.pst");
    EXPECT_EQ(folder.count, 6);
    ASSERT_EQ(folder.items.size(), 6u);
    ASSERT_TRUE(folder.items[3]);
    EXPECT_EQ(folder.items[3]->email1Address, "MàrgaretJTòlle@dayrep.com");
    EXPECT_EQ(folder.items[3]->companyName, "Ada'tàz");
    EXPECT_EQ(folder.items[3]->lastNameAndFirstName, "Tòlle, Màrgaret J.");
    EXPECT_EQ(folder.items[3]->businessAddress, "4 Darwinia Loop EIGHTY MILE BEACH WA 6725");
    EXPECT_EQ(folder.items[3]->businessTelephoneNumber, "(08)9080-1183");
    EXPECT_EQ(folder.items[3]->businessFaxNumber, "");
}

TEST_F(OutlookHelper, DistributionListCountsAndIsNoContact) {
    const ContactFolder folder = read("j_dist-list.pst");
    EXPECT_EQ(folder.count, 2);
    EXPECT_EQ(contactsOf(folder).size(), 1);
}

TEST_F(OutlookHelper, FileWithoutContactsFolderIsNotReached) {
    EXPECT_FALSE(readContactFolder(sample("s_test_ansi.pst")).ok());
}

TEST_F(OutlookHelper, WhatIsNoOutlookFileIsNotReached) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("x.pst");
    EXPECT_FALSE(readContactFolder(path).ok());
    EXPECT_FALSE(readContactFolder(folder.path()).ok());
    for (const QByteArray& bytes : {QByteArray(), QByteArray("!BDN"), QByteArray(100000, 'x')}) {
        writeBytes(path, bytes);
        EXPECT_FALSE(readContactFolder(path).ok());
    }
}

TEST_F(OutlookHelper, WhatIsNoOrdinaryOutlookFileIsNotReached) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("x.pst");
    writeBytes(path, "!BDN");
    ASSERT_TRUE(QFile::resize(path, 2LL << 30));
    EXPECT_FALSE(readContactFolder(path).ok());
    for (const char* target : {"/proc/self/mem", "/dev/zero"}) {
        ASSERT_TRUE(QFile::remove(path) && QFile::link(target, path));
        EXPECT_FALSE(readContactFolder(path, 5s).ok()) << target;
    }
}

// At any moment of the change the helper reads valid entries, or none.
TEST_F(OutlookHelper, FileThatChangesMeanwhileNeverHarms) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("x.pst");
    const QByteArray good = bytesOf(sample("accents.pst"));
    const QStringList expected = contactsOf(read("accents.pst"));
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        for (int i = 1; !stop; ++i) {
            writeBytes(path, good);
            std::this_thread::sleep_for(std::chrono::milliseconds(i % 20));
            EXPECT_TRUE(QFile::resize(path, good.size() * (i % 10) / 10));
        }
    });
    for (int reading = 0; reading < 60; ++reading) {
        const auto found = readContactFolder(path, 5s);
        if (!found.ok()) continue;
        EXPECT_LE(found.value().items.size(), 6u);
        for (const QString& contact : contactsOf(found.value()))
            EXPECT_TRUE(expected.contains(contact) || contact.startsWith('|')) << contact.toStdString();
    }
    stop = true;
    writer.join();
    writeBytes(path, good);
    EXPECT_EQ(contactsOf(ContactFolder(readContactFolder(path).value())), expected);
}

TEST_F(OutlookHelper, DamagedFilesNeverHarm) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("damaged.pst");
    unsigned seed = 7;
    int whole = 0, cut = 0, refused = 0;
    constexpr int variants = testing_support::repetitions(100);
    for (const char* name : {"a_SampleContacts1.pst", "accents.pst", "j_dist-list.pst"}) {
        const QByteArray good = bytesOf(sample(name));
        const std::size_t all = ContactFolder(read(name)).items.size();
        for (int variant = 0; variant < variants; ++variant) {
            QByteArray bytes = good;
            const int changes = 1 << (variant % 10);
            for (int i = 0; i < changes; ++i) {
                seed = seed * 1103515245u + 12345u;
                bytes[static_cast<qsizetype>((seed >> 4) % static_cast<unsigned>(bytes.size()))] =
                    static_cast<char>(seed >> 24);
            }
            if (variant % 10 == 9) bytes.truncate(static_cast<qsizetype>(seed % bytes.size()));
            writeBytes(path, bytes);
            const auto found = readContactFolder(path, 5s);
            if (!found.ok()) {
                ++refused;
            } else {
                EXPECT_LE(found.value().items.size(), all);
                ++(found.value().items.size() == all ? whole : cut);
            }
        }
    }
    EXPECT_EQ(whole + cut + refused, 3 * variants);
    EXPECT_GT(whole, 0);
    EXPECT_GT(refused, 0);
    printf("%d whole, %d cut short, %d not reached\n", whole, cut, refused);
}

}  // namespace outlook_file_test
