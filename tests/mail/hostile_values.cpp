#include "mail/hostile_values.h"

#include <QStringList>

namespace compose {

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
