// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/ConnectionText.h"

#include <gtest/gtest.h>

namespace connection_text_test {

namespace {

using ado::ConnectionText;

ConnectionText parsed(const char* text) {
    const auto result = ConnectionText::parse(QString::fromUtf8(text));
    EXPECT_TRUE(result.ok()) << text << ": " << result.status().text().toStdString();
    return result.ok() ? result.value() : ConnectionText();
}

ErrorCode failure(const char* text) {
    return ConnectionText::parse(QString::fromUtf8(text)).status().code();
}

}  // namespace

TEST(ConnectionText, BlanksAroundTheEqualSignsDoNotCount) {
    EXPECT_EQ(parsed("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = /dati/lista.mdb").path,
              QStringLiteral("/dati/lista.mdb"));
    EXPECT_EQ(parsed("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=lista.mdb;").path,
              QStringLiteral("lista.mdb"));
}

TEST(ConnectionText, AClosingSemicolonAndTwoInARowAreAccepted) {
    const auto text = parsed(
        "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = a b.mdb;;Jet OLEDB:Database Password=Segreta");
    EXPECT_EQ(text.path, QStringLiteral("a b.mdb"));
    EXPECT_EQ(text.password, QStringLiteral("Segreta"));
}

TEST(ConnectionText, KeysAreComparedWithoutCase) {
    EXPECT_EQ(parsed("PROVIDER=microsoft.jet.oledb.4.0;DATA  SOURCE=x.mdb").path, QStringLiteral("x.mdb"));
}

TEST(ConnectionText, ThePathIsTakenLiterally) {
    EXPECT_EQ(parsed("Data Source = ../Lista d'oro = nuova.mdb").path,
              QStringLiteral("../Lista d'oro = nuova.mdb"));
    EXPECT_EQ(parsed("Data Source = C:\\dati\\x.mdb").path, QStringLiteral("C:\\dati\\x.mdb"));
}

TEST(ConnectionText, APathMayContainSemicolons) {
    const QString start = ado::connectionPrefix;
    for (const char* path :
         {"/dati/a;b.mdb", "/dati/a;b=c.mdb", "/a; b/;c;d.mdb", "/dati/;.mdb", "/a;;b.mdb"}) {
        for (const char* end : {"", ";", " ; "})
            EXPECT_EQ(parsed((start + path + end).toUtf8().constData()).path, QString(path)) << path << end;
        const auto text = parsed((start + path + ";Jet OLEDB:Database Password=x").toUtf8().constData());
        EXPECT_EQ(text.path, QString(path));
        EXPECT_EQ(text.password, QString("x"));
        EXPECT_EQ(parsed((start + path + ";Mode = Read;").toUtf8().constData()).path, QString(path));
    }
}

TEST(ConnectionText, AQuotedValueMayContainSemicolonsAndDoubledQuotes) {
    EXPECT_EQ(parsed("Data Source = \"a;b\"\"c.mdb\" ; Mode=Read").path, QStringLiteral("a;b\"c.mdb"));
    EXPECT_EQ(parsed("Data Source='a;b.mdb'").path, QStringLiteral("a;b.mdb"));
}

TEST(ConnectionText, TheLastOfTwoEqualKeysCounts) {
    EXPECT_EQ(parsed("Data Source=a.mdb;Data Source=b.mdb").path, QStringLiteral("b.mdb"));
}

TEST(ConnectionText, WhatIsNoListOfKeysAndValuesIsRefused) {
    EXPECT_EQ(failure("lista.mdb"), ErrorCode::SyntaxError);
    EXPECT_EQ(failure("Mode=Read;rubbish"), ErrorCode::SyntaxError);
    EXPECT_EQ(failure("=a.mdb"), ErrorCode::SyntaxError);
    EXPECT_EQ(failure("Data Source=\"a.mdb"), ErrorCode::SyntaxError);
    EXPECT_EQ(failure("Data Source=\"a.mdb\" b"), ErrorCode::SyntaxError);
}

TEST(ConnectionText, ATextWithoutDataSourceNamesNoFile) {
    EXPECT_EQ(failure(""), ErrorCode::FileNotFound);
    EXPECT_EQ(failure("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = "), ErrorCode::FileNotFound);
}

TEST(ConnectionText, AnotherProviderIsRefused) {
    EXPECT_EQ(failure("Provider=SQLOLEDB;Data Source=x"), ErrorCode::NotSupported);
}

}  // namespace connection_text_test
