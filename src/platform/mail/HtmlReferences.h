// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <vector>

namespace mail {

/// The references of an HTML body that the composition needs, found by reading its markup once, without
/// building a tree. Comments (conditional ones too) and the content of scripts are skipped.
struct HtmlReferences {
    struct Place {
        qsizetype from;    ///< offset in the body of the first octet
        qsizetype length;  ///< in octets
        QByteArray value;  ///< that text with its character references decoded
    };
    /// A link with a web, mail or telephone address.
    struct Link {
        QByteArray
            text;  ///< what the reader sees, images by their alternative texts; in one line, may be empty
        QByteArray address;  ///< character references decoded
    };
    static constexpr std::size_t mostLinks = 50;

    std::vector<Place>
        images;  ///< addresses in <img src>, background attributes and url() of styles, in order
    std::vector<Place> charsets;   ///< names of encodings that <meta> declares, in order
    std::vector<Place> addresses;  ///< web addresses in href and src, in order
    std::vector<Link> links;       ///< each pair of text and address once; the first mostLinks
    QByteArray alternativeTexts;   ///< of the images, a line each
    QByteArray unsubscribe;  ///< address of the first http, https or mailto link marked rel="unsubscribe"
    bool oneClick = false;   ///< that link is marked "one-click" as well
};

HtmlReferences findReferences(const QByteArray& html);

}  // namespace mail
