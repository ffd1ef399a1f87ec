// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/DkimRecord.h"

#include <gtest/gtest.h>

namespace dkim_record_test {

using namespace policy;

namespace {

TEST(DkimRecord, IsBelowTheDomain) {
    EXPECT_EQ(dkimRecordName("Uno", "Example.it"), "uno._domainkey.example.it");
}

TEST(DkimRecord, EveryTagIsRead) {
    const auto record = readDkimRecord(
        "v=DKIM1; h=sha1 : sha256; k=rsa; n=a note; s=email:other; t=y:s; p=AQ ID\tBA==; x=1;");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->key, QByteArray("\1\2\3\4"));
    EXPECT_EQ(record->keyType, "rsa");
    EXPECT_TRUE(record->takesSha256);
    EXPECT_TRUE(record->forMail);
    EXPECT_TRUE(record->testing);
}

TEST(DkimRecord, WhatIsLeftOutHasItsDefault) {
    const auto record = readDkimRecord("p=AQIDBA==");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->keyType, "rsa");
    EXPECT_TRUE(record->takesSha256);
    EXPECT_TRUE(record->forMail);
    EXPECT_FALSE(record->testing);
}

TEST(DkimRecord, OtherUsesAreReported) {
    EXPECT_FALSE(readDkimRecord("h=sha1; p=AQID")->takesSha256);
    EXPECT_FALSE(readDkimRecord("s=tlsrpt; p=AQID")->forMail);
    EXPECT_TRUE(readDkimRecord("s=*; p=AQID")->forMail);
    EXPECT_EQ(readDkimRecord("k=ed25519; p=AQID")->keyType, "ed25519");
}

TEST(DkimRecord, EmptyKeyIsAWithdrawnOne) {
    const auto record = readDkimRecord("v=DKIM1; p=");
    ASSERT_TRUE(record);
    EXPECT_TRUE(record->key.isEmpty());
}

TEST(DkimRecord, FaultsMakeItVoid) {
    for (const char* text : {"", "v=DKIM1", "v=DKIM2; p=AQID", "p=AQID; v=DKIM1", "p=AQID; p=AQID", "p=A*ID",
                             "p", "hello", "v=spf1 -all", "p=AQID; k\x01=rsa", "p=AQID; k=\xc3\xa8"})
        EXPECT_FALSE(readDkimRecord(text)) << text;
}

TEST(DkimRecord, WhatIsPublishedIsReadAgain) {
    const QByteArray key(294, '\x7e');
    const auto record = readDkimRecord(dkimRecordText(key));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->key, key);
}

}  // namespace
}  // namespace dkim_record_test
