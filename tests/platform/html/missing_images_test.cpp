// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/MissingImages.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

namespace missing_images_test {

namespace {

std::string marked(const QString& html) {
    return html::markMissingImages(html, QStringLiteral("M!")).toStdString();
}

/// A folder with one picture, "c'è.png".
class MissingImages : public testing::Test {
  protected:
    MissingImages() {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly)) qFatal("no file");
    }

    QString path() const { return m_folder.filePath(QStringLiteral("c'è.png")); }

    QTemporaryDir m_folder;
};

TEST_F(MissingImages, AreMarkedInFrontOfTheirAddress) {
    EXPECT_EQ(marked("<p>è<img src=\"foto/1.jpg\" alt=x><IMG SRC=2.jpg>"),
              "<p>è<img src=\"M!foto/1.jpg\" alt=x><IMG SRC=M!2.jpg>");
    EXPECT_EQ(marked("<img src='file:///assente/a b.jpg'>"), "<img src='M!file:///assente/a b.jpg'>");
    EXPECT_EQ(marked("<img src=\"/assente/:::campo1:::.jpg\">"), "<img src=\"M!/assente/:::campo1:::.jpg\">");
    EXPECT_EQ(marked("<image src=1.jpg><input type=image src=2.jpg>"),
              "<image src=M!1.jpg><input type=image src=M!2.jpg>");
    EXPECT_EQ(marked("<td background='sfondo.gif'><img src=1.jpg background=2.jpg>"),
              "<td background='M!sfondo.gif'><img src=M!1.jpg background=M!2.jpg>");
}

TEST_F(MissingImages, OnAnotherMachineOrADeviceAreMissing) {
    EXPECT_EQ(marked("<img src=\"\\\\server\\foto.jpg\">"), "<img src=\"M!\\\\server\\foto.jpg\">");
    EXPECT_EQ(marked("<img src=file:///dev/zero>"), "<img src=M!file:///dev/zero>");
}

TEST_F(MissingImages, WhatIsThereStays) {
    for (const QString& address : {path(), "file://" + path(), "\n " + path(),
                                   QUrl::fromLocalFile(path()).toString(QUrl::FullyEncoded)}) {
        const QString html = "<img src=\"" + address + "\">";
        EXPECT_EQ(marked(html), html.toStdString());
    }
}

TEST_F(MissingImages, OtherAddressesStay) {
    for (const char* html : {"<img src=\"http://www.example.it/a.jpg\">", "<img src=cid:a>", "<img src=\"\">",
                             "<img>", "<img src=\"data:image/gif;base64,R0lG\">",
                             "<a href=assente.html>x</a>", "<script src=assente.js></script>",
                             "<!-- <img src=1.jpg> -->", "<textarea><img src=1.jpg></textarea>"})
        EXPECT_EQ(marked(html), html);
}

TEST_F(MissingImages, WhatOnlyTheBrowserCanJudgeStays) {
    EXPECT_EQ(marked("<img src=\"a&eacute;.jpg\"><img src=\"a&amp;b.jpg\">"),
              "<img src=\"a&eacute;.jpg\"><img src=\"M!a&amp;b.jpg\">");
    EXPECT_EQ(marked("<img src=1.jpg><base href=\"file:///home/\"><img src=/assente/1.jpg>"),
              "<img src=1.jpg><base href=\"file:///home/\"><img src=M!/assente/1.jpg>");
}

}  // namespace

}  // namespace missing_images_test
