// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QString>

#include "platform/mail/compose_support.h"

namespace compose {

inline QByteArray run(const QString& program, const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(300000)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString()
                                     << process.readAllStandardOutput().toStdString();
    return process.readAllStandardOutput();
}

/// Puts a new key and its selector into the folder and returns the text of its DNS record.
inline QByteArray makeDkimKey(const QString& folder, const QString& domain, const QByteArray& selector,
                              const QStringList& kind = {"RSA", "-pkeyopt", "rsa_keygen_bits:2048"}) {
    QDir().mkpath(folder);
    const QString pem = folder + '/' + domain + ".pem";
    run("openssl", QStringList{"genpkey", "-out", pem, "-algorithm"} + kind);
    makeFile(folder + '/' + domain + ".selector", selector + "\r\n");
    return "v=DKIM1; k=rsa; p=" +
           run("openssl", {"pkey", "-in", pem, "-pubout", "-outform", "DER"}).toBase64();
}

}  // namespace compose
