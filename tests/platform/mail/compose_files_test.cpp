// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/mail/compose_support.h"
#include "support/WholeText.h"

namespace compose_files_test {

using namespace compose;

namespace {

class ComposeFiles : public ::testing::Test {
  protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QByteArray compose(const mail::MessageData& message) {
        const auto composed = m_composer.compose(message);
        EXPECT_TRUE(composed.ok()) << composed.status().text().toStdString();
        QByteArray data = composed.ok() ? wholeOf(composed.value().text) : QByteArray();
        EXPECT_EQ(complaintAbout(data).toStdString(), "");
        return data;
    }

    // A message whose template and body are this HTML
    static mail::MessageData withHtml(const QString& html) {
        auto message = plainMessage();
        message.BodyHtml = message.TemplateHtml = html;
        return message;
    }

    static qsizetype imagesIn(const QByteArray& data) { return data.count("Content-Id: <"); }

    QTemporaryDir m_folder;
    mail::Composer m_composer;
};

using ComposeAttachments = ComposeFiles;
using ComposeImages = ComposeFiles;

TEST_F(ComposeAttachments, MixedContainsTheRest) {
    auto message = plainMessage();
    message.Attachments = {{makeFile(path("listino.pdf"), "%PDF-1.4 x"), "listino.pdf"}};
    const QByteArray data = compose(message);
    EXPECT_TRUE(header(data, "Content-Type").startsWith("multipart/mixed;"));
    const qsizetype alternative = data.indexOf("Content-Type: multipart/alternative;");
    const qsizetype attachment = data.indexOf("Content-Type: application/pdf;\r\n name=\"listino.pdf\"\r\n");
    EXPECT_GT(alternative, 0);
    EXPECT_GT(attachment, alternative);
    EXPECT_TRUE(data.contains("Content-Disposition: attachment;\r\n filename=\"listino.pdf\"\r\n"));
    EXPECT_TRUE(data.contains(QByteArray("%PDF-1.4 x").toBase64()));
}

TEST_F(ComposeAttachments, OrderOfTheListIsKept) {
    auto message = plainMessage();
    for (const char* name : {"b.zip", "a.zip", "c.zip"}) {
        message.Attachments.Add(makeFile(path(name), name), name);
    }
    const QByteArray data = compose(message);
    EXPECT_LT(data.indexOf("filename=\"b.zip\""), data.indexOf("filename=\"a.zip\""));
    EXPECT_LT(data.indexOf("filename=\"a.zip\""), data.indexOf("filename=\"c.zip\""));
}

TEST_F(ComposeAttachments, NameBeyondAsciiGoesByItsStandardWithAPlainFallback) {
    auto message = plainMessage();
    message.Attachments = {{makeFile(path("x"), "x"), QStringLiteral("Offerta è città 👍.pdf")}};
    const QByteArray data = compose(message);
    EXPECT_TRUE(data.contains("\r\n filename*=utf-8''Offerta%20%C3%A8%20citt%C3%A0%20%F0%9F%91%8D.pdf\r\n"))
        << data.toStdString();
    EXPECT_TRUE(data.contains("name=\"Offerta e citta _.pdf\"")) << data.toStdString();
}

TEST_F(ComposeAttachments, NameWithNulsHasATypeAllTheSame) {
    auto message = plainMessage();
    message.Attachments = {{makeFile(path("x"), "x"), "x" + QString(16, u'\0') + ".pdf"}};
    EXPECT_TRUE(compose(message).contains("Content-Type: application/pdf;\r\n name=\"x .pdf\"\r\n"));
}

TEST_F(ComposeAttachments, FallbackOfANameWithManyBlanksStaysPlain) {
    auto message = plainMessage();
    const QString file = makeFile(path("x"), "x");
    message.Attachments = {{file, "Listino  2026 .pdf"}, {file, QString(59, u'a') + " b"}};
    const QByteArray data = compose(message);
    EXPECT_TRUE(data.contains("\r\n name=\"Listino 2026 .pdf\"\r\n")) << data.toStdString();
    EXPECT_TRUE(data.contains("\r\n filename*=utf-8''Listino%20%202026%20.pdf\r\n")) << data.toStdString();
    EXPECT_TRUE(data.contains("\r\n name=\"" + QByteArray(59, 'a') + "\"\r\n")) << data.toStdString();
}

TEST_F(ComposeAttachments, NameShowsNoFoldersAndAddsNoHeader) {
    auto message = plainMessage();
    const QString file = makeFile(path("x"), "x");
    message.Attachments = {
        {file, "C:\\dati\\a.zip"}, {file, "/etc/b.zip"}, {file, "c\r\nX-A: b\".zip"}, {file, ""}};
    const QByteArray data = compose(message);
    EXPECT_TRUE(data.contains("filename=\"a.zip\"\r\n"));
    EXPECT_TRUE(data.contains("filename=\"b.zip\"\r\n"));
    EXPECT_FALSE(data.contains("\nX-A:"));
    EXPECT_TRUE(data.contains("filename=\"x\"\r\n"));
}

TEST_F(ComposeAttachments, NameThatQuotesLengthenGoesInSections) {
    auto message = plainMessage();
    const QString file = makeFile(path("x"), "x");
    message.Attachments = {{file, QString(30, u'"')}, {file, QString(31, u'"')}};
    const QByteArray data = compose(message);
    EXPECT_TRUE(data.contains("\r\n filename=\"" + QByteArray("\\\"").repeated(30) + "\"\r\n"))
        << data.toStdString();
    EXPECT_TRUE(data.contains("\r\n filename*0*=utf-8''%22%22")) << data.toStdString();
    EXPECT_TRUE(data.contains("\r\n filename*1*=%22")) << data.toStdString();
}

TEST_F(ComposeAttachments, TextDeclaresItsEncodingOnlyWhereItIsKnown) {
    auto message = plainMessage();
    message.Attachments = {{makeFile(path("u.txt"), "perch\xC3\xA9"), "u.txt"},
                           {makeFile(path("w.txt"), "perch\xE9"), "w.txt"}};
    const QByteArray data = compose(message);
    EXPECT_TRUE(data.contains("Content-Type: text/plain; charset=utf-8;\r\n name=\"u.txt\"\r\n"))
        << data.toStdString();
    EXPECT_TRUE(data.contains("Content-Type: application/octet-stream;\r\n name=\"w.txt\"\r\n"));
}

TEST_F(ComposeAttachments, MessageGoesAsPlainOctets) {
    auto message = plainMessage();
    message.Attachments = {{makeFile(path("m.eml"), "From: a\r\n\r\nb"), "m.eml"}};
    EXPECT_TRUE(compose(message).contains("Content-Type: application/octet-stream;\r\n name=\"m.eml\"\r\n"));
}

TEST_F(ComposeAttachments, EmptyFileIsAnEmptyPart) {
    auto message = plainMessage();
    message.Attachments = {{makeFile(path("v.zip"), ""), "v.zip"}};
    EXPECT_TRUE(compose(message).contains("filename=\"v.zip\""));
}

TEST_F(ComposeAttachments, FileThatCannotBeReadFailsTheMessage) {
    auto message = plainMessage();
    message.Attachments = {{path("assente.pdf"), "assente.pdf"}};
    const auto missing = m_composer.compose(message);
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.status().code(), ErrorCode::FileNotFound);
    EXPECT_TRUE(missing.status().text().contains("assente.pdf"));
    message.Attachments = {{m_folder.path(), "cartella"}};
    EXPECT_FALSE(m_composer.compose(message).ok());
}

TEST_F(ComposeAttachments, FileThatIsTooLargeFailsTheMessageUnread) {
    auto message = plainMessage();
    const QString large = makeFile(path("video.bin"), "");
    ASSERT_TRUE(QFile::resize(large, (qint64{512} << 20) + 1));
    message.Attachments = {{large, "video.bin"}};
    const auto composed = m_composer.compose(message);
    ASSERT_FALSE(composed.ok());
    EXPECT_EQ(composed.status().code(), ErrorCode::RecordTooLarge);
}

TEST_F(ComposeAttachments, FileThatWasNotAgreedToFailsTheMessageEvenWhenItWasReadBefore) {
    auto message = plainMessage();
    const QString file = makeFile(path("a.bin"), "prima");
    message.Attachments = {{file, "a.bin"}};
    EXPECT_TRUE(m_composer.compose(message).ok());
    message.FilesToCarry = QStringList();
    const auto refused = m_composer.compose(message);
    ASSERT_FALSE(refused.ok());
    EXPECT_EQ(refused.status().code(), ErrorCode::PathAccess);
    message.FilesToCarry = QStringList{QFileInfo(file).canonicalFilePath()};
    EXPECT_TRUE(m_composer.compose(message).ok());
}

TEST_F(ComposeAttachments, ChangedFileIsReadAgainAndUnchangedOneIsNot) {
    auto message = plainMessage();
    const QString file = makeFile(path("a.bin"), "prima");
    message.Attachments = {{file, "a.bin"}};
    EXPECT_TRUE(compose(message).contains(QByteArray("prima").toBase64()));

    QFile handle(file);
    ASSERT_TRUE(handle.open(QIODevice::ReadWrite));
    const auto changedAt = handle.fileTime(QFile::FileModificationTime);
    handle.write("PRIMA");
    handle.flush();
    ASSERT_TRUE(handle.setFileTime(changedAt, QFile::FileModificationTime));
    handle.close();
    EXPECT_TRUE(compose(message).contains(QByteArray("prima").toBase64()));

    makeFile(file, "dopo!!");
    EXPECT_TRUE(compose(message).contains(QByteArray("dopo!!").toBase64()));
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_FALSE(m_composer.compose(message).ok());
}

TEST_F(ComposeImages, ImageTravelsInsideTheMessage) {
    const QString file = makeFile(path("logo.png"), pngContent());
    const QByteArray data = compose(withHtml("<p>x<img src=\"" + file + "\"></p>"));
    EXPECT_TRUE(
        header(data, "Content-Type").startsWith("multipart/related; type=\"multipart/alternative\";"));
    EXPECT_TRUE(data.contains("Content-Type: image/png;\r\n name=\"logo.png\"\r\n"));
    EXPECT_TRUE(data.contains("Content-Disposition: inline;\r\n filename=\"logo.png\"\r\n"));
    const qsizetype from = data.indexOf("Content-Id: <") + 13;
    const QByteArray contentId = data.mid(from, data.indexOf('>', from) - from);
    EXPECT_TRUE(QByteArray(data).replace("=\r\n", "").contains("src=3D\"cid:" + contentId + "\""));
    EXPECT_FALSE(data.contains("file:"));
}

TEST_F(ComposeImages, EveryWayToWriteThePathIsUnderstood) {
    const QString file = makeFile(path("a b&c.png"), pngContent());
    QString percent = file;
    percent.replace(" ", "%20");
    QString backward = file;
    backward.replace("/", "\\");
    QString escaped = file;
    escaped.replace("&", "&amp;");
    for (const QString& address : {"file://" + percent, "file://localhost" + percent, file, backward, escaped,
                                   "file:///" + QString(backward).mid(1), "FILE:" + percent}) {
        EXPECT_EQ(imagesIn(compose(withHtml("<img src='" + address + "'>"))), 1) << address.toStdString();
    }
}

TEST_F(ComposeImages, SameImageIsEmbeddedOnce) {
    const QString file = makeFile(path("a.png"), pngContent());
    const QByteArray data =
        compose(withHtml("<body background='" + file + "'><img src='" + file + "'><img src='file://" + file +
                         "'><p style=\"background:url(" + file + ")\">"));
    EXPECT_EQ(imagesIn(data), 1);
    EXPECT_EQ(QByteArray(data).replace("=\r\n", "").count("cid:"), 4);
}

TEST_F(ComposeImages, ImageOfAStyleSheetIsEmbedded) {
    const QString file = makeFile(path("a.png"), pngContent());
    EXPECT_EQ(imagesIn(compose(withHtml("<style>p{background:url(\"" + file + "\")}</style>"))), 1);
}

TEST_F(ComposeImages, FiveKindsOfImageAreIdentifiedByTheirContent) {
    const std::vector<std::pair<QByteArray, QByteArray>> kinds = {{"image/png", pngContent()},
                                                                  {"image/jpeg", "\xFF\xD8\xFF\xE0 JFIF"},
                                                                  {"image/gif", "GIF89a........"},
                                                                  {"image/bmp", "BM" + QByteArray(40, 'x')},
                                                                  {"image/webp", "RIFF1234WEBPVP8 "}};
    for (const auto& [type, content] : kinds) {
        const QString file = makeFile(path("immagine"), content);
        EXPECT_TRUE(compose(withHtml("<img src='" + file + "'>")).contains("Content-Type: " + type))
            << type.toStdString();
    }
}

TEST_F(ComposeImages, WhatIsNoImageStaysAReference) {
    const QString file = makeFile(path("segreto.png"), "root:x:0:0:root");
    const QByteArray data = compose(withHtml("<img src='" + file + "'><img src='" + path("assente.png") +
                                             "'><img src='" + m_folder.path() + "'>"));
    EXPECT_EQ(imagesIn(data), 0);
    EXPECT_TRUE(header(data, "Content-Type").startsWith("multipart/alternative;"));
    EXPECT_TRUE(QByteArray(data).replace("=\r\n", "").contains("segreto.png"));
}

TEST_F(ComposeImages, RemoteAndRelativeAddressesStayReferences) {
    makeFile(path("a.png"), pngContent());
    const QByteArray data =
        compose(withHtml("<img src='http://x.it/a.png'><img src='a.png'><img src='//x.it" + path("a.png") +
                         "'><img src='file://server" + path("a.png") +
                         "'><img src='data:image/png;base64,xx'><img src='\\\\server\\a'>"));
    EXPECT_EQ(imagesIn(data), 0);
}

TEST_F(ComposeImages, ValueOfARecipientPullsInNoFile) {
    const QString named = makeFile(path("named.png"), pngContent());
    const QString other = makeFile(path("other.png"), pngContent());
    auto message = withHtml("<img src='" + named + "'><p>:::nom:::</p><img src=':::campo1:::'>");
    message.BodyHtml.replace(":::nom:::", "<img src='" + other + "'>").replace(":::campo1:::", other);
    const QByteArray data = compose(message);
    EXPECT_EQ(imagesIn(data), 1);
    EXPECT_TRUE(data.contains("filename=\"named.png\""));
    EXPECT_EQ(QByteArray(data).replace("=\r\n", "").count("other.png"), 2);
}

TEST_F(ComposeImages, WithoutATemplateNothingIsEmbedded) {
    auto message = withHtml("<img src='" + makeFile(path("a.png"), pngContent()) + "'>");
    message.TemplateHtml.clear();
    EXPECT_EQ(imagesIn(compose(message)), 0);
}

TEST_F(ComposeImages, ImagesStayWithinTenMegabytesTogether) {
    QString html;
    for (int i = 0; i < 4; ++i) {
        html += "<img src='" +
                makeFile(path(QString::number(i) + ".png"), pngContent(i == 3 ? 100 : 4 << 20)) + "'>";
    }
    const QByteArray data = compose(withHtml(html));
    EXPECT_TRUE(data.contains("filename=\"0.png\""));
    EXPECT_TRUE(data.contains("filename=\"1.png\""));
    EXPECT_FALSE(data.contains("filename=\"2.png\""));
    EXPECT_TRUE(data.contains("filename=\"3.png\""));
}

TEST_F(ComposeImages, ChangedImageIsReadAgain) {
    const QString file = path("a.png");
    const auto message = withHtml("<img src='" + file + "'>");
    EXPECT_EQ(imagesIn(compose(message)), 0);
    makeFile(file, pngContent(100));
    EXPECT_TRUE(compose(message).contains(pngContent(100).toBase64().left(76)));
    makeFile(file, "GIF89a.......");
    EXPECT_TRUE(compose(message).contains("Content-Type: image/gif"));
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(imagesIn(compose(message)), 0);
}

TEST_F(ComposeImages, MixedContainsRelatedContainsAlternative) {
    auto message = withHtml("<img src='" + makeFile(path("a.png"), pngContent()) + "'>");
    message.Attachments = {{makeFile(path("b.zip"), "x"), "b.zip"}};
    const QByteArray data = compose(message);
    EXPECT_TRUE(header(data, "Content-Type").startsWith("multipart/mixed;"));
    EXPECT_LT(data.indexOf("multipart/related"), data.indexOf("Content-Type: multipart/alternative"));
    EXPECT_LT(data.indexOf("Content-Type: text/html"), data.indexOf("Content-Type: image/png"));
    EXPECT_LT(data.indexOf("Content-Type: image/png"), data.indexOf("filename=\"b.zip\""));
}

}  // namespace

}  // namespace compose_files_test
