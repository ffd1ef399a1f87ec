// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// Bytes of a file; the running test fails where it cannot be read.
inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// Replaces a file; the running test fails where it cannot be written.
inline void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(bytes), bytes.size());
}

inline QString dataPath(const QString& name) {
    return QStringLiteral(TEST_DATA_DIR "/") + name;
}

/// A JSON file under tests/data.
inline QJsonObject jsonOf(const QString& name) {
    const QJsonDocument document = QJsonDocument::fromJson(bytesOf(dataPath(name)));
    EXPECT_TRUE(document.isObject()) << name.toStdString();
    return document.object();
}

/// Its list "vectors", which must not be empty.
inline QJsonArray vectorsOf(const QString& name) {
    const QJsonArray vectors = jsonOf(name)[QLatin1String("vectors")].toArray();
    EXPECT_FALSE(vectors.isEmpty()) << name.toStdString();
    return vectors;
}

/// Shows a text in a failure message.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
