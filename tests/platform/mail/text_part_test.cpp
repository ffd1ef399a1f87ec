// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <random>

#include "platform/mail/TextPart.h"

namespace text_part_test {

namespace {

/// Line by line: at most two empty ones in a row.
QString lineByLine(const QString& text) {
    QString out;
    int empty = 0;
    for (qsizetype from = 0; from < text.size();) {
        qsizetype end = from;
        while (end < text.size() && text[end] != '\r' && text[end] != '\n')
            ++end;
        const bool isEmpty = mail::isBlankText(QStringView(text).sliced(from, end - from));
        if (text.mid(end, 2) == "\r\n") ++end;
        if (end < text.size()) ++end;
        empty = isEmpty ? empty + 1 : 0;
        if (empty <= 2) out += text.mid(from, end - from);
        from = end;
    }
    return out;
}

TEST(TextPart, GapsAreTheSameAsLineByLineWhateverEndsTheLines) {
    const std::array<QString, 9> pieces = {"\r", "\n",          "\r\n", "\r\n\r\n\r\n", " ", "testo",
                                           "\t", QChar(0x200B), ""};
    std::mt19937 random(13);
    for (int round = 0; round < 20000; ++round) {
        QString text;
        for (auto left = random() % 25; left > 0; --left)
            text += pieces[random() % pieces.size()];
        ASSERT_EQ(mail::withoutLongGaps(text).toStdString(), lineByLine(text).toStdString());
    }
}

}  // namespace

}  // namespace text_part_test
