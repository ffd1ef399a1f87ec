// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/hostile_values.h"

#include <QStringList>

namespace compose {

QList<ValueKind> valueKinds() {
    return {{"Plain", "Mario Rossi"},
            {"Empty", QString()},
            {"Blank", "   "},
            {"Accented", QStringLiteral("Niccolò Però, così è")},
            {"Emoji", QStringLiteral("🎉 Perché no? 👨‍👩‍👧‍👦 日本")},
            {"BlanksAround", "  due  blanks  "},
            {"LongWords", QStringLiteral("perché così tante parole ").repeated(400)},
            {"LongPlainWords", QString("parole e ancora parole ").repeated(400).trimmed()},
            {"LongWord", QString(20000, 'x')},
            {"LongQuotes", QString(3000, '"')},
            {"LongEmoji", QStringLiteral("👍").repeated(3000)},
            {"Quotes", "\"Re\" \\ (commento) <a@b.it>, [x]; :y@z"},
            {"EncodedWords", "=?utf-8?B?eA==?= =?x?q?y?= =?"},
            {"LineEnds", "x\r\nBcc: spia@example.it\r\n\r\nX-A: b\rX-B: c\nX-C: d\n\n.\r\nRSET\r\n"},
            {"Controls",
             QString("a") + QChar(0) + "b\tc\v\f\x1B[0m" + QChar(0x85) + QChar(0x2028) + QChar(0x2029)},
            {"BrokenCharacters", QString("a") + QChar(0xD83D) + "b" + QChar(0xDC4D) + QChar(0xFFFE)},
            {"Dots", ".\r\n..\r\n...\r\n.x\r\n."},
            {"OnlyDot", "."},
            {"FromLines", "From a\r\nFrom b\r\n\r\nFrom c"},
            {"NoFinalLineEnd", "riga\r\nultima"},
            {"Boundaries", "--=_a.x\r\n--=_m\r\n--=_\r\n=_"},
            {"Markup", "</p><meta charset=x><img src='/etc/passwd'><a rel=unsubscribe href='https://y.it/'>"},
            {"RightToLeft", QStringLiteral("שלום \u202E abc \u200F")},
            {"Placeholders", ":::nom::: %1 %s {0}"}};
}

QString HostileValues::text(int most) {
    static const QStringList pieces = {
        "a",
        "parola",
        " ",
        "  ",
        "è",
        "Niccolò",
        "👍",
        "日本",
        "é̀",
        "=?utf-8?q?x?=",
        "=",
        "?=",
        "_",
        "\"",
        "\\",
        "<",
        ">",
        "@",
        ",",
        ";",
        ":",
        "(",
        ")",
        "[",
        "]",
        ".",
        "\r\n",
        "\r",
        "\n",
        "\t",
        "--",
        "--=_",
        "=_",
        "\r\nBcc: x@y.it",
        "\r\n\r\n",
        "\r\n.\r\n",
        "From ",
        "\nFrom ",
        ":::nom:::",
        "&amp;",
        "<img src='/etc/passwd'>",
        "<a rel=unsubscribe href='http://x.it/\r\nA: b'>",
        "<meta charset=x>",
        "<!--",
        "-->",
        "<style>",
        "\u00A0",
        "\u2028",
        "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"};
    QString made;
    for (int i = below(most + 1); i > 0; --i) {
        const int kind = below(20);
        if (kind == 0) {
            made += QChar(below(0x20));
        } else if (kind == 1) {
            made += QChar(below(0xD800));
        } else if (kind == 2) {
            made += QChar(0xD800 + below(0x800));
        } else {
            made += pieces[below(static_cast<int>(pieces.size()))];
        }
    }
    return made;
}

QString HostileValues::address() {
    static const QStringList addresses = {"m.rossi@example.it", "o'neil+list@sub.example.it",
                                          "\"a b\"@example.it", "x@città.example", "a@[192.0.2.1]"};
    return addresses[below(static_cast<int>(addresses.size()))];
}

}  // namespace compose
