// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <random>

#include "platform/mail/QuotedPrintable.h"
#include "support/Repetitions.h"

namespace quoted_printable_test {

namespace {

/// The same rules, octet by octet.
QByteArray octetByOctet(const QByteArray& text) {
    QByteArray out;
    qsizetype column = 0;
    const auto put = [&](const QByteArray& piece) {
        if (column + piece.size() > 75) {
            out += "=\r\n";
            column = 0;
        }
        out += piece;
        column += piece.size();
    };
    const auto encoded = [](char c) { return '=' + QByteArray(1, c).toHex().toUpper(); };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text[i] == '\0' ? ' ' : text[i];
        const char following = i + 1 < text.size() ? text[i + 1] : '\n';
        const bool endsLine = following == '\r' || following == '\n';
        const bool startsLine = column == 0 || column + 1 > 75;
        const QByteArray start = text.mid(i, 5).replace('\0', ' ');
        if (c == '\r' || c == '\n') {
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
            out += "\r\n";
            column = 0;
        } else if (c == ' ' || c == '\t') {
            put(endsLine ? encoded(c) : QByteArray(1, c));
        } else if (c < '!' || c > '~' || c == '=' || (startsLine && (c == '.' || start == "From "))) {
            put(encoded(c));
        } else {
            put(QByteArray(1, c));
        }
    }
    return out;
}

QByteArray quoted(const QByteArray& text) {
    QByteArray out = "in front";
    mail::appendQuotedPrintable(out, text);
    return out.mid(8);
}

TEST(QuotedPrintable, IsTheSameAsOctetByOctet) {
    // Long plain stretches, so that lines break within them, and each octet in between
    std::mt19937 random(7);
    for (int round = 0; round < testing_support::repetitions(30000); ++round) {
        QByteArray text;
        for (auto stretches = random() % 8; stretches > 0; --stretches) {
            for (auto left = random() % 90; left > 0; --left)
                text += "abc .From<>~!"[random() % 13];
            for (auto left = random() % 4; left > 0; --left)
                text += random() % 2 ? "\r\n \t.=\0From"[random() % 11] : static_cast<char>(random());
        }
        ASSERT_EQ(quoted(text).toStdString(), octetByOctet(text).toStdString()) << text.toHex().toStdString();
    }
}

TEST(QuotedPrintable, IsTheSameAtEachLength) {
    for (const char octet : {'a', ' ', '.', '=', '\n', '\xE8'})
        for (qsizetype length = 0; length < 200; ++length)
            for (const char* const end : {"", "x", " ", "\n", "=", "\x7F", "\x80"}) {
                const QByteArray text = QByteArray(length, octet) + end;
                ASSERT_EQ(quoted(text).toStdString(), octetByOctet(text).toStdString()) << length << end;
            }
}

}  // namespace

}  // namespace quoted_printable_test
