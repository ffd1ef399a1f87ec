#pragma once

#include <QByteArray>
#include <vector>

namespace mail {

/// What the composition has to know about an HTML body, found by reading its tags once, without building a
/// tree. Comments (conditional ones too) and the content of scripts are passed over.
struct HtmlReferences {
    struct Place {
        qsizetype from;    ///< offset in the body of the first octet
        qsizetype length;  ///< in octets
        QByteArray value;  ///< that text with its character references decoded
    };

    std::vector<Place>
        images;  ///< addresses in <img src>, background attributes and url() of styles, in order
    std::vector<Place> charsets;  ///< names of encodings that <meta> declares, in order
    QByteArray unsubscribe;  ///< address of the first http, https or mailto link marked rel="unsubscribe"
};

HtmlReferences findReferences(const QByteArray& html);

}  // namespace mail
