// SPDX-License-Identifier: GPL-3.0-or-later
// The addresses in a body: made valid URIs, and listed in the text form.
#include <gtest/gtest.h>

#include "platform/mail/compose_support.h"
#include "platform/mail/HtmlReferences.h"
#include "platform/mail/TextPart.h"
#include "platform/mail/WebAddress.h"
#include "platform/mail/wire_reader.h"

namespace compose_links_test {

using compose::plainMessage;

namespace {

std::string uri(const char* address) {
    return mail::asUri(address).toStdString();
}
std::string attribute(const char* source) {
    return mail::attributeAsUri(source).toStdString();
}

TEST(WebAddress, WhatAUriMayNotContainIsPercentEncoded) {
    EXPECT_EQ(uri("https://x.it/?c=Associazione \xC3\x80ncora"),
              "https://x.it/?c=Associazione%20%C3%80ncora");
    EXPECT_EQ(uri("http://x.it/<>\\^`{|}\x01\x7F"), "http://x.it/%3C%3E%5C%5E%60%7B%7C%7D%01%7F");
}

TEST(WebAddress, WhatAUriMayContainStays) {
    const char* const address = "https://a.b:80/c%20d/e+f?g=h&i=%zz#j'k(l)*!;,@~_-.\"[]$";
    EXPECT_EQ(uri(address), address);
    EXPECT_EQ(attribute(address), address);
}

TEST(WebAddress, LineEndsAndTabsInsideAreDropped) {
    EXPECT_EQ(uri("http://x.it/a\r\n\tb"), "http://x.it/ab");
}

TEST(WebAddress, CharacterReferencesOfAnAttributeAreReadOnlyWhereNeeded) {
    EXPECT_EQ(attribute("http://x.it/?a=1&amp;b=&lt;c&gt;&nbsp;&quot;&#39;&copy=2"),
              "http://x.it/?a=1&amp;b=%3Cc%3E%C2%A0&quot;&#39;&copy=2");
    EXPECT_EQ(attribute("http://x.it/&#224;&#xE0;&#65;&#32;&#0;&#xD800;&#x110000;&#99999999999;&#x;&#;&#38"),
              "http://x.it/%C3%A0%C3%A0&#65;%20&#0;&#xD800;&#x110000;&#99999999999;&#x;&#;&#38");
}

QString htmlSent(const QString& html) {
    auto message = plainMessage();
    message.BodyHtml = html;
    const wire::Message read = wire::read(compose::wire(message));
    EXPECT_EQ(read.complaints.join('\n').toStdString(), "");
    return QString::fromUtf8(read.leaves.back().content);
}

TEST(ComposeLinks, ValueWithBlanksAndAccentsLeavesTheLinkWhole) {
    EXPECT_EQ(
        htmlSent(QStringLiteral("<a href=\"https://x.it/?c=Caffè Àncora&amp;e=a+b@c.it#d\">Caffè Àncora</a>"
                                "<img alt=\"à b\" src='http://x.it/à b.png'>")),
        QStringLiteral(
            "<a href=\"https://x.it/?c=Caff%C3%A8%20%C3%80ncora&amp;e=a+b@c.it#d\">Caffè Àncora</a>"
            "<img alt=\"à b\" src='http://x.it/%C3%A0%20b.png'>"));
}

TEST(ComposeLinks, OtherAddressesAndTextsStay) {
    for (const QString& html :
         {QStringLiteral("<a href=\"mailto:è@x.it?subject=a b\">è</a>"),
          QStringLiteral("<a href=\"#è\">x</a>"),
          QStringLiteral("<a title=\"http://x.it/è\">http://x.it/è</a>"),
          QStringLiteral("<!-- <a href=\"http://x.it/è\"> -->"), QStringLiteral("<img src=\"/è b.png\">"),
          QStringLiteral("<a href=\"  http://x.it/  \">x</a>")})
        EXPECT_EQ(htmlSent(html).toStdString(), html.toStdString());
}

TEST(ComposeLinks, ManyCommentsAreReadInOnePass) {
    const QByteArray html = QByteArray("<!-- x -->").repeated(40000) + "<img src=/a>";
    const auto references = mail::findReferences(html);
    ASSERT_EQ(references.images.size(), 1u);
    EXPECT_EQ(references.images[0].value, "/a");
}

std::vector<std::string> linksIn(const QByteArray& html) {
    std::vector<std::string> links;
    for (const auto& link : mail::findReferences(html).links)
        links.push_back((link.text + '|' + link.address).toStdString());
    return links;
}
using Links = std::vector<std::string>;

TEST(HtmlReferences, LinksAreFoundWithTheirTexts) {
    EXPECT_EQ(
        linksIn("<p><a href='https://x.it/?a=1&amp;b=2'>Il <b>list</b>ino<br>\r\n 2026 &amp; altro</a></p>"),
        (Links{"Il listino 2026 & altro|https://x.it/?a=1&b=2"}));
    EXPECT_EQ(linksIn("<a href=mailto:a@b.it><img alt='Scrivici' src=x></a><a href=TEL:+39>x</a>"),
              (Links{"Scrivici|mailto:a@b.it", "x|TEL:+39"}));
    EXPECT_EQ(linksIn("<map><area href=http://x.it alt='Sud'></map>"), (Links{"Sud|http://x.it"}));
    EXPECT_EQ(linksIn("<a href=http://x.it/1>uno<a href=http://x.it/2>due"),
              (Links{"uno|http://x.it/1", "due|http://x.it/2"}));
}

TEST(HtmlReferences, LinksThatAReaderOfTextCannotFollowAreLeftOut) {
    EXPECT_EQ(linksIn("<a name=x>a</a><a href=#b>b</a><a href='javascript:c()'>c</a><a href=file:///d>d</a>"
                      "<!--<a href=http://e.it>e</a>--><script><a href=http://f.it>f</a></script>"),
              Links{});
}

TEST(HtmlReferences, EachLinkIsNamedOnceAndFiftyAtMost) {
    EXPECT_EQ(linksIn("<a href=http://x.it>x</a><a href=http://x.it> x </a><a href=http://x.it>y</a>"),
              (Links{"x|http://x.it", "y|http://x.it"}));
    QByteArray html;
    for (int i = 0; i < 80; ++i)
        html += "<a href=http://x.it/" + QByteArray::number(i) + ">x</a>";
    EXPECT_EQ(linksIn(html).size(), 50u);
}

TEST(HtmlReferences, LongTextOfALinkIsCutBetweenTwoCharacters) {
    const auto links = linksIn("<a href=http://x.it>" + QByteArray("\xC3\xA8").repeated(400) + "</a>");
    EXPECT_EQ(links, (Links{QByteArray("\xC3\xA8").repeated(150).toStdString() + "|http://x.it"}));
}

std::string textOf(const QString& bodyText, const QString& html, const QString& subject = "Oggetto") {
    auto message = plainMessage();
    message.BodyText = bodyText;
    message.BodyHtml = html;
    message.Subject = subject;
    const wire::Message read = wire::read(compose::wire(message));
    EXPECT_EQ(read.complaints.join('\n').toStdString(), "");
    return read.leaves.front().type == "text/plain" ? read.leaves.front().content.toStdString() : "(nessuno)";
}

TEST(ComposeText, AtMostTwoEmptyLinesAreInARow) {
    EXPECT_EQ(textOf("a\r\n\r\n\r\n\r\n\r\nb\r\n\r\nc", "<p>x"), "a\r\n\r\n\r\nb\r\n\r\nc");
    EXPECT_EQ(textOf(QStringLiteral("a\r\n \r\n\u00a0\r\n\t\r\n\u200b\u200c\r\nb"), "<p>x"),
              "a\r\n \r\n\xC2\xA0\r\nb");
    EXPECT_EQ(textOf("\n\n\n\na\r\r\r\rb", "<p>x"), "\r\n\r\na\r\n\r\n\r\nb");
    EXPECT_EQ(textOf("a\n\n\n\nb", ""), "a\r\n\r\n\r\nb\r\n");
}

TEST(ComposeText, LinksThatTheTextDoesNotNameFollowIt) {
    EXPECT_EQ(textOf("Ciao",
                     QStringLiteral("<a href='http://x.it/?c=è b'>Offerte</a><a href='http://y.it/'> </a>")),
              "Ciao\r\n\r\nCollegamenti:\r\nOfferte: http://x.it/?c=%C3%A8%20b\r\nhttp://y.it/\r\n");
    EXPECT_EQ(textOf("Vedi http://x.it/", "<a href='http://x.it/'>http://x.it/</a>"), "Vedi http://x.it/");
    EXPECT_EQ(textOf("Ciao\r\n", "<a href='http://x.it/'>x</a>"),
              "Ciao\r\n\r\nCollegamenti:\r\nx: http://x.it/\r\n");
}

TEST(ComposeText, MessageWithoutTextTakesTheAlternativeTextsThenTheSubject) {
    EXPECT_EQ(textOf(QStringLiteral(" \r\n\u00a0"),
                     "<img alt='Fiera del pane' src=x><img alt=' 8 maggio ' src=y><img src=z>"),
              "Fiera del pane\r\n8 maggio\r\n");
    EXPECT_EQ(textOf("", "<img alt='' src=x>"), "Oggetto");
    EXPECT_EQ(textOf("", "<img alt='' src=x>", "a\r\nBcc: b"), "a  Bcc: b");
    EXPECT_EQ(textOf("", "<img src=x>", ""), "(nessuno)");
    EXPECT_EQ(textOf("", "<a href='http://x.it/'><img src=x></a>", " "), "Collegamenti:\r\nhttp://x.it/\r\n");
}

TEST(ComposeText, MessageWithoutHtmlIsItsTextAlone) {
    EXPECT_EQ(textOf("", ""), "");
    EXPECT_EQ(textOf("a", ""), "a\r\n");
}

}  // namespace

}  // namespace compose_links_test
